#include "hand_eval.h"

#include <algorithm>
#include <array>
#include <bit>
#include <stdexcept>

namespace velmora {

namespace {

using RankMask = std::uint32_t;

constexpr RankMask kWheel = 0x100F;
constexpr RankMask kFive = RankMask{1} << 3;

constexpr HandStrength strength(MadeHand category, RankMask primary, RankMask secondary = 0) {
  return (HandStrength{category} << 26) | (primary << 13) | secondary;
}

constexpr RankMask highest_bit(RankMask mask) {
  return std::bit_floor(mask);
}

constexpr RankMask highest_bits(RankMask mask, int count) {
  RankMask rest = mask;
  for (; count > 0 && rest != 0; --count) rest ^= highest_bit(rest);
  return mask ^ rest;
}

constexpr bool has_two_bits(RankMask mask) {
  return (mask & (mask - 1)) != 0;
}

/// The bit of the highest card of the best straight in the mask, 0 if there is none.
constexpr RankMask straight_top(RankMask mask) {
  RankMask run = mask;
  for (int i = 0; i < 4; ++i) run = (run << 1) & mask;
  if (run != 0) return highest_bit(run);
  return (mask & kWheel) == kWheel ? kFive : 0;
}

}  // namespace

HandStrength evaluate_seven(std::span<const CardCode, 7> cards) {
  // Step 1. The ranks that occur at least n times, and one 16-bit rank mask for each suit. Each
  // byte of `suit_counts` starts at 3, so that a fifth card of a suit sets its bit 3.
  RankMask once = 0;
  RankMask twice = 0;
  RankMask thrice = 0;
  RankMask four_times = 0;
  std::uint64_t suit_masks = 0;
  std::uint32_t suit_counts = 0x03030303;
  for (const CardCode code : cards) {
    check_card_code(code);
    const RankMask rank = RankMask{1} << rank_of(code);
    const unsigned suit = suit_of(code);
    four_times |= thrice & rank;
    thrice |= twice & rank;
    twice |= once & rank;
    once |= rank;
    suit_masks |= std::uint64_t{rank} << (16 * suit);
    suit_counts += std::uint32_t{1} << (8 * suit);
  }

  // Step 2. A flush excludes four of a kind or a full house among seven cards.
  if (const std::uint32_t flush = suit_counts & 0x08080808; flush != 0) {
    const int suit = std::countr_zero(flush) / 8;
    const auto mask = static_cast<RankMask>((suit_masks >> (16 * suit)) & 0x1FFF);
    if (const RankMask top = straight_top(mask)) return strength(kStraightFlush, top);
    return strength(kFlush, highest_bits(mask, 5));
  }

  // Step 3. Everything else, best category first. From here on `singles`, `pairs` and `threes`
  // hold the ranks that occur exactly so often.
  const RankMask singles = once & ~twice;
  const RankMask pairs = twice & ~thrice;
  const RankMask threes = thrice & ~four_times;
  if (four_times != 0) {
    const RankMask four = highest_bit(four_times);
    return strength(kFourOfAKind, four, highest_bit(once & ~four));
  }
  if (has_two_bits(threes)) {
    const RankMask three = highest_bit(threes);
    return strength(kFullHouse, three, highest_bit(threes & ~three));
  }
  if (threes != 0 && pairs != 0) return strength(kFullHouse, threes, highest_bit(pairs));
  if (const RankMask top = straight_top(once)) return strength(kStraight, top);
  if (threes != 0) return strength(kThreeOfAKind, threes, highest_bits(singles, 2));
  if (has_two_bits(pairs)) {
    const RankMask two = highest_bits(pairs, 2);
    return strength(kTwoPair, two, highest_bit(once & ~two));
  }
  if (pairs != 0) return strength(kOnePair, pairs, highest_bits(singles, 3));
  return strength(kHighCard, highest_bits(once, 5));
}

HandStrength evaluate_hand(Pocket pocket, std::span<const CardCode> board) {
  if (board.size() != 5) {
    throw std::invalid_argument("Board must contain exactly 5 cards for evaluation");
  }
  std::array<CardCode, 7> cards{low_card(pocket), high_card(pocket)};
  std::copy(board.begin(), board.end(), cards.begin() + 2);
  return evaluate_seven(cards);
}

}  // namespace velmora
