#include "game.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include <gtest/gtest.h>

#include "node_locks.h"
#include "spots.h"

namespace velmora {
namespace {

using velmora_test::make_game;
using velmora_test::Spot;

Spot spot_on(const std::string& board, const std::string& oop = "AA,KK:0.5,QJs",
             const std::string& ip = "QQ,AKs,76s") {
  return {.board = board,
          .oop_range = oop,
          .ip_range = ip,
          .pot = 100,
          .stack = 60,
          .sizes = {{{"50%", ""}, {"", ""}, {"a", ""}}}};
}

/// The image of a card where two suits change places.
CardCode exchanged(CardCode card, int s, int t) {
  const int suit = suit_of(card);
  return make_card(rank_of(card), suit == s ? t : suit == t ? s : suit);
}

/// At a chance node the children and the folded cards are the whole rest of the deck, and each
/// folded card is given back by a child of its rank with two suits exchanged in both hand lists.
void expect_whole_deal(const Game& game, const PlanNode& node) {
  std::set<CardCode> expected;
  const std::vector<CardCode> board = game.cards().board_cards();
  for (CardCode card = 0; card < kNumCards; ++card) {
    if (card != node.turn && std::count(board.begin(), board.end(), card) == 0) {
      expected.insert(card);
    }
  }
  std::vector<CardCode> dealt;
  for (const Action& action : node.actions) dealt.push_back(static_cast<CardCode>(action.amount));
  std::set<CardCode> covered(dealt.begin(), dealt.end());

  // The folded cards in ascending order are those that no child deals.
  std::vector<CardCode> folded;
  std::set_difference(expected.begin(), expected.end(), covered.begin(), covered.end(),
                      std::back_inserter(folded));
  const std::vector<std::uint8_t>& refs = game.chance_refs(node);
  ASSERT_EQ(refs.size(), folded.size());
  for (std::size_t i = 0; i < refs.size(); ++i) {
    ASSERT_LT(refs[i], dealt.size());
    const CardCode kept = dealt[refs[i]];
    ASSERT_EQ(rank_of(kept), rank_of(folded[i]));
    for (const Seat seat : {kOop, kIp}) {
      const std::vector<Pocket>& pockets = game.cards().pockets(seat);
      std::vector<Pocket> swapped = pockets;
      for (const auto& [x, y] : game.chance_swaps(node, i)[seat]) std::swap(swapped[x], swapped[y]);
      for (std::size_t h = 0; h < pockets.size(); ++h) {
        const int s = suit_of(folded[i]);
        const int t = suit_of(kept);
        ASSERT_EQ(swapped[h], make_pocket(exchanged(low_card(pockets[h]), s, t),
                                          exchanged(high_card(pockets[h]), s, t)));
      }
    }
  }
  EXPECT_TRUE(game.chance_swaps(node, refs.size())[kOop].empty());
  EXPECT_TRUE(game.chance_swaps(node, 1000)[kIp].empty());
}

TEST(Game, ChanceNodesDealTheWholeDeck) {
  struct Case {
    Spot spot;
    bool folds;
  };
  const Case cases[] = {{spot_on("AhKh2h"), true},
                        {spot_on("AhKd2c"), false},
                        {spot_on("AhAd2c"), true},
                        {spot_on("AhKh2c"), true},
                        {spot_on("AhKh2h", "AsKs,QQ"), true},
                        {spot_on("AhKh2c", "AsKs,QQ"), false},
                        {spot_on("AhKhAcKc"), true},
                        {spot_on("AhKh2cTs"), false}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.spot.board + " " + c.spot.oop_range);
    const auto game = make_game(c.spot);
    std::size_t chance_nodes = 0;
    bool folds = false;
    for (const PlanNode& node : game->nodes()) {
      if (node.kind != NodeKind::kChance) continue;
      ++chance_nodes;
      folds = folds || !game->chance_refs(node).empty();
      expect_whole_deal(*game, node);
      if (HasFatalFailure()) return;
    }
    EXPECT_GT(chance_nodes, 0U);
    EXPECT_EQ(folds, c.folds);
  }
}

TEST(NodeLocks, EntriesBecomeTables) {
  // The root of the turn: check, a bet of a third, a bet of the pot; then all-in or not.
  Spot spot = spot_on("AhKd2cTs", "QQ,AQs,AcKs,AdKs,76s:0.5", "JJ,AQo");
  spot.stack = 300;
  spot.sizes = {{{"", ""}, {"33%,100%", ""}, {"", ""}}};
  constexpr float kFree = -1.0F;

  struct Case {
    std::vector<NodeLockEntry> entries;
    std::string hand;           ///< A class of the range.
    std::vector<float> column;  ///< Its cells by action; none if the node gets no table.
  };
  const std::uint64_t beyond = std::numeric_limits<std::uint64_t>::max();
  const std::vector<Case> cases = {
      {{{0, "QQ", 1, 1}}, "QQ", {0, 1, 0}},
      {{{0, "QQ", 1, 1}}, "AQs", {kFree, kFree, kFree}},
      {{{0, "QQ", 1, 0}}, "QQ", {0.5F, 0, 0.5F}},
      {{{0, "QQ", 0, 0.25F}}, "QQ", {0.25F, 0.375F, 0.375F}},
      {{{0, "QQ", 2, 7}}, "QQ", {0, 0, 1}},
      {{{0, "QQ", 2, std::nanf("")}}, "QQ", {0.5F, 0.5F, 0}},
      {{{0, "QQ", 0, std::numeric_limits<float>::infinity()}}, "QQ", {1, 0, 0}},
      // The later of two entries counts, also where it fits nothing.
      {{{0, "QQ", 0, 1}, {0, "QQ", 2, 0.5F}}, "QQ", {0.25F, 0.25F, 0.5F}},
      {{{0, "QQ", 0, 1}, {0, "QQ", 3, 1}}, "QQ", {}},
      {{{0, "QQ", 0, 1}, {0, "AQs", 3, 1}}, "AQs", {kFree, kFree, kFree}},
      {{{0, "QQ", 0, 1}, {0, "AQs", 1, 1}, {1, "JJ", 0, 1}}, "AQs", {0, 1, 0}},
      // What fits no node, action or hand.
      {{{0, "QQ", beyond, 1}}, "QQ", {}},
      {{{0, "KA", 0, 1}}, "QQ", {}},
      {{{beyond, "QQ", 0, 1}}, "QQ", {}},
      // A class covers whichever of its hands are in the range: two of the off-suit ones.
      {{{0, "AKo", 1, 1}}, "AKo", {0, 1, 0}},
      {{{0, "AKs", 1, 1}}, "AKo", {}},
  };
  for (std::size_t i = 0; i < cases.size(); ++i) {
    SCOPED_TRACE(i);
    const auto game = make_game(spot);
    const std::vector<Pocket>& pockets = game->cards().pockets(kOop);
    ASSERT_EQ(game->nodes()[0].actions.size(), 3U);
    build_node_locks(*game, cases[i].entries);
    const LockTable* table = game->find_node_lock(0);
    ASSERT_EQ(table != nullptr, !cases[i].column.empty());
    if (!table) continue;
    ASSERT_EQ(table->size(), 3 * pockets.size());
    int hands = 0;
    for (std::size_t h = 0; h < pockets.size(); ++h) {
      float sum = 0;
      for (std::size_t a = 0; a < 3; ++a) {
        const float cell = (*table)[a * pockets.size() + h];
        sum += cell;
        if (hand_class_label(pockets[h]) == cases[i].hand) {
          ++hands;
          EXPECT_EQ(cell, cases[i].column[a]);
          EXPECT_EQ(std::signbit(cell), std::signbit(cases[i].column[a]));
        }
      }
      EXPECT_TRUE(sum == 1 || sum == -3) << sum;
    }
    EXPECT_GT(hands, 0);
  }
}

}  // namespace
}  // namespace velmora
