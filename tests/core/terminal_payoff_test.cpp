// Payoffs of terminal nodes.
#include <algorithm>
#include <bit>
#include <random>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "instruction_set.h"
#include "payoffs.h"
#include "plain_kernels.h"
#include "rows.h"
#include "spots.h"
#include "street_shape.h"

namespace {

using velmora::kIp;
using velmora::kNoCard;
using velmora::kOop;
using velmora::PlanNode;
using velmora::Seat;
using velmora_test::make_game;
using velmora_test::Spot;

Spot spot_on(const std::string& board) {
  Spot spot;
  spot.board = board;
  spot.oop_range = "AA,KK:0.5,A5s,76s,T9s:0.25,AKo,72o";
  spot.ip_range = "AK,QQ,99,55:0.5,A9s,64s,T9s";
  spot.pot = 100;
  spot.stack = 200;
  spot.sizes = {{{"a", ""}, {"a", ""}, {"a", ""}}};
  return spot;
}

/// Reach of both signs of zero and of many magnitudes, as deep nodes have it.
std::vector<float> random_reach(std::size_t n, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<float> value(0.0F, 1.0F);
  std::vector<float> reach(n);
  for (float& r : reach) r = random() % 4 == 0 ? 0.0F : value(random) * value(random);
  return reach;
}

/// Several reaches at one terminal node, in one call.
std::vector<std::vector<float>> evaluate(const velmora::Game& game, const PlanNode& node, Seat seat,
                                         const std::vector<std::vector<float>>& reaches) {
  const velmora::StreetShape::Node shape = velmora::shape_node(game, node);
  const std::size_t opp_row = velmora::padded(game.num_hands(velmora::opponent_of(seat)));
  const std::size_t own_row = velmora::padded(game.num_hands(seat));
  velmora::FloatList reach_rows;
  velmora::FloatList result_rows;
  float* const reach = reach_rows.rows(reaches.size(), opp_row);
  float* const results = result_rows.rows(reaches.size(), own_row);
  std::fill_n(results, reaches.size() * own_row, 99.0F);
  std::vector<velmora::PayoffLane> lanes;
  for (std::size_t i = 0; i < reaches.size(); ++i) {
    std::copy(reaches[i].begin(), reaches[i].end(), reach + i * opp_row);
    lanes.push_back({reach + i * opp_row, results + i * own_row, shape.shares[seat]});
  }
  velmora::ScratchStack scratch;
  {
    // What was there before must not matter.
    const velmora::ScratchStack::Frame frame(scratch);
    std::fill_n(scratch.take<float>(1 << 20), 1 << 20, 7e34F);
  }
  velmora::MemoryAhead ahead;
  const velmora::PayoffSeat payoff_seat{game.cards(), seat};
  if (shape.kind == velmora::StreetShape::Kind::kFold) {
    fold_payoff(payoff_seat, node.turn, node.river, lanes, scratch, ahead);
  } else if (shape.kind == velmora::StreetShape::Kind::kAllIn) {
    runout_payoff(payoff_seat, node.turn, shape.raked, lanes, scratch);
  } else if (shape.raked) {
    showdown_payoff_raked(payoff_seat, node.turn, node.river, lanes, scratch, ahead);
  } else {
    showdown_payoff(payoff_seat, node.turn, node.river, lanes, scratch, ahead);
  }
  std::vector<std::vector<float>> values;
  for (std::size_t i = 0; i < reaches.size(); ++i) {
    values.emplace_back(results + i * own_row, results + i * own_row + game.num_hands(seat));
  }
  return values;
}

/// Bits, so that a zero of the other sign counts as different.
std::vector<std::uint32_t> bits(const std::vector<float>& row) {
  std::vector<std::uint32_t> result;
  for (const float x : row) result.push_back(std::bit_cast<std::uint32_t>(x));
  return result;
}

TEST(TerminalPayoff, ManyNodesTogetherGiveTheBitsOfEachAlone) {
  const velmora::InstructionSet strongest = velmora::instruction_set();
  for (const char* board : {"Ah9s5d3c2s", "QhQsQdQc2s", "Ah9s5d3c", "Ah9s5d"}) {
    for (const double cap : {0.0, 4.0}) {
      Spot spot = spot_on(board);
      spot.oop_range += ",88-22,K9s+,QTs+,Q9o";
      spot.rake_fraction = 0.05;
      spot.rake_cap = cap;
      const auto game = make_game(spot);
      for (const auto last : {velmora::ActionKind::kFold, velmora::ActionKind::kCall}) {
        PlanNode node;
        node.kind = velmora::NodeKind::kTerminal;
        node.turn = game->cards().board().turn;
        node.river = game->cards().board().river;
        node.commit = 30;
        node.pot = 160;
        node.last_action = last;
        for (const Seat seat : {kOop, kIp}) {
          // Dense, sparse, empty, alive in one hand only; as many as fill batches in every way.
          std::vector<std::vector<float>> reaches;
          const std::size_t hands = game->num_hands(velmora::opponent_of(seat));
          for (unsigned i = 0; i < 21; ++i) {
            reaches.push_back(random_reach(hands, i));
            if (i % 5 == 3) std::fill(reaches[i].begin(), reaches[i].end(), 0.0F);
            if (i % 5 >= 3) reaches[i][i % hands] = i % 2 ? 0.0F : 0.3F;
          }
          for (const auto set : velmora::supported_instruction_sets()) {
            velmora::use_instruction_set(set);
            for (const std::size_t count : {1U, 4U, 5U, 8U, 21U}) {
              const std::vector<std::vector<float>> some(reaches.begin(), reaches.begin() + count);
              const auto values = evaluate(*game, node, seat, some);
              for (std::size_t i = 0; i < count; ++i) {
                std::vector<float> expected(game->num_hands(seat));
                velmora_plain::terminal_payoff(*game, node, seat, reaches[i], expected);
                ASSERT_EQ(bits(values[i]), bits(expected))
                    << board << " cap " << cap << " seat " << int{seat} << " lane " << i << " of "
                    << count << " on " << velmora::instruction_set_name(set)
                    << (last == velmora::ActionKind::kFold ? " fold" : " showdown");
              }
            }
          }
          velmora::use_instruction_set(strongest);
        }
      }
    }
  }
}

/// A check-down, a called bet of 50 and a fold to it, with the figures worked out by hand: the rake
/// is a share of what both put in, at most the cap, and is taken from the winner; a split pot pays
/// a half of it each. A bet that was not called is not raked.
TEST(TerminalPayoff, RakeByHand) {
  struct Case {
    double fraction, cap;
    double checked, called, folded, split;  ///< Rakes: pots of 100, 200 and 100, half of 100's.
  };
  for (const Case& c :
       {Case{0.05, 3, 3, 3, 3, 1.5}, Case{0.05, 7, 5, 7, 5, 2.5}, Case{0.05, 100, 5, 10, 5, 2.5},
        Case{0.02, 0.5, 0.5, 0.5, 0.5, 0.25}, Case{0.05, 0, 0, 0, 0, 0}, Case{0, 5, 0, 0, 0, 0}}) {
    SCOPED_TRACE(testing::Message() << c.fraction << " cap " << c.cap);
    const auto game = make_game({.board = "Ah9s5d3c2s",
                                 .oop_range = "KsKh,QsQh",
                                 .ip_range = "QdQc",
                                 .sizes = {{{}, {}, {"50", ""}}},
                                 .rake_fraction = c.fraction,
                                 .rake_cap = c.cap});
    const auto node_at = [&](std::initializer_list<std::size_t> path) {
      std::size_t node = 0;
      for (const std::size_t action : path) node = game->nodes()[node].children[action];
      return game->nodes()[node];
    };
    // OOP's queens split with IP's, its kings win: two pairs of hands that can meet.
    const std::size_t kings = velmora::rank_of(velmora::low_card(game->cards().pockets(kOop)[0])) ==
                                      velmora::rank_from_char('K')
                                  ? 0
                                  : 1;
    const auto chips = [&](std::initializer_list<std::size_t> path, Seat seat, std::size_t hand) {
      const std::vector<float> reach(game->num_hands(velmora::opponent_of(seat)), 1.0F);
      return 2 * evaluate(*game, node_at(path), seat, {reach}).front()[hand];
    };
    EXPECT_NEAR(chips({0, 0}, kOop, kings), 50 - c.checked, 1e-4);
    EXPECT_NEAR(chips({0, 0}, kOop, 1 - kings), -c.split, 1e-4);
    EXPECT_NEAR(chips({0, 0}, kIp, 0), -50 - c.split, 1e-4);
    EXPECT_NEAR(chips({1, 1}, kOop, kings), 100 - c.called, 1e-4);
    EXPECT_NEAR(chips({1, 0}, kOop, kings), 50 - c.folded, 1e-4);
    EXPECT_NEAR(chips({1, 0}, kIp, 0), 2 * -50, 1e-4);
    EXPECT_NEAR(chips({0, 1, 0}, kIp, 0), 2 * (50 - c.folded), 1e-4);
  }
}

/// A dealt card that every hand of both seats holds leaves nobody: all values are 0.
TEST(TerminalPayoff, ACardThatBlocksAllHands) {
  const auto game = make_game({.board = "Kh9d4s",
                               .oop_range = "AsAh,AsQs",
                               .ip_range = "AsAd,AsJs",
                               .sizes = {{{}, {"50", ""}, {"50", ""}}}});
  std::size_t on_turn = 0;
  std::size_t on_river = 0;
  for (const PlanNode& node : game->nodes()) {
    const bool blocked = node.turn == velmora::parse_card("As");
    if (node.kind != velmora::NodeKind::kTerminal || !blocked) continue;
    if (node.river == kNoCard ? ++on_turn == 0 : ++on_river > 20) continue;
    for (const Seat seat : {kOop, kIp}) {
      EXPECT_EQ(evaluate(*game, node, seat, {{1, 1}, {1, 0}})[0], std::vector<float>(2, 0.0F));
    }
  }
  EXPECT_GT(on_turn, 1U);
  EXPECT_GT(on_river, 20U);
}

}  // namespace
