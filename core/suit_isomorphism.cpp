#include "suit_isomorphism.h"

#include <optional>

namespace velmora {
namespace {

using SuitMap =
    std::array<std::optional<int>, kNumSuits>;  ///< By suit: the lower one that it equals.
using RankMasks = std::array<std::uint16_t, kNumSuits>;

/// Suits of one class are alike in both ranges.
std::array<int, kNumSuits> range_classes(const BySeat<PocketWeights>& ranges) {
  std::array<int, kNumSuits> classes{};
  int next_class = 1;
  for (std::uint8_t s = 1; s < kNumSuits; ++s) {
    classes[s] = -1;
    for (std::uint8_t t = 0; t < s && classes[s] < 0; ++t) {
      if (is_suit_symmetric(ranges[kOop], t, s) && is_suit_symmetric(ranges[kIp], t, s)) {
        classes[s] = classes[t];
      }
    }
    if (classes[s] < 0) classes[s] = next_class++;
  }
  return classes;
}

CardCode exchange_suits(CardCode card, int s, int t) {
  const int suit = suit_of(card);
  return make_card(rank_of(card), suit == s ? t : suit == t ? s : suit);
}

SwapList swaps_of(const std::vector<Pocket>& pockets, int s, int t) {
  std::vector<std::int32_t> hand_of(kNumPockets, -1);
  for (std::size_t i = 0; i < pockets.size(); ++i) {
    hand_of[pocket_index(pockets[i])] = static_cast<std::int32_t>(i);
  }
  SwapList swaps;
  for (std::size_t i = 0; i < pockets.size(); ++i) {
    const std::int32_t j = hand_of[pocket_index(exchange_suits(low_card(pockets[i]), s, t),
                                                exchange_suits(high_card(pockets[i]), s, t))];
    if (static_cast<std::int32_t>(i) < j) {
      swaps.emplace_back(static_cast<HandIndex>(i), static_cast<HandIndex>(j));
    }
  }
  return swaps;
}

/// Walks the cards off `dead` and calls `skip(card, kept position)` for each whose suit equals a
/// lower one; the others get the positions 0, 1, ...
template <typename Skip>
void fold_cards(CardMask dead, const SuitMap& kept_suits, const Skip& skip) {
  std::array<std::uint8_t, kNumCards> position{};
  std::uint8_t next_position = 0;
  for (CardCode card = 0; card < kNumCards; ++card) {
    if (dead & mask_of(card)) continue;
    if (const std::optional<int> kept = kept_suits[suit_of(card)]) {
      skip(card, position[make_card(rank_of(card), *kept)]);
    } else {
      position[card] = next_position++;
    }
  }
}

/// The lowest suit that `alike(s, t)` allows for each suit. Suit 0 never has one.
template <typename Alike>
SuitMap find_kept_suits(const Alike& alike) {
  SuitMap kept_suits;
  for (int s = 1; s < kNumSuits; ++s) {
    for (int t = 0; t < s && !kept_suits[static_cast<std::size_t>(s)]; ++t) {
      if (alike(static_cast<std::size_t>(s), static_cast<std::size_t>(t))) {
        kept_suits[static_cast<std::size_t>(s)] = t;
      }
    }
  }
  return kept_suits;
}

}  // namespace

SuitIsomorphism find_suit_isomorphism(const Board& board, const BySeat<PocketWeights>& ranges,
                                      const BySeat<std::vector<Pocket>>& pockets) {
  SuitIsomorphism result;
  if (board.river != kNoCard) return result;

  const std::array<int, kNumSuits> classes = range_classes(ranges);
  RankMasks flop_masks{};
  CardMask flop = 0;
  for (const CardCode card : board.flop) {
    flop |= mask_of(card);
    flop_masks[suit_of(card)] |= static_cast<std::uint16_t>(1U << rank_of(card));
  }

  if (board.turn == kNoCard) {
    const SuitMap kept_suits = find_kept_suits([&](std::size_t s, std::size_t t) {
      return flop_masks[s] == flop_masks[t] && classes[s] == classes[t];
    });
    for (std::size_t s = 0; s < kNumSuits; ++s) {
      if (!kept_suits[s]) continue;
      for (const Seat seat : {kOop, kIp}) {
        result.turn_swaps[s][seat] = swaps_of(pockets[seat], static_cast<int>(s), *kept_suits[s]);
      }
    }
    fold_cards(flop, kept_suits, [&](CardCode card, std::uint8_t kept_position) {
      result.turn_cards.push_back(card);
      result.turn_refs.push_back(kept_position);
    });
  }

  for (CardCode turn = 0; turn < kNumCards; ++turn) {
    if (board.turn != kNoCard ? turn != board.turn : (flop & mask_of(turn)) != 0) continue;
    const std::size_t turn_suit = suit_of(turn);
    RankMasks masks = flop_masks;
    masks[turn_suit] |= static_cast<std::uint16_t>(1U << rank_of(turn));
    const SuitMap kept_suits = find_kept_suits([&](std::size_t s, std::size_t t) {
      const bool flop_alike = board.turn != kNoCard || flop_masks[s] == flop_masks[t];
      return flop_alike && masks[s] == masks[t] && classes[s] == classes[t];
    });
    for (std::size_t s = 0; s < kNumSuits; ++s) {
      if (!kept_suits[s]) continue;
      for (const Seat seat : {kOop, kIp}) {
        SwapList& swaps = result.river_swaps[turn_suit][s][seat];
        if (swaps.empty()) swaps = swaps_of(pockets[seat], static_cast<int>(s), *kept_suits[s]);
      }
    }
    const bool first_of_suit = result.river_cards[turn_suit].empty();
    fold_cards(flop | mask_of(turn), kept_suits, [&](CardCode card, std::uint8_t kept_position) {
      result.river_refs[turn].push_back(kept_position);
      if (first_of_suit) result.river_cards[turn_suit].push_back(card);
    });
  }
  return result;
}

}  // namespace velmora
