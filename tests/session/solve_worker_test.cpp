// What a request makes of the game and of the solve.
#include "solve_worker.h"

#include <cmath>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "discounted_cfr.h"
#include "fault_scope.h"
#include "game.h"
#include "runs.h"
#include "spot.h"
#include "worker_pool.h"

namespace session_test {
namespace {

using velmora::BetSize;
using velmora::BetSizeKind;
using velmora::GameSettings;
using velmora::kIp;
using velmora::kNoCard;
using velmora::kOop;
using velmora_app::SolvedSpot;

TEST(Translation, BoardAndChips) {
  SolveConfig config;
  const std::pair<const char*, std::size_t> boards[] = {
      {"AhKd7c2", 3}, {"AhKd7c2s9", 4}, {"AhKd7c2s9h", 5}, {"AhKd7c2s9hXX", 5}};
  for (const auto& [text, count] : boards) {
    config.board = text;
    const velmora::Board board = translate_cards(config).board;
    EXPECT_EQ(board.turn != kNoCard, count >= 4) << text;
    EXPECT_EQ(board.river != kNoCard, count >= 5) << text;
  }
  config.starting_pot = -3;
  config.effective_stack = 2000000000;
  config.rake_percent = 5;
  config.rake_cap = 30;
  config.starting_street = "turn";
  config.ip_add_all_in_jam_threshold_pct = 150;
  const GameSettings settings = translate_settings(config);
  EXPECT_EQ(settings.street, velmora::kTurn);
  EXPECT_EQ(settings.starting_pot, -3);
  EXPECT_EQ(settings.effective_stack, 2000000000);
  EXPECT_EQ(settings.rake_fraction, 0.05);
  EXPECT_EQ(settings.rake_cap, 30);
  EXPECT_EQ(settings.jam_threshold, (std::array<double, 2>{0, 1.5}));
  config.ip_add_all_in_jam_threshold_pct = -150;
  EXPECT_EQ(translate_settings(config).jam_threshold, (std::array<double, 2>{0, 0}));
}

TEST(Translation, SizesOfSeatsAndStreets) {
  SolveConfig config;
  config.oop_flop = {"33", "2x", true, false};
  config.ip_flop = {"50", "", false, true};
  config.oop_turn = {"75", "", false, true};
  config.ip_river = {"", "10c2r", true, false};
  GameSettings settings;
  translate_sizing(config, settings);
  const auto kinds = [](const std::vector<BetSize>& sizes) {
    std::string text;
    for (const BetSize& size : sizes) text += "%xcea"[static_cast<int>(size.kind)];
    return text;
  };
  struct Expected {
    const char* oop_bets;
    const char* oop_raises;
    const char* ip_bets;
    const char* ip_raises;
    const char* donk;
  };
  const Expected streets[] = {
      {"%a", "xa", "%", "", "%a"}, {"%", "", "", "", ""}, {"", "", "a", "ca", ""}};
  for (std::size_t i = 0; i < 3; ++i) {
    const velmora::StreetSizing& street = settings.sizing[i];
    EXPECT_EQ(kinds(street.seats[kOop].bets), streets[i].oop_bets) << i;
    EXPECT_EQ(kinds(street.seats[kOop].raises), streets[i].oop_raises) << i;
    EXPECT_EQ(kinds(street.seats[kIp].bets), streets[i].ip_bets) << i;
    EXPECT_EQ(kinds(street.seats[kIp].raises), streets[i].ip_raises) << i;
    ASSERT_TRUE(street.donk) << i;
    EXPECT_EQ(kinds(*street.donk), streets[i].donk) << i;
  }
  EXPECT_EQ(settings.sizing[1].seats[kOop].bets[0].value, 0.75);
}

/// Number of threads and storage of a request: the same numbers, or close ones.
TEST(SolveWorker, ThreadsAndStorageAreThoseOfTheRequest) {
  SolveSession session;
  SolveConfig config = flop_request();
  config.max_iterations = 2;
  for (const std::uint64_t threads : {0, 1, 3}) {
    config.thread_count = threads;
    config.compressed_storage = threads == 3;
    const SolveResult result = result_of(session, config);
    ASSERT_TRUE(result.success) << result.error;
    EXPECT_EQ(session.solved_spot().solver->worker_count(), threads == 0 ? 1 : threads);
    EXPECT_EQ(session.solved_spot().game->compressed_storage(), threads == 3);
  }
}

TEST(SolveWorker, LocksReachTheSolve) {
  SolveSession session;
  SolveConfig config = river_request();
  config.oop_range = "AA,QQ";
  config.max_iterations = 50;
  // Both classes always bet half of the pot.
  config.node_locks = {{0, "AA", 1, 1}, {0, "QQ", 1, 1}, {99999, "AA", 0, 1}};
  const SolveResult result = result_of(session, config);
  ASSERT_TRUE(result.success) << result.error;
  EXPECT_NEAR(result.root_action_freqs[0], 0, 1e-6);
  EXPECT_NEAR(result.root_action_freqs[1], 1, 1e-6);
  EXPECT_NEAR(result.root_action_freqs[2], 0, 1e-6);
}

/// The window can ask for a street that the board is not on; such a run ends like any other.
TEST(SolveWorker, StreetsThatTheBoardIsNotOn) {
  SolveSession session;
  for (const char* board : {"AhKh7h", "AhKh7h2h", "AhKh7h2h9d"}) {
    for (const char* street : {"flop", "turn", "river"}) {
      SolveConfig config = flop_request();
      config.board = board;
      config.starting_street = street;
      config.max_iterations = 1;
      config.thread_count = 2;
      config.oop_river = {};
      const SolveResult result = result_of(session, config);
      EXPECT_TRUE(result.success) << board << " " << street << ": " << result.error;
      EXPECT_TRUE(std::isfinite(result.exploitability)) << board << " " << street;
      EXPECT_TRUE(std::isfinite(result.ev_oop)) << board << " " << street;
      EXPECT_TRUE(std::isfinite(result.ev_ip)) << board << " " << street;
    }
  }
}

/// The deepest tree that is allowed fits the stacks of the threads that walk it. The address
/// sanitizer makes each step of the walk several times as large, so there a part of it has to do.
TEST(SolveWorker, TheDeepestTreeIsSolved) {
#ifdef __SANITIZE_ADDRESS__
  constexpr std::size_t kDepth = velmora::kMaxPlanDepth / 4;
#else
  constexpr std::size_t kDepth = velmora::kMaxPlanDepth;
#endif
  SolveSession session;
  SolveConfig config = river_request();
  config.effective_stack = static_cast<std::int32_t>(kDepth) - 2;
  config.oop_river = config.ip_river = {.bet_sizes = "1c", .raise_sizes = "1c"};
  config.oop_range = "AA,QQ";
  config.ip_range = "KK";
  config.max_iterations = 2;
  const SolveResult result = result_of(session, config);
  EXPECT_TRUE(result.success) << result.error;
  EXPECT_GT(result.nodes->size(), 2 * kDepth);
}

/// Where memory that runs out is an answer: on the thread of a run to its last report, within a
/// scope, and in the shares of a loop, which hand it to the thread that waits for them.
TEST(FaultScope, CoversRunsAndPoolThreads) {
  using velmora_app::faults_are_caught;
  using velmora_app::FaultScope;
  SolveSession session;
  Reports reports;
  ASSERT_TRUE(session.start(river_request(), reports.callback([](const SolveProgress& report) {
    EXPECT_TRUE(faults_are_caught()) << report.status;
  })));
  reports.result();
  EXPECT_FALSE(faults_are_caught());
  {
    const FaultScope outer;
    { const FaultScope inner; }
    EXPECT_TRUE(faults_are_caught());
    std::thread([] { EXPECT_FALSE(faults_are_caught()); }).join();
  }
  EXPECT_FALSE(faults_are_caught());
  velmora::WorkerPool pool(1);
  pool.parallel_for(2, [](std::size_t, std::size_t) { EXPECT_TRUE(faults_are_caught()); });
  EXPECT_FALSE(faults_are_caught());
}

}  // namespace
}  // namespace session_test
