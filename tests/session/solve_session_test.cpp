#include "solve_session.h"

#include <atomic>
#include <cmath>
#include <stdexcept>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "discounted_cfr.h"
#include "game.h"
#include "runs.h"

namespace session_test {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;
using velmora_app::SolvedSpot;

constexpr std::uint32_t kForever = 4'000'000'000U;

bool is_empty(const SolvedSpot& spot) {
  return !spot.game && !spot.solver;
}

TEST(SolveSession, ReportsTheStagesInOrder) {
  SolveSession session;
  Reports reports;
  std::atomic<bool> readable = false;
  ASSERT_TRUE(session.start(river_request(), reports.callback([&](const SolveProgress& report) {
    EXPECT_TRUE(session.running());
    if (!report.result) return;
    const SolvedSpot spot = session.solved_spot();
    readable = spot.game && spot.solver && spot.solver->iterations_done() == 3 &&
               report.result->nodes->size() == spot.game->nodes().size();
  })));
  const SolveResult result = reports.result();
  EXPECT_TRUE(readable);

  const std::vector<SolveProgress> all = reports.all();
  EXPECT_THAT(reports.statuses(),
              ElementsAre("Init: building game object...", "Init: building game tree structures...",
                          "Init: starting solver...", "Iter 1 | exploitability≈0.0000",
                          "Iter 2 | exploitability≈0.0000", StartsWith("Iter 3 | exploitability≈"),
                          "Finalizing: computing results...",
                          "Finalizing: building result snapshot...", "Done"));
  const double progress[] = {0, 0, 0, 1.0 / 3, 2.0 / 3, 0.999, 0.999, 0.999, 1};
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_EQ(all[i].progress, progress[i]) << all[i].status;
    EXPECT_EQ(all[i].result.has_value(), i + 1 == all.size()) << all[i].status;
    EXPECT_EQ(all[i].iteration, i >= 3 && i < 6 ? i - 2 : 0) << all[i].status;
  }
  EXPECT_EQ(all[4].exploitability, 0);
  EXPECT_EQ(all[5].exploitability, result.exploitability);
  EXPECT_GT(result.exploitability, 0);
  char status[64];
  std::snprintf(status, sizeof status, "Iter 3 | exploitability≈%.4f",
                static_cast<double>(result.exploitability));
  EXPECT_EQ(all[5].status, status);

  EXPECT_TRUE(result.success);
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(result.board, "AhKd7c2s9h");
  EXPECT_EQ(result.starting_pot, 100);
  EXPECT_EQ(result.effective_stack, 100);
  EXPECT_EQ(result.iterations, 3U);
  EXPECT_GE(result.build_seconds, 0);
  EXPECT_GE(result.solve_seconds, 0);
}

TEST(SolveSession, StopsAtTheTargetWhereItMeasures) {
  SolveSession session;
  SolveConfig config = river_request();
  config.max_iterations = 200;
  config.target_exploitability = 1000;
  const std::vector<SolveProgress> reports = run(session, config);
  ASSERT_EQ(reports.size(), 3U + 50 + 3);
  EXPECT_EQ(reports[52].status.rfind("Iter 50 | ", 0), 0U);
  EXPECT_EQ(reports[53].progress, 0.25);
  EXPECT_EQ(reports[54].progress, 0.25);
  EXPECT_EQ(reports.back().result->iterations, 50U);

  config.max_iterations = 0;
  const std::vector<SolveProgress> none = run(session, config);
  ASSERT_EQ(none.size(), 6U);
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(none[i].progress, 0) << none[i].status;
  EXPECT_EQ(none.back().status, "Done");
  EXPECT_EQ(none.back().progress, 1);
  const SolveResult& result = *none.back().result;
  EXPECT_TRUE(result.success);
  EXPECT_EQ(result.iterations, 0U);
  EXPECT_EQ(result.exploitability, 0);
  EXPECT_THAT(result.root_action_freqs, ElementsAre(1.0F / 3, 1.0F / 3, 1.0F / 3));
}

TEST(SolveSession, FaultsEndARunWithTheirText) {
  struct Case {
    std::function<void(SolveConfig&)> change;
    std::string error;
    std::size_t reports = 1;  ///< The last one included: a bad request says nothing before it.
  };
  const std::string short_board = "Board must include at least a flop (6 chars, e.g. AhKsQd)";
  const std::string never_meet =
      "Every hand of one range shares a card with every hand of the other, so the two can never "
      "meet";
  const std::string too_small = "The weights of the two ranges are too small to solve";
  const Case cases[] = {
      {[](SolveConfig& c) { c = {}; }, short_board},
      {[](SolveConfig& c) { c.board = "AhKd7cKd"; }, "Turn conflicts with flop", 2},
      // The board comes before the ranges, OOP before IP, the ranges before the sizes.
      {[](SolveConfig& c) {
         c.oop_range = "AKx";
         c.ip_range = "KA";
       },
       "Invalid suitedness suffix"},
      {[](SolveConfig& c) {
         c.ip_range = "KA";
         c.oop_river.bet_sizes = "%";
       },
       "First rank must be >= second rank"},
      {[](SolveConfig& c) { c.ip_range = "AhKd"; },
       "Player range empty after filtering board cards", 2},
      // Ranges that can't meet on the board, and those that hardly ever do.
      {[&](SolveConfig& c) {
         c.oop_range = "AsKs,AsQs";
         c.ip_range = "AsJs,AsTs";
       },
       never_meet, 2},
      {[&](SolveConfig& c) { c.oop_range = c.ip_range = "QQ:1e-30"; }, too_small, 2},
      {[](SolveConfig& c) { c.rake_percent = std::nan(""); },
       "The rake must be from 0% to 100% of the pot"},
      // Sizes of all streets are read, also of those that the board has left behind.
      {[](SolveConfig& c) { c.oop_flop.bet_sizes = "2x"; },
       "OOP flop sizing (bet='2x', raise='', bet_norm='2x', raise_norm=''): "
       "Relative raise (x) is not allowed in this context"},
      {[](SolveConfig& c) {
         c.ip_river.raise_sizes = "5c3c";
         c.oop_river.raise_sizes = "1c0r";
       },
       "OOP river sizing (bet='50, a', raise='1c0r', bet_norm='50%,a', raise_norm='1c0r'): "
       "Raise cap must be positive"},
  };
  SolveSession session;
  for (const Case& c : cases) {
    ASSERT_TRUE(result_of(session, river_request()).success);
    SolveConfig config = river_request();
    c.change(config);
    const std::vector<SolveProgress> reports = run(session, config);
    const SolveProgress& last = reports.back();
    EXPECT_THAT(last.result->error, StartsWith(c.error));
    EXPECT_EQ(last.status, "Error: " + last.result->error);
    EXPECT_FALSE(last.result->success);
    EXPECT_EQ(last.result->board, config.board);
    EXPECT_EQ(last.result->nodes, nullptr);
    EXPECT_EQ(last.progress, 0);
    EXPECT_EQ(reports.size(), c.reports) << c.error;
    EXPECT_TRUE(is_empty(session.solved_spot())) << c.error;
  }
}

/// The least weights that are taken, in the largest pot.
TEST(SolveSession, NumbersStayFinite) {
  SolveConfig config = river_request();
  config.oop_range = "QsQc:0.000001,8h8s:0.0000001";
  config.ip_range = "QhQs,QhQd:0.000001";
  config.starting_pot = 2'000'000'000;
  config.effective_stack = 73'000'000;
  config.rake_percent = 5;
  config.rake_cap = 1e300;
  config.max_iterations = 200;
  SolveSession session;
  const SolveResult result = result_of(session, config);
  ASSERT_TRUE(result.success) << result.error;
  EXPECT_TRUE(std::isfinite(result.exploitability));
  EXPECT_TRUE(std::isfinite(result.ev_oop) && std::isfinite(result.ev_ip));
  EXPECT_GT(result.nodes->size(), 4U);
}

/// A fault of the receiver of the reports is one of the run.
TEST(SolveSession, FaultsOfTheCallbackEndTheRun) {
  SolveSession session;
  const auto error_where = [&session](auto&& fault) {
    Reports reports;
    session.start(river_request(), reports.callback([&](const SolveProgress& report) {
      if (report.status == "Init: starting solver...") fault();
    }));
    return reports.result().error;
  };
  EXPECT_EQ(error_where([] { throw std::runtime_error("disk full"); }), "disk full");
  EXPECT_EQ(error_where([] { throw 7; }), "Unknown error");
  // Nobody can be informed of a fault of the last report; the next run is not affected.
  session.start(river_request(), [](const SolveProgress& report) {
    if (report.result) throw std::runtime_error("too late");
  });
  while (session.running()) std::this_thread::yield();
  EXPECT_EQ(error_where([] {}), "");
}

/// Dropping the results may free the memory that the report of the end needs.
TEST(SolveSession, AReceiverOutOfMemoryStillLearnsOfTheEnd) {
  SolveSession session;
  Reports reports;
  int offers = 0;
  session.start(river_request(), reports.callback([&](const SolveProgress& report) {
    if (!report.result) return;
    EXPECT_EQ(report.result->success, offers == 0);
    if (++offers < 4) throw std::bad_alloc();
  }));
  const SolveResult result = reports.result();
  EXPECT_EQ(result.error, "std::bad_alloc");
  EXPECT_EQ(result.board, river_request().board);
  EXPECT_EQ(result.nodes, nullptr);
  EXPECT_EQ(reports.all().back().status, "Error: std::bad_alloc");
  EXPECT_EQ(reports.all().back().progress, 0);
  EXPECT_TRUE(is_empty(session.solved_spot()));
  EXPECT_TRUE(result_of(session, river_request()).success);
}

TEST(SolveSession, CancelStopsBetweenIterations) {
  struct Case {
    std::string at;    ///< Cancelled in the report that begins so.
    std::string last;  ///< Status of the last report before the end.
    std::uint32_t iterations = 10;
  };
  const Case cases[] = {{"Init: building game object...", "Init: starting solver..."},
                        {"Init: starting solver...", "Init: starting solver..."},
                        {"Iter 7 |", "Iter 7 |"},
                        {"Iter 10 |", "Iter 10 |"}};
  SolveSession session;
  for (const Case& c : cases) {
    SolveConfig config = river_request();
    config.max_iterations = c.iterations;
    Reports reports;
    ASSERT_TRUE(session.start(config, reports.callback([&](const SolveProgress& report) {
      if (report.status.rfind(c.at, 0) == 0) session.cancel();
    })));
    const SolveResult result = reports.result();
    const std::vector<SolveProgress> all = reports.all();
    EXPECT_EQ(all.back().status, "Cancelled");
    EXPECT_EQ(all.back().progress, 0);
    EXPECT_FALSE(result.success);
    EXPECT_EQ(result.error, "Cancelled");
    EXPECT_EQ(result.board, config.board);
    EXPECT_THAT(all[all.size() - 2].status, StartsWith(c.last));
    EXPECT_TRUE(is_empty(session.solved_spot()));
  }

  // Too late: the run is over but for its result.
  for (const char* at : {"Finalizing: computing", "Finalizing: building", "Done"}) {
    Reports reports;
    ASSERT_TRUE(session.start(river_request(), reports.callback([&](const SolveProgress& report) {
      if (report.status.rfind(at, 0) == 0) session.cancel();
    })));
    EXPECT_TRUE(reports.result().success) << at;
    EXPECT_FALSE(is_empty(session.solved_spot())) << at;
  }
  // And a cancel without a run does nothing to the next.
  session.cancel();
  EXPECT_TRUE(result_of(session, river_request()).success);
}

TEST(SolveSession, StopKeepsWhatIsThere) {
  struct Case {
    std::string at;  ///< Stopped in the report that begins so.
    std::uint32_t iterations;
  };
  const Case cases[] = {{"Init: building game object...", 0},
                        {"Init: starting solver...", 0},
                        {"Iter 7 |", 7},
                        {"Iter 50 |", 50},
                        {"Iter 64 |", 64}};
  SolveSession session;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.at);
    SolveConfig config = river_request();
    config.max_iterations = 100;
    Reports reports;
    ASSERT_TRUE(session.start(config, reports.callback([&](const SolveProgress& report) {
      if (report.status.rfind(c.at, 0) == 0) session.stop_and_keep();
    })));
    const SolveResult result = reports.result();
    EXPECT_FALSE(result.success);
    EXPECT_TRUE(result.stopped);
    EXPECT_EQ(reports.all().back().status, "Stopped");
    EXPECT_EQ(reports.all().back().progress, c.iterations / 100.0);
    EXPECT_EQ(is_empty(session.solved_spot()), c.iterations == 0);
    EXPECT_EQ(result.error, c.iterations == 0
                                ? "Stopped before the first iteration: there is no result yet"
                                : "Stopped before the target was reached");
    if (c.iterations == 0) continue;
    // The same as a run of so many iterations, which ends with a measure.
    config.max_iterations = c.iterations;
    SolveSession other;
    const SolveResult whole = result_of(other, config);
    ASSERT_TRUE(whole.success) << whole.error;
    EXPECT_EQ(result.iterations, c.iterations);
    EXPECT_GT(result.exploitability, 0);
    EXPECT_EQ(result.exploitability, whole.exploitability);
    EXPECT_EQ(result.ev_oop, whole.ev_oop);
    EXPECT_EQ(result.root_action_freqs, whole.root_action_freqs);
    EXPECT_EQ(result.nodes->size(), whole.nodes->size());
  }

  // A cancel goes before it, and at the end it is too late.
  const auto ended = [&session](const char* at, bool cancel) {
    Reports reports;
    session.start(river_request(), reports.callback([&](const SolveProgress& report) {
      if (report.status.rfind(at, 0) != 0) return;
      session.stop_and_keep();
      if (cancel) session.cancel();
    }));
    const SolveResult result = reports.result();
    return result.stopped ? "Stopped" : result.success ? "Done" : result.error;
  };
  EXPECT_EQ(ended("Iter 1 |", true), "Cancelled");
  EXPECT_EQ(ended("Iter 3 |", false), "Done");
  EXPECT_EQ(ended("Finalizing: computing", false), "Done");
  EXPECT_TRUE(result_of(session, river_request()).success);
}

TEST(SolveSession, OneRunAtATime) {
  SolveSession session;
  SolveConfig endless = river_request();
  endless.max_iterations = kForever;
  endless.target_exploitability = -1;
  Reports first;
  ASSERT_TRUE(session.start(endless, first.callback()));
  first.wait_for(10);
  auto dropped = std::make_shared<int>(0);
  const std::weak_ptr<int> kept = dropped;
  EXPECT_FALSE(session.start(river_request(), [dropped = std::move(dropped)](const auto&) {
    ADD_FAILURE() << "a refused run reports";
  }));
  EXPECT_TRUE(kept.expired());
  EXPECT_TRUE(session.running());
  EXPECT_TRUE(is_empty(session.solved_spot()));
  first.wait_for(first.all().size() + 10);
  session.cancel();
  EXPECT_EQ(first.result().error, "Cancelled");

  // As soon as the last report is there, the next run can start.
  for (int i = 0; i < 20; ++i) EXPECT_TRUE(result_of(session, river_request()).success);
}

/// Also where the run ends at once, while the call that started it has hardly returned.
TEST(SolveSession, NoStartFromInsideACallback) {
  for (int i = 0; i < 50; ++i) {
    SolveSession session;
    Reports reports;
    std::atomic<int> started = 0;
    ASSERT_TRUE(session.start({}, reports.callback([&](const SolveProgress&) {
      if (session.start(river_request(), {})) ++started;
    })));
    reports.result();
    EXPECT_TRUE(result_of(session, river_request()).success);
    EXPECT_EQ(started, 0);
  }
}

TEST(SolveSession, ResultsLiveAsLongAsTheyAreRead) {
  SolveSession session;
  EXPECT_TRUE(is_empty(session.solved_spot()));
  // What is dropped during a run is that of the run before.
  Reports reports;
  ASSERT_TRUE(session.start(river_request(), reports.callback([&](const SolveProgress& report) {
    if (!report.result) session.clear();
  })));
  const SolveResult result = reports.result();
  const SolvedSpot held = session.solved_spot();
  ASSERT_FALSE(is_empty(held));
  session.clear();
  EXPECT_TRUE(is_empty(session.solved_spot()));
  EXPECT_EQ(held.solver->cf_values(*held.game)[0], result.ev_oop);
  EXPECT_EQ(held.game.use_count(), 1);

  // A new run begins without the results of the old one, and has objects of its own.
  ASSERT_TRUE(result_of(session, river_request()).success);
  const velmora::Game* const old_game = session.solved_spot().game.get();
  Reports second;
  std::atomic<bool> dropped = false;
  ASSERT_TRUE(session.start(river_request(), second.callback([&](const SolveProgress& report) {
    if (report.status == "Init: building game object...") dropped = is_empty(session.solved_spot());
  })));
  second.result();
  EXPECT_TRUE(dropped);
  EXPECT_NE(old_game, nullptr);
  EXPECT_EQ(held.solver->cf_values(*held.game)[1], result.ev_ip);
}

}  // namespace
}  // namespace session_test
