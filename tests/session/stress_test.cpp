// Runs that are started, cancelled, read and dropped at random moments. Short as it stands; the
// variable VELMORA_STRESS_RUNS asks for another number of runs of each kind, and
// VELMORA_STRESS_SEED for other moments.
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <random>
#include <thread>

#include <gtest/gtest.h>

#include "discounted_cfr.h"
#include "game.h"
#include "memory_estimate.h"
#include "results/actions.h"
#include "results/hands.h"
#include "results/strategy.h"
#include "runs.h"

namespace session_test {
namespace {

using velmora_app::ActionValues;
using velmora_app::SolvedSpot;

std::uint64_t number_in(const char* variable, std::uint64_t fallback) {
  const char* const text = std::getenv(variable);
  return text ? std::strtoull(text, nullptr, 10) : fallback;
}

class Stress : public ::testing::Test {
 protected:
  int pick(int below) { return std::uniform_int_distribution(0, below - 1)(random_); }

  /// A small spot of any kind. Half of them end only when they are cancelled.
  SolveConfig request() {
    SolveConfig config = pick(3) == 0 ? flop_request() : river_request();
    config.thread_count = static_cast<std::uint64_t>(1 + pick(3));
    config.compressed_storage = pick(2) == 0;
    config.max_iterations = pick(2) == 0 ? static_cast<std::uint32_t>(pick(4)) : 4'000'000'000U;
    config.target_exploitability = -1;
    if (pick(4) == 0) config.node_locks = {{0, "AA", 1, 0.5F}, {1, "KK", 0, 1}};
    if (pick(8) == 0) config.oop_range = "AKx";
    return config;
  }

  /// Some time, from none at all to that of a few iterations.
  void rest() {
    std::this_thread::sleep_for(std::chrono::microseconds(pick(2) == 0 ? pick(50) : pick(4000)));
  }

  const std::uint64_t runs_ = number_in("VELMORA_STRESS_RUNS", 40);

 private:
  std::mt19937_64 random_{number_in("VELMORA_STRESS_SEED", 1)};
};

/// How a run has ended: exactly once.
void expect_one_end(const Reports& reports) {
  const SolveResult result = reports.result();
  int ends = 0;
  for (const SolveProgress& report : reports.all()) ends += report.result ? 1 : 0;
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(result.success, result.error.empty());
  EXPECT_EQ(result.success, result.nodes != nullptr);
}

TEST_F(Stress, StartsAndCancels) {
  SolveSession session;
  for (std::uint64_t i = 0; i < runs_; ++i) {
    Reports reports;
    ASSERT_TRUE(session.start(request(), reports.callback()));
    rest();
    if (pick(4) == 0) session.clear();
    session.cancel();
    // Refused while the run is under way; otherwise a run that ends at once for want of a board.
    if (pick(4) == 0) session.start({}, {});
    expect_one_end(reports);
    while (session.running()) std::this_thread::yield();
  }
}

TEST_F(Stress, EndsInEveryStage) {
  for (std::uint64_t i = 0; i < runs_; ++i) {
    Reports reports;
    {
      SolveSession session;
      ASSERT_TRUE(session.start(request(), reports.callback()));
      rest();
    }
    expect_one_end(reports);  // The session has waited for it.
  }
}

/// Asks all that a page asks, of the results that are there.
void read_all(const SolveSession& session, ActionValues& values, const std::atomic<bool>& stop,
              int offset) {
  std::uint64_t node = static_cast<std::uint64_t>(offset);
  while (!stop) {
    const SolvedSpot spot = session.solved_spot();
    if (!spot.game) {
      std::this_thread::yield();
      continue;
    }
    node = (node * 31 + 7) % spot.game->nodes().size();
    const bool ok = query_hand_strategy(spot, node).ok;
    EXPECT_EQ(query_hand_combos(spot, node, values).ok, ok);
    query_hand_buckets(spot, node);
    query_action_stats(spot, node, values);
    query_seat_hand_combos(spot, node, velmora::kIp);
    prepare_node(spot, node, values, [&stop] { return stop.load(); });
  }
}

TEST_F(Stress, SolvesAgainWhileResultsAreRead) {
  SolveSession session;
  ActionValues values;
  std::atomic<bool> stop = false;
  std::vector<std::thread> readers;
  for (int i = 0; i < 2; ++i) {
    readers.emplace_back([&, i] { read_all(session, values, stop, i); });
  }
  std::thread estimates([&] {
    while (!stop) {
      std::string error;
      EXPECT_TRUE(velmora_app::estimate_memory(flop_request(), error)) << error;
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
  });
  for (std::uint64_t i = 0; i < runs_; ++i) {
    SolveConfig config = request();
    config.max_iterations = static_cast<std::uint32_t>(1 + pick(3));
    config.oop_range = "AA,QJs";
    Reports reports;
    ASSERT_TRUE(session.start(config, reports.callback()));
    EXPECT_TRUE(reports.result().success);
    rest();
    if (pick(3) == 0) session.clear();
  }
  stop = true;
  for (std::thread& reader : readers) reader.join();
  estimates.join();
}

}  // namespace
}  // namespace session_test
