// The solver against the plain one, to the last bit of every table.
#include "plain_solver.h"

#include <algorithm>
#include <bit>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "instruction_set.h"
#include "node_locks.h"
#include "spots.h"

namespace {

using velmora::Game;
using velmora_test::make_game;
using velmora_test::Spot;

/// Bits of all tables, the exploitability and the values: the padding of rows left out.
template <typename Regrets, typename Sums>
std::vector<std::uint32_t> all_bits(const Game& game, const Regrets& regrets, const Sums& sums,
                                    float exploitability, const std::array<float, 2>& values) {
  std::vector<std::uint32_t> bits;
  const auto add = [&bits](float x) { bits.push_back(std::bit_cast<std::uint32_t>(x)); };
  for (std::size_t i = 0; i < game.nodes().size(); ++i) {
    const velmora::PlanNode& node = game.nodes()[i];
    if (node.kind != velmora::NodeKind::kDecision) continue;
    const std::size_t hands = game.num_hands(node.seat);
    for (const float* const table : {regrets(i), sums(i)}) {
      for (std::size_t a = 0; a < node.actions.size(); ++a) {
        for (std::size_t h = 0; h < hands; ++h) add(table[a * velmora::padded(hands) + h]);
      }
    }
  }
  add(exploitability);
  for (const float value : values) add(value);
  return bits;
}

struct How {
  std::uint32_t iterations = 6;
  bool compressed = false;
};

std::vector<std::uint32_t> plain_bits(const Game& game, const How& how) {
  velmora_plain::PlainSolver solver(game, 1, how.compressed);
  for (std::uint32_t i = 0; i < how.iterations; ++i) solver.run_iteration(i);
  return all_bits(
      game, [&](std::size_t node) { return solver.regrets(node); },
      [&](std::size_t node) { return solver.sums(node); }, solver.measure_exploitability(),
      solver.cf_values());
}

std::vector<std::uint32_t> fast_bits(Game& game, const How& how, std::uint64_t threads) {
  velmora::SolverOptions options;
  options.threads = threads;
  options.compressed_storage = how.compressed;
  velmora::DiscountedCfr solver(std::move(options));
  solver.prepare_states(game);
  for (std::uint32_t i = 0; i < how.iterations; ++i) solver.run_iteration(game, i);
  velmora::ScratchStack scratch;
  const velmora::SolverState& states = solver.states();
  return all_bits(
      game, [&](std::size_t node) { return states.regrets(states.node(node), scratch); },
      [&](std::size_t node) { return states.strategy_sums(states.node(node), scratch); },
      solver.measure_exploitability(game), solver.cf_values(game));
}

/// On every instruction set, and with several threads on the strongest.
void expect_same_bits(Game& game, const How& how = {}) {
  const std::vector<std::uint32_t> expected = plain_bits(game, how);
  const velmora::InstructionSet strongest = velmora::instruction_set();
  for (const velmora::InstructionSet set : velmora::supported_instruction_sets()) {
    velmora::use_instruction_set(set);
    EXPECT_TRUE(fast_bits(game, how, 1) == expected) << velmora::instruction_set_name(set);
  }
  velmora::use_instruction_set(strongest);
  for (const std::uint64_t threads : {2, 3}) {
    EXPECT_TRUE(fast_bits(game, how, threads) == expected) << threads << " threads";
  }
}

std::string random_range(std::mt19937& random, int hands) {
  static const std::string kRanks = "23456789TJQKA";
  std::string text;
  for (int i = 0; i < hands; ++i) {
    const std::size_t one = random() % 13;
    const std::size_t other = random() % 13;
    if (i > 0) text += ',';
    text += std::string{kRanks[std::max(one, other)], kRanks[std::min(one, other)]};
    if (one != other) text += random() % 2 ? "s" : "o";
    text += random() % 3 ? "" : ":0.35";
  }
  return text;
}

/// Any number of actions, sizes that end in all-ins on every street, one action for a seat that
/// may not bet.
Spot random_spot(std::mt19937& random, const char* board, int hands) {
  static const char* const kBets[] = {"50", "33,75", "25,60,120", "a", "20,40,60,80,100,140", ""};
  static const char* const kRaises[] = {"", "60", "3x,a", "2.5x"};
  Spot spot;
  spot.board = board;
  spot.oop_range = "AA," + random_range(random, hands);
  spot.ip_range = "KK," + random_range(random, hands);
  spot.pot = 40 + static_cast<int>(random() % 100);
  spot.stack = 30 + static_cast<int>(random() % 120);
  for (auto& sizes : spot.sizes) sizes = {kBets[random() % 6], kRaises[random() % 4]};
  if (random() % 2) {
    spot.rake_fraction = 0.05;
    spot.rake_cap = 4;
  }
  return spot;
}

void describe(const Spot& spot) {
  std::string sizes;
  for (const auto& [bets, raises] : spot.sizes) sizes += " [" + bets + " / " + raises + "]";
  ::testing::Test::RecordProperty("spot", spot.board + sizes);
}

TEST(PlainSolver, AgreesOnRandomRiversAndTurns) {
  std::mt19937 random(20);
  for (int round = 0; round < 24; ++round) {
    const char* const boards[] = {"Ks9h5d3c2s", "7h7d7c2sAs", "Ts9s8s2h", "Qd7h2c3s"};
    const char* const board = boards[round % 4];
    Spot spot = random_spot(random, board, 3 + round % 9);
    if (round % 4 >= 2) spot.sizes[2] = {"66", round % 8 < 4 ? "a" : ""};
    if (round >= 22) {  // Hands enough for the traversals to fan out.
      spot.oop_range = "22+,A2s+,KTs+,QTs+,AJo+";
      spot.ip_range = "66+,A8s+,KTs+,QJs,JTs,AQo+";
    }
    describe(spot);
    SCOPED_TRACE(testing::Message()
                 << round << ": " << board << " " << spot.oop_range << " | " << spot.ip_range);
    expect_same_bits(*make_game(spot));
  }
}

TEST(PlainSolver, AgreesOnFlopsWithAndWithoutFoldedSuits) {
  std::mt19937 random(21);
  for (const char* const board : {"Ah7h2h", "Ks8d3c", "9s9d4s"}) {
    Spot spot = random_spot(random, board, 4);
    spot.sizes = {{{"75", "a"}, {"a", ""}, {"60", ""}}};
    spot.stack = 90;
    SCOPED_TRACE(board);
    expect_same_bits(*make_game(spot), {.iterations = 3});
  }
}

TEST(PlainSolver, AgreesWithLocksAndInCompressedStorage) {
  std::mt19937 random(22);
  for (int round = 0; round < 6; ++round) {
    Spot spot = random_spot(random, round % 2 ? "Ts9s8s2h" : "Ks9h5d3c2s", 6);
    spot.sizes[1] = {"75", "a"};
    spot.sizes[2] = {"50,120", "a"};
    const auto game = make_game(spot);
    SCOPED_TRACE(round);
    if (round < 4) {
      std::vector<velmora::NodeLockEntry> locks;
      for (std::uint64_t node = 0; node < game->nodes().size(); node += 1 + random() % 5) {
        locks.push_back({node, random() % 2 ? "AA" : "KK", random() % 2, 0.3F});
      }
      velmora::build_node_locks(*game, locks);
    }
    expect_same_bits(*game, {.iterations = 6, .compressed = round >= 2});
  }
}

}  // namespace
