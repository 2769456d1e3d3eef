// Strength of a seven-card hand as one number.
#pragma once

#include <cstdint>
#include <span>

#include "cards.h"
#include "range.h"

namespace velmora {

/// What the best five of seven cards make, in order of rank.
enum MadeHand : std::uint32_t {
  kHighCard,
  kOnePair,
  kTwoPair,
  kThreeOfAKind,
  kStraight,
  kFlush,
  kFullHouse,
  kFourOfAKind,
  kStraightFlush,
};

/// `MadeHand` in bits 26 and up, primary rank mask in bits 13 to
/// 25, secondary rank mask in bits 0 to 12. A higher value wins, equal values tie.
using HandStrength = std::uint32_t;

/// Strength of seven different cards in any order. Works on rank masks, without tables.
/// Throws `std::out_of_range` on a code of 52 or more.
HandStrength evaluate_seven(std::span<const CardCode, 7> cards);

/// Strength of a pocket on a board, which must hold five cards (`std::invalid_argument`).
HandStrength evaluate_hand(Pocket pocket, std::span<const CardCode> board);

}  // namespace velmora
