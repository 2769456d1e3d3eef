#include "solve_session.h"

#include <exception>
#include <utility>

#include "fault_scope.h"
#include "solve_worker.h"

namespace velmora_app {

SolveSession::~SolveSession() {
  cancel();
  if (worker_.joinable()) worker_.join();
}

void SolveSession::clear() {
  SolvedSpot dropped;
  const std::lock_guard lock(mutex_);
  std::swap(dropped, solved_);
}

SolvedSpot SolveSession::solved_spot() const {
  const std::lock_guard lock(mutex_);
  return solved_;
}

bool SolveSession::start(const SolveConfig& config, Callback callback) {
  if (running_.exchange(true)) {
    // The old thread may have handed over its last report and not yet come to its end. Its own
    // callback can't wait for that.
    if (!last_report_delivered_ || worker_id_.load() == std::this_thread::get_id()) return false;
  }
  if (worker_.joinable()) worker_.join();
  running_ = true;
  cancel_requested_ = false;
  last_report_delivered_ = false;
  clear();
  try {
    worker_ =
        std::thread([this, config, callback = std::move(callback)] { work(config, callback); });
  } catch (...) {
    running_ = false;
    throw;
  }
  return true;
}

void SolveSession::work(const SolveConfig& config, const Callback& callback) {
  worker_id_ = std::this_thread::get_id();
  const auto report = [&callback](const SolveProgress& progress) {
    if (callback) callback(progress);
  };
  SolveProgress last;
  SolveResult result;
  const auto fail = [&](const std::string& message) {
    last.progress = 0;
    last.status = "Error: " + message;
    result.success = false;
    result.error = message;
  };
  try {
    const FaultScope scope;
    SolvedSpot solved = run_solve(
        config, [this] { return cancel_requested_.load(); }, report, result);
    if (solved.solver) {
      result.success = true;
      last.progress = 1;
      last.status = "Done";
      const std::lock_guard lock(mutex_);
      solved_ = std::move(solved);
    } else {
      last.status = "Cancelled";
      result.error = "Cancelled";
    }
  } catch (const std::exception& fault) {
    fail(fault.what());
  } catch (...) {
    fail("Unknown error");
  }
  last.result = std::move(result);
  last_report_delivered_ = true;
  try {
    report(last);
  } catch (...) {  // NOLINT: nobody is left to tell, and the run is over.
  }
  running_ = false;
}

}  // namespace velmora_app
