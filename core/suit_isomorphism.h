// Chance cards that are worth no branch of their own, since exchanging two suits makes them equal
// to a card that has one.
#pragma once

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "cards.h"
#include "range.h"

namespace velmora {

using HandIndex = std::uint16_t;
inline constexpr HandIndex kNoHand = 65535;

/// Pairs (i, j), i < j: exchanging the two suits turns hand i into hand j and back. A hand without
/// a pair stays itself.
using SwapList = std::vector<std::pair<HandIndex, HandIndex>>;

/// Refers each skipped card to the one that stands for it: the card of the same rank in an equal
/// suit.
struct SuitIsomorphism {
  /// For each entry of `turn_cards`: position of that card among the turn cards that are kept.
  std::vector<std::uint8_t> turn_refs;
  std::vector<CardCode> turn_cards;                    ///< The skipped turn cards, ascending.
  std::array<BySeat<SwapList>, kNumSuits> turn_swaps;  ///< By suit of the skipped card.
  std::array<std::vector<std::uint8_t>, kNumCards> river_refs;  ///< By turn card.
  std::array<std::vector<CardCode>, kNumSuits> river_cards;     ///< By suit of the turn card.
  /// By suit of the turn card, then by suit of the skipped card.
  std::array<std::array<BySeat<SwapList>, kNumSuits>, kNumSuits> river_swaps;
};

/// Two suits may be exchanged if neither the board nor the two ranges tell them apart. `pockets`
/// are the hand lists that the swaps index.
SuitIsomorphism find_suit_isomorphism(const Board& board, const BySeat<PocketWeights>& ranges,
                                      const BySeat<std::vector<Pocket>>& pockets);

}  // namespace velmora
