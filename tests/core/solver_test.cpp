// The solver against known answers: closed-form equilibria, values found hand by hand, and what
// must not change a result.
#include <cmath>
#include <numeric>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "brute_force.h"
#include "discounted_cfr.h"
#include "node_locks.h"
#include "spots.h"

namespace {

using velmora::kIp;
using velmora::kOop;
using velmora::Seat;
using velmora_test::make_game;
using velmora_test::Play;
using velmora_test::solve;
using velmora_test::SolveHow;
using velmora_test::Spot;

Spot river_spot() {
  Spot spot;
  spot.board = "Ks9h5d3c2s";
  spot.oop_range = "AA,KK:0.5,QQ,99,A5s,76s,T9s,AKo:0.25";
  spot.ip_range = "AK,KQs,QJs,88,55:0.5,A9s,64s";
  spot.pot = 60;
  spot.stack = 150;
  spot.sizes[2] = {"50,100", "60"};
  return spot;
}

Spot turn_spot() {
  Spot spot;
  spot.board = "Ah7h2h9c";
  spot.oop_range = "AA,77,KQs,JTs,98s";
  spot.ip_range = "A9s,22,KJs,T8s";
  spot.pot = 50;
  spot.stack = 90;
  spot.sizes[1] = {"70", "50"};
  spot.sizes[2] = {"60", "a"};
  return spot;
}

/// The ranges tell apart suits that the board doesn't.
Spot lopsided_turn_spot() {
  Spot spot = turn_spot();
  spot.oop_range = "AA,77,KhQh,KsQs,JTs,98s";
  spot.ip_range = "A9s,22,KhJh,KdJd,T8s";
  return spot;
}

/// Three suits of the flop are alike, so most deals are folded.
Spot flop_spot() {
  Spot spot;
  spot.board = "Ah7h2h";
  spot.oop_range = "AKs,66:0.5";
  spot.ip_range = "QQ,A7s";
  spot.pot = 40;
  spot.stack = 45;
  spot.sizes = {{{"100", "a"}, {"a", ""}, {"75", ""}}};
  return spot;
}

// ---- Known equilibria ----

struct PolarGame {
  std::int32_t pot;
  std::int32_t bet;
};

/// A river bet of B into P by a range of nuts and air against a bluff-catcher: the bettor bluffs
/// B / (P + B) as often as it bets for value, the catcher calls P / (P + B).
TEST(KnownEquilibria, PolarRangeAgainstABluffCatcher) {
  for (const auto& [pot, bet] : {PolarGame{100, 100}, PolarGame{100, 50}, PolarGame{60, 120}}) {
    SCOPED_TRACE(testing::Message() << bet << " into " << pot);
    // OOP holds the nuts (AA) or air (the 54 that plays the board's queen), IP holds KK.
    Spot spot;
    spot.board = "QcJd8h7s2c";
    spot.oop_range = "AcAd,AhAs,5c4d,5d4c,5h4s,5s4h";
    spot.ip_range = "KcKd";
    spot.pot = pot;
    spot.stack = bet;
    spot.sizes[2] = {"a", ""};
    const auto game = make_game(spot);
    const auto solver = solve(*game, {.iterations = 4000});
    EXPECT_LT(solver->exploitability(), 0.002 * pot);

    const std::vector<float> root = solver->average_strategy(0);
    const std::size_t hands = game->num_hands(kOop);
    double value_bets = 0;
    double bluffs = 0;
    for (std::size_t h = 0; h < hands; ++h) {
      const bool nuts = velmora::rank_of(velmora::low_card(game->cards().pockets(kOop)[h])) == 12;
      (nuts ? value_bets : bluffs) += static_cast<double>(root[hands + h]);
    }
    EXPECT_NEAR(value_bets, 2.0, 0.02);
    EXPECT_NEAR(bluffs / value_bets, static_cast<double>(bet) / (pot + bet), 0.02);

    const std::size_t facing_bet = game->nodes()[0].children[1];
    const std::vector<float> catcher = solver->average_strategy(facing_bet);
    EXPECT_NEAR(catcher[1], static_cast<double>(pot) / (pot + bet), 0.02);

    // The bettor wins the pot with the nuts and the share of it that its bluffs are worth:
    // indifference makes the whole range worth value hands times (P + B) / P, less half of the pot.
    const double share = 2.0 / 6.0 * (1.0 + static_cast<double>(bet) / (pot + bet));
    EXPECT_NEAR(solver->cf_values(*game)[kOop], pot * share - pot / 2.0, 0.01 * pot);
  }
}

TEST(KnownEquilibria, ExploitabilityGoesToZero) {
  for (const Spot& spot : {river_spot(), turn_spot(), flop_spot()}) {
    SCOPED_TRACE(spot.board);
    const auto game = make_game(spot);
    const auto solver = solve(*game, {.iterations = 600});
    EXPECT_GE(solver->exploitability(), -1e-4);
    EXPECT_LT(solver->exploitability(), 0.004 * spot.pot);
  }
}

// ---- Values found the slow way ----

struct BruteCase {
  Spot spot;
  std::uint32_t iterations;
};

void expect_brute_force_values(const velmora::Game& game, const velmora::DiscountedCfr& solver) {
  const double scale = game.settings().starting_pot;
  const auto expected = solver.cf_values(game);
  const auto best = solver.best_cf_values(game);
  double gains = 0;
  for (const Seat seat : {kOop, kIp}) {
    const double average_gain = brute_force_gain(game, solver, seat, Play::kAverage);
    const double best_gain = brute_force_gain(game, solver, seat, Play::kBestResponse);
    EXPECT_NEAR(expected[seat], average_gain, 2e-5 * scale);
    EXPECT_NEAR(best[seat], best_gain, 2e-5 * scale);
    gains += best_gain - average_gain;
    const std::vector<float> by_hand = solver.compute_cfvalue(game, 0, seat);
    const std::vector<double> brute = brute_force_values(game, solver, seat, Play::kAverage);
    for (std::size_t h = 0; h < brute.size(); ++h) EXPECT_NEAR(by_hand[h], brute[h], 1e-5 * scale);
  }
  EXPECT_NEAR(solver.measure_exploitability(game), gains / 2, 4e-5 * scale);
}

TEST(BruteForce, AgreesWithAndWithoutRake) {
  for (BruteCase c : {BruteCase{river_spot(), 40}, BruteCase{turn_spot(), 15},
                      BruteCase{lopsided_turn_spot(), 15}, BruteCase{flop_spot(), 6}}) {
    // A cap of a single chip, or less, is lost to the seats all the same.
    for (const double cap : {0.0, 4.0, 1.0, 0.4}) {
      SCOPED_TRACE(testing::Message() << c.spot.board << " rake cap " << cap);
      c.spot.rake_fraction = cap > 0 ? 0.05 : 0.0;
      c.spot.rake_cap = cap;
      const auto game = make_game(c.spot, velmora::SuitFolding::kOff);
      expect_brute_force_values(*game, *solve(*game, {.iterations = c.iterations}));
    }
  }
}

TEST(BruteForce, AgreesWithLocks) {
  for (const BruteCase& c : {BruteCase{river_spot(), 40}, BruteCase{flop_spot(), 6}}) {
    SCOPED_TRACE(c.spot.board);
    const auto game = make_game(c.spot, velmora::SuitFolding::kOff);
    const std::size_t facing_bet = game->nodes()[0].children[1];
    const std::vector<velmora::NodeLockEntry> locks = {{0, "AKs", 0, 0.3F},
                                                       {0, "AA", 1, 0.5F},
                                                       {facing_bet, "QQ", 0, 1.0F},
                                                       {facing_bet, "88", 1, 0.8F}};
    velmora::build_node_locks(*game, locks);
    expect_brute_force_values(*game, *solve(*game, {.iterations = c.iterations}));
  }
}

TEST(BruteForce, FindsTheGainOfAUniformStrategy) {
  // Without a single iteration all strategies are uniform, and far from an equilibrium.
  const auto game = make_game(river_spot());
  const auto solver = solve(*game, {.iterations = 0});
  expect_brute_force_values(*game, *solver);
  EXPECT_GT(solver->measure_exploitability(*game), 1.0F);
}

// ---- What must not change a result ----

// Later iterations are left out here: where actions tie, as they do in these spots, the last bit of
// a regret decides between them, and the paths part.
TEST(Invariants, SuitFoldingChangesNoValue) {
  for (Spot spot : {turn_spot(), flop_spot()}) {
    SCOPED_TRACE(spot.board);
    const auto folded = make_game(spot);
    const auto whole = make_game(spot, velmora::SuitFolding::kOff);
    ASSERT_LT(folded->nodes().size(), whole->nodes().size());
    const auto folded_solver = solve(*folded, {.iterations = 5});
    const auto whole_solver = solve(*whole, {.iterations = 5});
    EXPECT_NEAR(folded_solver->exploitability(), whole_solver->exploitability(), 1e-6 * spot.pot);
    for (const Seat seat : {kOop, kIp}) {
      const auto a = folded_solver->compute_cfvalue(*folded, 0, seat);
      const auto b = whole_solver->compute_cfvalue(*whole, 0, seat);
      for (std::size_t h = 0; h < a.size(); ++h) EXPECT_NEAR(a[h], b[h], 1e-6 * spot.pot);
    }
  }
}

/// Every number that a solve ends with.
std::vector<float> all_numbers(const velmora::Game& game, const velmora::DiscountedCfr& solver) {
  std::vector<float> numbers = {solver.exploitability()};
  for (const float value : solver.cf_values(game)) numbers.push_back(value);
  for (const float value : solver.best_cf_values(game)) numbers.push_back(value);
  for (std::size_t node = 0; node < game.nodes().size(); ++node) {
    const std::vector<float> strategy = solver.average_strategy(node);
    numbers.insert(numbers.end(), strategy.begin(), strategy.end());
  }
  return numbers;
}

TEST(Invariants, CompressedStorageStaysClose) {
  for (const Spot& spot : {river_spot(), turn_spot(), flop_spot()}) {
    SCOPED_TRACE(spot.board);
    const auto game = make_game(spot);
    const auto plain = solve(*game, {.iterations = 100});
    const auto plain_values = plain->cf_values(*game);
    const auto compressed = solve(*game, {.iterations = 100, .threads = 2, .compressed = true});
    EXPECT_TRUE(game->compressed_storage());
    EXPECT_NEAR(compressed->cf_values(*game)[kOop], plain_values[kOop], 0.01 * spot.pot);
    EXPECT_NEAR(compressed->exploitability(), plain->exploitability(), 0.01 * spot.pot);
  }
}

TEST(Invariants, ASecondRunStartsOver) {
  const auto game = make_game(river_spot());
  const auto solver = solve(*game, {.iterations = 10});
  const auto first = all_numbers(*game, *solver);
  solver->run(*game);
  EXPECT_TRUE(all_numbers(*game, *solver) == first);
}

// ---- Locks ----

TEST(Locks, ALockedHandKeepsItsMixAndTheNodeLearnsNothing) {
  const auto game = make_game(river_spot());
  velmora::build_node_locks(*game, std::vector<velmora::NodeLockEntry>{{0, "AA", 1, 0.6F}});
  for (const bool compressed : {false, true}) {
    const auto solver = solve(*game, {.iterations = 60, .compressed = compressed});
    const std::vector<float> root = solver->average_strategy(0);
    const std::size_t hands = game->num_hands(kOop);
    ASSERT_EQ(root.size(), hands * 3);
    const float tolerance = compressed ? 1e-3F : 1e-6F;
    for (std::size_t h = 0; h < hands; ++h) {
      const bool locked = velmora::hand_class_label(game->cards().pockets(kOop)[h]) == "AA";
      EXPECT_NEAR(root[h], locked ? 0.2F : 1.0F / 3, tolerance);
      EXPECT_NEAR(root[hands + h], locked ? 0.6F : 1.0F / 3, tolerance);
      EXPECT_NEAR(root[2 * hands + h], locked ? 0.2F : 1.0F / 3, tolerance);
    }
  }
}

// ---- The driver ----

/// The strategy sums start again at each power of 4.
TEST(Driver, DiscountsByIteration) {
  struct Row {
    std::uint32_t i;
    double alpha, gamma;
  };
  for (const Row& row : {Row{1, 0, 0}, Row{2, 0.5, 0.125}, Row{3, 0.73880, 8.0 / 27},
                         Row{4, 0.83861, 0}, Row{5, 8.0 / 9, 0.125}, Row{15, 0.98126, 0.77025},
                         Row{16, 0.98307, 0}, Row{64, 0.99801, 0}}) {
    const auto params = velmora::discount_params(row.i);
    EXPECT_NEAR(params.alpha_t, row.alpha, 1e-5) << row.i;
    EXPECT_EQ(params.beta_t, 0.5F);
    EXPECT_NEAR(params.gamma_t, row.gamma, 1e-5) << row.i;
  }
}

struct RunLog {
  std::vector<std::uint32_t> measured;  ///< Iterations at which the exploitability changed.
  std::vector<float> exploitability;    ///< By iteration.
};

RunLog run_logged(velmora::Game& game, velmora::SolverOptions options, std::uint32_t cancel_after,
                  std::uint32_t& iterations_done) {
  RunLog log;
  std::uint32_t last = 0;
  options.progress = [&](std::uint32_t i, float exploitability, double ms) {
    EXPECT_EQ(i, last + 1);
    EXPECT_GE(ms, 0);
    last = i;
    const float before = log.exploitability.empty() ? 0 : log.exploitability.back();
    if (exploitability != before) log.measured.push_back(i);
    log.exploitability.push_back(exploitability);
  };
  options.cancel = [&] { return cancel_after != 0 && last >= cancel_after; };
  velmora::DiscountedCfr solver(std::move(options));
  solver.run(game);
  iterations_done = solver.iterations_done();
  return log;
}

TEST(Driver, MeasuresAtTheIntervalAndAtTheEnd) {
  struct Row {
    std::uint32_t max_iterations, interval, cancel_after, done;
    float target;
    std::vector<std::uint32_t> measured;
  };
  const auto game = make_game(river_spot());
  for (const Row& row :
       {Row{120, 50, 0, 120, 0, {50, 100, 120}}, Row{70, 0, 0, 70, 1e9F, {70}},
        Row{200, 50, 0, 50, 1e9F, {50}}, Row{200, 50, 60, 60, 0, {50}}, Row{0, 50, 0, 0, 0, {}}}) {
    velmora::SolverOptions options;
    options.max_iterations = row.max_iterations;
    options.check_interval = row.interval;
    options.target_exploitability = row.target;
    std::uint32_t done = 0;
    const RunLog log = run_logged(*game, options, row.cancel_after, done);
    EXPECT_EQ(done, row.done);
    EXPECT_EQ(log.exploitability.size(), row.done);
    EXPECT_THAT(log.measured, testing::ElementsAreArray(row.measured));
  }
}

TEST(Driver, QueriesThatFitNothingAreEmptyOrZero) {
  const auto game = make_game(river_spot());
  const auto solver = solve(*game, {.iterations = 3});
  std::size_t terminal = 0;
  while (game->nodes()[terminal].kind != velmora::NodeKind::kTerminal) ++terminal;
  EXPECT_TRUE(solver->average_strategy(terminal).empty());
  EXPECT_TRUE(solver->average_strategy(game->nodes().size()).empty());
  EXPECT_TRUE(solver->average_action_frequencies(terminal).empty());
  const std::vector<float> wrong_length(3, 1.0F);
  EXPECT_THAT(solver->compute_cfvalue(*game, 0, kOop, wrong_length), testing::Each(0.0F));
  const std::vector<float> frequencies = solver->average_action_frequencies(0);
  EXPECT_NEAR(std::accumulate(frequencies.begin(), frequencies.end(), 0.0), 1.0, 1e-6);
}

/// Number of measures after which a sequence counts as stalled; 0 if it never does.
template <typename Measure>
std::size_t stalled_after(const Measure& measure) {
  velmora::StallWatch watch;
  for (std::size_t k = 1; k <= 4000; ++k) {
    if (watch.add(static_cast<float>(measure(static_cast<double>(k))))) return k;
  }
  return 0;
}

TEST(StallWatch, TellsASlowFallFromALimit) {
  EXPECT_EQ(stalled_after([](double k) { return 5 / k; }), 0U);
  EXPECT_EQ(stalled_after([](double k) { return 5 / std::sqrt(k); }), 0U);
  EXPECT_EQ(stalled_after([](double k) { return 5 / std::pow(k, 0.1); }), 0U);
  // Averages that start again leave steps behind.
  EXPECT_EQ(stalled_after([](double k) { return 1 / k + (k > 20 && k < 30 ? 1.0 : 0.0); }), 0U);
  EXPECT_EQ(stalled_after([](double) { return 3.0; }), 10U);
  // Half of the falling part must be behind: 1 + 1/k loses a hundredth from 50 to 100.
  EXPECT_NEAR(static_cast<double>(stalled_after([](double k) { return 1 + 1 / k; })), 100, 5);
  EXPECT_EQ(stalled_after([](double) { return 0.0; }), 0U);
}

}  // namespace
