#include "suit_isomorphism.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>

#include <gtest/gtest.h>

#include "card_context.h"

namespace velmora {
namespace {

/// Two suits that change places.
struct Exchange {
  int s;
  int t;

  CardCode operator()(CardCode card) const {
    const int suit = suit_of(card);
    return make_card(rank_of(card), suit == s ? t : suit == t ? s : suit);
  }
  Pocket operator()(Pocket pocket) const {
    return make_pocket((*this)(low_card(pocket)), (*this)(high_card(pocket)));
  }
};

std::set<CardCode> flop_of(const CardContext& cards) {
  return {cards.board().flop.begin(), cards.board().flop.end()};
}

/// The hands of a seat under an exchange, by hand index; nothing where the image is missing from
/// the list or has another weight.
std::optional<std::vector<HandIndex>> images(const CardContext& cards, Seat seat,
                                             const Exchange& exchange) {
  std::map<Pocket, HandIndex> index;
  const std::vector<Pocket>& pockets = cards.pockets(seat);
  for (std::size_t i = 0; i < pockets.size(); ++i) {
    index[pockets[i]] = static_cast<HandIndex>(i);
  }
  std::vector<HandIndex> result;
  for (std::size_t i = 0; i < pockets.size(); ++i) {
    const auto image = index.find(exchange(pockets[i]));
    if (image == index.end()) return std::nullopt;
    if (cards.hand_weights(seat)[image->second] != cards.hand_weights(seat)[i]) return std::nullopt;
    result.push_back(image->second);
  }
  return result;
}

/// Whether an exchange maps the game at a deal onto itself: the cards of the flop, the dealt turn
/// (`kNoCard` for none) by itself, as it came later, and both ranges.
bool keeps_position(const CardContext& cards, CardCode turn, const Exchange& exchange) {
  std::set<CardCode> together = flop_of(cards);
  if (cards.board().turn != kNoCard) {
    together.insert(turn);
  } else if (turn != kNoCard && exchange(turn) != turn) {
    return false;
  }
  std::set<CardCode> mapped;
  for (const CardCode card : together) mapped.insert(exchange(card));
  return mapped == together && images(cards, kOop, exchange) && images(cards, kIp, exchange);
}

/// A deal as the tables tell it: the folded cards with what is needed to rebuild each from its
/// twin.
struct Deal {
  CardCode turn;  ///< `kNoCard` where the turn itself is dealt.
  std::vector<CardCode> skipped;
  std::vector<std::uint8_t> refs;
  std::array<BySeat<SwapList>, kNumSuits> swaps;
};

std::vector<Deal> deals_of(const CardContext& cards) {
  const SuitIsomorphism& found = cards.isomorphism();
  std::vector<Deal> deals;
  if (cards.board().river != kNoCard) {
    // Nothing is dealt; whatever the tables hold is too much.
    deals.push_back({cards.board().turn, found.turn_cards, found.turn_refs, found.turn_swaps});
    return deals;
  }
  if (cards.board().turn == kNoCard) {
    deals.push_back({kNoCard, found.turn_cards, found.turn_refs, found.turn_swaps});
  }
  for (CardCode turn = 0; turn < kNumCards; ++turn) {
    if (flop_of(cards).count(turn)) continue;
    if (cards.board().turn != kNoCard && turn != cards.board().turn) continue;
    deals.push_back({turn, found.river_cards[suit_of(turn)], found.river_refs[turn],
                     found.river_swaps[suit_of(turn)]});
  }
  return deals;
}

/// Ranks of the hands on a run-out by hand index, 0 for hands that it blocks.
std::vector<std::uint32_t> strengths(const CardContext& cards, Seat seat, CardCode a, CardCode b) {
  std::vector<std::uint32_t> result(cards.num_hands(seat));
  for (const StrengthEntry& entry : cards.strength_table(a, b)[seat]) {
    if (entry.hand != kNoHand) result[entry.hand] = entry.strength;
  }
  return result;
}

/// What a folded card's values are taken from: with the listed pairs exchanged, the hands rank on
/// each of its run-outs as on the twin's.
void expect_equal_runouts(const CardContext& cards, const Deal& deal, CardCode card, CardCode twin,
                          const Exchange& exchange) {
  for (const Seat seat : {kOop, kIp}) {
    for (CardCode other = 0; other < kNumCards; ++other) {
      if (deal.turn != kNoCard && other != deal.turn) continue;
      // The cards of the board only change places among themselves.
      const CardCode image = cards.board().turn != kNoCard ? other : exchange(other);
      std::vector<std::uint32_t> expected = strengths(cards, seat, twin, image);
      for (const auto& [i, j] : deal.swaps[suit_of(card)][seat]) {
        std::swap(expected[i], expected[j]);
      }
      ASSERT_EQ(strengths(cards, seat, card, other), expected) << card_to_string(card);
    }
  }
}

/// Counts the folded cards of all deals.
std::size_t check(const std::string& board, const std::string& oop, const std::string& ip) {
  SCOPED_TRACE(board + " " + oop + " " + ip);
  const CardContext cards(parse_board(board), {parse_range(oop), parse_range(ip)});
  std::size_t folded = 0;
  for (const Deal& deal : deals_of(cards)) {
    std::vector<CardCode> kept;
    for (CardCode card = 0; card < kNumCards; ++card) {
      const bool dead = flop_of(cards).count(card) || card == deal.turn;
      const bool skipped =
          std::find(deal.skipped.begin(), deal.skipped.end(), card) != deal.skipped.end();
      EXPECT_FALSE(dead && skipped) << card_to_string(card);
      if (!dead && !skipped) kept.push_back(card);
    }
    EXPECT_TRUE(std::is_sorted(deal.skipped.begin(), deal.skipped.end()));
    EXPECT_EQ(deal.refs.size(), deal.skipped.size());
    folded += deal.skipped.size();

    for (std::size_t i = 0; i < deal.skipped.size() && i < deal.refs.size(); ++i) {
      const CardCode card = deal.skipped[i];
      if (deal.refs[i] >= kept.size()) {
        ADD_FAILURE() << "no twin for " << card_to_string(card);
        continue;
      }
      const CardCode twin = kept[deal.refs[i]];
      const Exchange exchange{suit_of(card), suit_of(twin)};
      EXPECT_EQ(exchange(card), twin);
      EXPECT_TRUE(keeps_position(cards, deal.turn, exchange)) << card_to_string(card);
      for (const Seat seat : {kOop, kIp}) {
        const auto image = images(cards, seat, exchange);
        if (!image) continue;
        SwapList expected;
        for (std::size_t h = 0; h < image->size(); ++h) {
          if (h < (*image)[h]) expected.emplace_back(static_cast<HandIndex>(h), (*image)[h]);
        }
        EXPECT_EQ(deal.swaps[suit_of(card)][seat], expected) << card_to_string(card);
      }
      expect_equal_runouts(cards, deal, card, twin, exchange);
    }

    // No card has a branch of its own that another kept card could stand for.
    if (cards.board().river != kNoCard) continue;
    for (const CardCode card : kept) {
      for (int suit = 0; suit < suit_of(card); ++suit) {
        const Exchange exchange{suit_of(card), suit};
        EXPECT_FALSE(keeps_position(cards, deal.turn, exchange))
            << card_to_string(card) << " after " << (deal.turn == kNoCard ? 0 : deal.turn);
      }
    }
  }
  return folded;
}

TEST(SuitIsomorphism, FoldedCardsAreTwinsOfKeptOnes) {
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
  for (const Case& c : cases) EXPECT_EQ(check(c.board, c.oop, c.ip), c.folded) << c.board;
}

TEST(SuitIsomorphism, AMonotoneFlopFoldsOntoClubs) {
  const CardContext cards(parse_board("AhKh2h"), {parse_range("AA,QJs"), parse_range("KK,AK")});
  const SuitIsomorphism& found = cards.isomorphism();
  std::vector<CardCode> skipped;
  std::vector<CardCode> kept;
  for (CardCode card = 0; card < kNumCards; ++card) {
    if (suit_of(card) == 1 || suit_of(card) == 3) skipped.push_back(card);
    if (suit_of(card) == 0 || (suit_of(card) == 2 && card != parse_card("Ah") &&
                               card != parse_card("Kh") && card != parse_card("2h"))) {
      kept.push_back(card);
    }
  }
  ASSERT_EQ(found.turn_cards, skipped);
  ASSERT_EQ(found.turn_refs.size(), skipped.size());
  for (std::size_t i = 0; i < skipped.size(); ++i) {
    EXPECT_EQ(kept.at(found.turn_refs[i]), make_card(rank_of(skipped[i]), 0));
  }
  EXPECT_TRUE(found.turn_swaps[0][kOop].empty());
  EXPECT_FALSE(found.turn_swaps[1][kOop].empty());
}

}  // namespace
}  // namespace velmora
