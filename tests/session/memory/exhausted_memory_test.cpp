// Memory that runs out at any moment of a run or an estimate.
#include <algorithm>
#include <new>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "../runs.h"
#include "failing_allocator.h"
#include "memory_estimate.h"
#include "solve_session.h"

namespace session_test {
namespace {

using failing_allocator::Exempt;
using failing_allocator::Outage;

const std::string kNoMemory = "std::bad_alloc";

/// What a run of a session that lives for it alone has come to.
struct Ending {
  bool started = true;   ///< False if `start` threw `std::bad_alloc`.
  int last_reports = 0;  ///< Those with a result.
  bool success = false;
  std::string error;
  std::string status;
  float value = 0;        ///< Of OOP.
  bool is_empty = false;  ///< The session holds no game and no solver.
  std::uint64_t allocations = 0;
};

Ending run_without(std::uint64_t failing, Outage outage, const SolveConfig& config) {
  Ending ending;
  SolveSession session;
  const auto callback = [&ending](const SolveProgress& report) {
    const Exempt own;
    if (!report.result) return;
    ++ending.last_reports;
    ending.success = report.result->success;
    ending.error = report.result->error;
    ending.status = report.status;
    ending.value = report.result->ev_oop;
  };
  failing_allocator::start(failing, outage);
  try {
    session.start(config, callback);
  } catch (const std::bad_alloc&) {
    ending.started = false;
  }
  while (session.running()) std::this_thread::yield();
  ending.allocations = failing_allocator::stop();
  const Exempt own;
  const velmora_app::SolvedSpot spot = session.solved_spot();
  ending.is_empty = !spot.game && !spot.solver;
  return ending;
}

/// Lets the allocation of each number below `every`, and then of every `step`-th number, fail.
void expect_failed_runs(const SolveConfig& config, std::uint64_t every, std::uint64_t step) {
  constexpr auto kNever = ~std::uint64_t{0};
  const Ending undisturbed = run_without(kNever, Outage::kOnce, config);
  ASSERT_TRUE(undisturbed.success);
  // What a process keeps of its first run.
  const std::int64_t kept = failing_allocator::in_use();
  for (const Outage outage : {Outage::kOnce, Outage::kForGood}) {
    std::uint64_t failed = 0;
    for (std::uint64_t failing = 0;; failing += failing < every ? 1 : step) {
      {
        const Ending ending = run_without(failing, outage, config);
        if (ending.allocations <= failing) {  // It got through before.
          ASSERT_TRUE(ending.success) << failing << " " << ending.error;
          break;
        }
        ASSERT_EQ(ending.last_reports, ending.started ? 1 : 0) << failing;
        ASSERT_EQ(ending.is_empty, !ending.success) << failing;
        if (ending.success) {
          // A list that could not be made smaller stayed as it was.
          ASSERT_EQ(ending.value, undisturbed.value) << failing;
        } else if (ending.started) {
          ++failed;
          ASSERT_EQ(ending.error, kNoMemory) << failing;
          ASSERT_EQ(ending.status, "Error: " + kNoMemory) << failing;
        }
      }
      ASSERT_LE(failing_allocator::in_use(), kept) << "leaks when " << failing << " fails";
    }
    EXPECT_GT(failed, 100U);
  }
}

/// The river spot with a lock: every stage of a run, and few nodes.
SolveConfig locked_river_request() {
  SolveConfig config = river_request();
  config.node_locks = {{0, "AA", 1, 0.25F}};
  return config;
}

TEST(ExhaustedMemory, EndsARunWithItsText) {
  expect_failed_runs(locked_river_request(), 1'000'000, 1);
}

TEST(ExhaustedMemory, EndsARunOnManyThreads) {
  SolveConfig config = locked_river_request();
  config.thread_count = 3;
  expect_failed_runs(config, 1'000'000, 1);
}

TEST(ExhaustedMemory, EndsARunWithCardsToCome) {
  SolveConfig config = flop_request();
  config.thread_count = 2;
  config.compressed_storage = true;
  expect_failed_runs(config, 150, 4001);
}

TEST(ExhaustedMemory, EndsAnEstimate) {
  const SolveConfig config = flop_request();
  std::string none;
  ASSERT_TRUE(velmora_app::estimate_memory(config, none));
  const std::int64_t kept = failing_allocator::in_use();
  for (const Outage outage : {Outage::kOnce, Outage::kForGood}) {
    for (std::uint64_t failing = 0;; failing += failing < 200 ? 1 : 97) {
      {
        std::string error;
        failing_allocator::start(failing, outage);
        const auto estimate = velmora_app::estimate_memory(config, error);
        if (failing_allocator::stop() <= failing) {
          ASSERT_TRUE(estimate);
          break;
        }
        // A list that could not be made smaller is no fault.
        ASSERT_EQ(error, estimate ? "" : kNoMemory) << failing;
      }
      ASSERT_LE(failing_allocator::in_use(), kept) << "leaks when " << failing << " fails";
    }
  }
}

}  // namespace
}  // namespace session_test
