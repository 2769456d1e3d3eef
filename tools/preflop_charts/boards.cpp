#include "boards.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace preflop_charts {

namespace {

using velmora::CardMask;
using velmora::kNumRanks;
using velmora::kNumSuits;
using RankMask = std::uint32_t;

/// Renaming suits permutes the four rank sets of a board, so one order of them stands for all.
struct Search {
  std::vector<BoardClass> found;
  std::array<RankMask, kNumSuits> ranks_by_suit{};

  void place(int suit, int cards_left) {
    if (suit == kNumSuits) {
      if (cards_left == 0) found.push_back(board());
      return;
    }
    const RankMask most = suit == 0 ? (RankMask{1} << kNumRanks) - 1 : ranks_by_suit[suit - 1];
    for (RankMask ranks = 0; ranks <= most; ++ranks) {
      const int cards = std::popcount(ranks);
      if (cards > cards_left) continue;
      ranks_by_suit[suit] = ranks;
      place(suit + 1, cards_left - cards);
    }
  }

  BoardClass board() const {
    BoardClass result;
    auto order = ranks_by_suit;
    std::ranges::sort(order);
    do ++result.count;
    while (std::ranges::next_permutation(order).found);
    for (int suit = 0; suit < kNumSuits; ++suit) {
      for (int rank = 0; rank < kNumRanks; ++rank) {
        if (ranks_by_suit[suit] >> rank & 1) {
          result.cards |= velmora::mask_of(velmora::make_card(rank, suit));
        }
      }
    }
    return result;
  }
};

}  // namespace

std::vector<BoardClass> board_classes(int size) {
  Search search;
  search.place(0, size);
  return std::move(search.found);
}

}  // namespace preflop_charts
