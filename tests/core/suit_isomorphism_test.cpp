#include "suit_isomorphism.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "card_context.h"

namespace velmora {
namespace {

/// The folded cards of all deals: of the turn, and of the river after each turn that is not one of
/// the flop's cards. That each stands for a kept one is a matter of the game's chance nodes.
std::size_t folded(const char* board, const char* oop, const char* ip) {
  const CardContext cards(parse_board(board), {parse_range(oop), parse_range(ip)});
  const SuitIsomorphism& found = cards.isomorphism();
  std::size_t count = found.turn_cards.size();
  if (cards.board().river != kNoCard) return count;
  for (CardCode turn = 0; turn < kNumCards; ++turn) {
    const auto& flop = cards.board().flop;
    const bool dealt = cards.board().turn == kNoCard || cards.board().turn == turn;
    if (!dealt || std::count(flop.begin(), flop.end(), turn)) continue;
    count += found.river_cards[suit_of(turn)].size();
  }
  return count;
}

TEST(SuitIsomorphism, FoldsAsManyCardsAsTheSuitsAllow) {
  struct Case {
    const char* board;
    const char* oop;
    const char* ip;
    std::size_t folded;  ///< Over the deal of the turn and those of the river after each turn.
  };
  const char* const alike = "AA,KK:0.5,QJs,76s:0.3,72o:0.1";
  const char* const other = "QQ,AK:0.5,55";
  const Case cases[] = {
      // A rainbow flop keeps all turns; after a turn no two suits are alike either.
      {"Ah7c2s", alike, other, 0},
      // Three suits that the flop lacks: two are folded on the turn; after a heart both on the
      // river, after another suit the one of the other two.
      {"Ah7h2h", alike, other, 26 + 10 * 26 + 39 * 13},
      // Two suits that the flop lacks: after a turn of one of the flop's suits one is folded.
      {"AhKh2c", alike, other, 13 + (11 + 12) * 13},
      // The suits of a pair are alike.
      {"AhAd2c", alike, other, 12 + (12 + 13) * 12},
      {"AhAd2h", alike, other, 13 + (11 + 12) * 13},
      {"AhAdAc", alike, other, 24 + 13 * 24 + 36 * 12},
      // The board's turn goes with the flop.
      {"Ah7h2hTh", alike, other, 26},
      {"AhKh2cAc", alike, other, 13},
      {"AhKhAcKc", alike, other, 13 + 11},
      {"AhKhAdKd", alike, other, 13 + 11},
      {"AhKd2c7s", alike, other, 0},
      {"Ah7h2hThJh", alike, other, 0},
      // One spade hand sets spades apart: clubs and diamonds remain alike.
      {"Ah7h2h", "AA,AKs,AsKs:0.5", other, 13 + (10 + 13) * 13},
      {"Ah7h2h", other, "QQ,AsKd", 0},
      // Ranges that tell apart what the flop does not, and the other way round.
      {"AhKh2c", "AA,AdQd", other, 0},
      {"AhKh2c", "AA,AcQc", other, 13 + (11 + 12) * 13},
      {"Ah7h2h", "KcKd,KhKs", "QcQd,QhQs", 13 + (10 + 13) * 13},
  };
  for (const Case& c : cases)
    EXPECT_EQ(folded(c.board, c.oop, c.ip), c.folded) << c.board << " " << c.oop;
}

}  // namespace
}  // namespace velmora
