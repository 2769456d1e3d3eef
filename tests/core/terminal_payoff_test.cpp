// Payoffs of terminal nodes, hand against hand.
#include <algorithm>
#include <bit>
#include <random>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hand_eval.h"
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

/// Chips that `own` gains against `opp` at a complete board; 0 where cards collide.
double pair_showdown(velmora::Pocket own, velmora::Pocket opp,
                     const std::vector<velmora::CardCode>& board, double pot, double rake) {
  velmora::CardMask dead = 0;
  for (const auto card : board) dead |= velmora::mask_of(card);
  const auto mine = velmora::mask_of_pocket(own);
  const auto theirs = velmora::mask_of_pocket(opp);
  if ((mine & theirs) || ((mine | theirs) & dead)) return 0;
  const auto a = velmora::evaluate_hand(own, board);
  const auto b = velmora::evaluate_hand(opp, board);
  return a > b ? pot / 2 - rake : a < b ? -pot / 2 : -rake / 2;
}

TEST(TerminalPayoff, MatchesPairByPair) {
  struct Case {
    std::string board;
    bool fold;
    double fraction, cap;
  };
  for (const Case& c : {Case{"Ah9s5d3c2s", false, 0, 0}, Case{"Ah9s5d3c2s", false, 0.05, 3},
                        Case{"QhQsQdQc2s", false, 0.05, 100}, Case{"Ah9s5d3c2s", true, 0.05, 3},
                        Case{"Ah9s5d3c2s", true, 0.05, 0}, Case{"Ah9s5d3c", true, 0, 0},
                        Case{"Ah9s5d", true, 0.01, 100}, Case{"Ah9s5d3c", false, 0, 0},
                        Case{"Ah9s5d3c", false, 0.05, 3}}) {
    Spot spot = spot_on(c.board);
    spot.rake_fraction = c.fraction;
    spot.rake_cap = c.cap;
    const auto game = make_game(spot);
    const velmora::CardContext& cards = game->cards();
    PlanNode node;
    node.kind = velmora::NodeKind::kTerminal;
    node.turn = cards.board().turn;
    node.river = cards.board().river;
    node.commit = 40;
    node.pot = c.fold ? 230 : 180;  // An uncalled 50 lies in the middle after a fold.
    node.last_action = c.fold ? velmora::ActionKind::kFold : velmora::ActionKind::kCall;
    node.last_actor = kIp;
    const double rake = std::min(c.cap, 180 * c.fraction);

    std::vector<std::vector<velmora::CardCode>> boards = {cards.board_cards()};
    if (!c.fold && boards[0].size() == 4) {
      boards.clear();
      for (velmora::CardCode river = 0; river < velmora::kNumCards; ++river) {
        if (cards.board_mask() & velmora::mask_of(river)) continue;
        boards.push_back(cards.board_cards());
        boards.back().push_back(river);
      }
      ASSERT_EQ(boards.size(), 48U);
    }

    for (const Seat seat : {kOop, kIp}) {
      SCOPED_TRACE(testing::Message() << c.board << (c.fold ? " fold" : " showdown") << " rake "
                                      << c.fraction << " cap " << c.cap << " seat " << int{seat});
      const auto& own = cards.pockets(seat);
      const auto& opp = cards.pockets(velmora::opponent_of(seat));
      const std::vector<float> reach = random_reach(opp.size(), 7U + seat);
      const std::vector<float> result = evaluate(*game, node, seat, {reach}).front();
      for (std::size_t h = 0; h < own.size(); ++h) {
        double expected = 0;
        for (std::size_t o = 0; o < opp.size(); ++o) {
          double amount = 0;
          if (c.fold) {
            const bool meet = !(velmora::mask_of_pocket(own[h]) & velmora::mask_of_pocket(opp[o]));
            amount = !meet ? 0 : seat == kIp ? -90.0 : 90.0 - rake;
          } else {
            for (const auto& board : boards) {
              amount += pair_showdown(own[h], opp[o], board, 180, rake);
            }
            amount /= static_cast<double>(boards.size());
          }
          expected += amount * static_cast<double>(reach[o]);
        }
        expected /= cards.total_matchup_weight();
        EXPECT_NEAR(result[h], expected, 1e-6 * 180) << h;
      }
    }
  }
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

TEST(TerminalPayoff, RakeIsCappedAndNeverUncapped) {
  struct Case {
    double fraction, cap, pot, rake;
  };
  for (const Case& c : {Case{0.05, 3, 100, 3}, Case{0.05, 3, 40, 2}, Case{0.05, 0, 100, 0}}) {
    Spot spot = spot_on("Ah9s5d3c2s");
    spot.rake_fraction = c.fraction;
    spot.rake_cap = c.cap;
    EXPECT_DOUBLE_EQ(velmora::rake_of(*make_game(spot), c.pot), c.rake);
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
