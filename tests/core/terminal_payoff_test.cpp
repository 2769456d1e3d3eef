// Payoffs of terminal nodes, hand against hand.
#include "terminal_payoff.h"

#include <algorithm>
#include <random>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hand_eval.h"
#include "river_payoffs.h"
#include "spots.h"

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
      std::vector<float> result(own.size(), 99.0F);
      velmora::terminal_payoff(*game, node, seat, reach, result);
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

TEST(TerminalPayoff, LeavesZerosWhereNothingFits) {
  const auto game = make_game(spot_on("Ah9s5d3c2s"));
  PlanNode node;
  node.kind = velmora::NodeKind::kTerminal;
  node.turn = game->cards().board().turn;
  node.river = game->cards().board().river;
  node.pot = 100;
  node.last_action = velmora::ActionKind::kCheck;
  std::vector<float> result(game->num_hands(kOop), 5.0F);
  const std::vector<float> no_reach(game->num_hands(kIp), 0.0F);
  const std::vector<float> short_reach(2, 1.0F);
  for (const auto& reach : {no_reach, short_reach}) {
    std::fill(result.begin(), result.end(), 5.0F);
    velmora::terminal_payoff(*game, node, kOop, reach, result);
    EXPECT_THAT(result, testing::Each(0.0F));
  }
  EXPECT_FALSE(velmora::showdown_payoff(*game, node, kOop, short_reach, result));
  node.river = kNoCard;  // No list for a board without its river.
  EXPECT_FALSE(velmora::showdown_payoff_raked(*game, node, kOop, no_reach, result));
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

}  // namespace
