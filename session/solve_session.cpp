#include "solve_session.h"

#include <chrono>
#include <exception>
#include <new>
#include <utility>

#include "fault_scope.h"
#include "solve_worker.h"

namespace velmora_app {
namespace {

constexpr char kFailed[] = "Error: ";
constexpr char kStopped[] = "Stopped";
/// What `std::bad_alloc` says, in a text that needs no memory of its own.
constexpr char kNoMemory[] = "std::bad_alloc";

/// How often the last report is offered to a receiver without memory.
constexpr int kMostDeliveries = 50;
constexpr std::chrono::milliseconds kDeliveryPause(20);

/// False if the receiver has no memory for a report.
template <typename Report>
bool deliver(const Report& report, const SolveProgress& progress) {
  try {
    report(progress);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace

/// What the last report is made of.
struct SolveSession::Ending {
  SolveProgress report;
  SolveResult result;

  /// Frees memory for the texts of exhausted memory, which may leave none for them.
  Ending() {
    report.status.reserve(sizeof kFailed + sizeof kNoMemory);
    result.error.reserve(sizeof kNoMemory);
  }

  void fail(const char* message) noexcept {
    report.progress = 0;
    result.success = false;
    try {
      report.status.assign(kFailed).append(message);
      result.error = message;
    } catch (const std::bad_alloc&) {
      report.status.assign(kFailed).append(kNoMemory);
      result.error = kNoMemory;
    }
  }
};

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
  stop_requested_ = false;
  last_report_delivered_ = false;
  clear();
  try {
    const FaultScope scope;
    worker_ = std::thread([this, config, callback = std::move(callback),
                           ending = Ending()]() mutable { work(config, callback, ending); });
  } catch (...) {
    running_ = false;
    throw;
  }
  return true;
}

void SolveSession::work(const SolveConfig& config, const Callback& callback, Ending& ending) {
  const FaultScope scope;
  worker_id_ = std::this_thread::get_id();
  const auto report = [&callback](const SolveProgress& progress) {
    if (callback) callback(progress);
  };
  SolveProgress& last = ending.report;
  SolveResult& result = ending.result;
  try {
    SolvedSpot solved = run_solve(
        config, [this] { return cancel_requested_.load(); },
        [this] { return stop_requested_.load(); }, report, result);
    if (solved.solver) {
      result.success = !result.stopped;
      last.progress = result.stopped ? fraction_of(result.iterations, config.max_iterations) : 1;
      last.status = result.stopped   ? kStopped
                    : result.stalled ? "Done: node locks keep the exploitability from falling"
                                     : "Done";
      if (result.stopped) result.error = "Stopped before the target was reached";
      const std::lock_guard lock(mutex_);
      solved_ = std::move(solved);
    } else if (result.stopped) {
      last.status = kStopped;
      result.error = "Stopped before the first iteration: there is no result yet";
    } else {
      last.status = "Cancelled";
      result.error = "Cancelled";
    }
  } catch (const std::exception& fault) {
    ending.fail(fault.what());
  } catch (...) {
    ending.fail("Unknown error");
  }
  last_report_delivered_ = true;
  last.result = std::move(result);
  try {
    for (int attempt = 1; !deliver(report, last); ++attempt) {
      if (attempt == kMostDeliveries) break;
      if (last.result->nodes) {
        // The receiver has no memory for the result. Once that is gone it may have enough for the
        // message.
        clear();
        result = {};
        result.board = std::move(last.result->board);
        ending.fail(kNoMemory);
        last.result = std::move(result);
      } else {
        std::this_thread::sleep_for(kDeliveryPause);
      }
    }
  } catch (...) {  // NOLINT: nobody is left to tell, and the run is over.
  }
  running_ = false;
}

}  // namespace velmora_app
