// Payoffs of terminal nodes.
#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "discounted_cfr.h"
#include "spots.h"

namespace {

using velmora::kIp;
using velmora::kNoCard;
using velmora::kOop;
using velmora::Seat;
using velmora_test::make_game;
using velmora_test::solve;

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
    const auto solver = solve(*game, {.iterations = 0});
    const auto node_at = [&](std::initializer_list<std::size_t> path) {
      std::size_t node = 0;
      for (const std::size_t action : path) node = game->nodes()[node].children[action];
      return node;
    };
    // OOP's queens split with IP's, its kings win: two pairs of hands that can meet.
    const std::size_t kings = velmora::rank_of(velmora::low_card(game->cards().pockets(kOop)[0])) ==
                                      velmora::rank_from_char('K')
                                  ? 0
                                  : 1;
    const auto chips = [&](std::initializer_list<std::size_t> path, Seat seat, std::size_t hand) {
      const std::vector<float> reach(game->num_hands(velmora::opponent_of(seat)), 1.0F);
      return 2 * solver->compute_cfvalue(*game, node_at(path), seat, reach)[hand];
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
  const auto solver = solve(*game, {.iterations = 0});
  for (std::size_t index = 0; index < game->nodes().size(); ++index) {
    const velmora::PlanNode& node = game->nodes()[index];
    const bool blocked = node.turn == velmora::parse_card("As");
    if (node.kind != velmora::NodeKind::kTerminal || !blocked) continue;
    if (node.river == kNoCard ? ++on_turn == 0 : ++on_river > 20) continue;
    for (const Seat seat : {kOop, kIp}) {
      EXPECT_EQ(solver->compute_cfvalue(*game, index, seat), std::vector<float>(2, 0.0F));
    }
  }
  EXPECT_GT(on_turn, 1U);
  EXPECT_GT(on_river, 20U);
}

}  // namespace
