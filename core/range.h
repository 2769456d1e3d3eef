// Preflop ranges: their text notation, the weight of each of the 1326 two-card pockets, and editing
// a text hand by hand.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cards.h"
#include "numbers.h"

namespace velmora {

inline constexpr std::size_t kNumPockets = 1326;

/// Two different card codes: the smaller in the low byte, the larger in the high byte.
using Pocket = std::uint16_t;
constexpr CardCode low_card(Pocket pocket) {
  return static_cast<CardCode>(pocket & 0xFF);
}
constexpr CardCode high_card(Pocket pocket) {
  return static_cast<CardCode>(pocket >> 8);
}
constexpr Pocket make_pocket(CardCode a, CardCode b) {
  return a < b ? static_cast<Pocket>(a | (b << 8)) : static_cast<Pocket>(b | (a << 8));
}
constexpr CardMask mask_of_pocket(Pocket pocket) {
  return mask_of(low_card(pocket)) | mask_of(high_card(pocket));
}

/// Weights in 0..1 by pocket index; 0 means that the pocket is not in the range.
using PocketWeights = std::array<float, kNumPockets>;

enum class Suitedness : std::uint32_t { kAny = 0, kSuited = 1, kOffsuit = 2, kExact = 3 };

/// One parsed hand pattern such as "AK", "T9s" or "AsKh".
struct ComboPattern {
  std::uint8_t high_rank = 0;
  std::uint8_t low_rank = 0;
  Suitedness suitedness = Suitedness::kAny;
  std::uint8_t suit1 = 0;  ///< Suit of the first card, for `kExact` only.
  std::uint8_t suit2 = 0;  ///< Suit of the second card, for `kExact` only.

  bool operator==(const ComboPattern&) const = default;
};

/// Place of two cards, in either order, in the order (0,1), (0,2), ..., (50,51). The codes are
/// assumed to be different and in 0..51.
constexpr std::size_t pocket_index(CardCode a, CardCode b) {
  const std::size_t low = a < b ? a : b;
  const std::size_t high = a < b ? b : a;
  return low * (101 - low) / 2 + high - 1;
}
constexpr std::size_t pocket_index(Pocket pocket) {
  return pocket_index(low_card(pocket), high_card(pocket));
}
/// The two codes of an index, smaller first. Throws `std::out_of_range`.
std::pair<CardCode, CardCode> pocket_cards(std::size_t index);

/// Weight of one pocket. Throws `std::out_of_range`, `std::invalid_argument` on bad cards.
float get_weight(const PocketWeights& weights, CardCode a, CardCode b);
/// As `get_weight`; also throws `std::invalid_argument` on a weight outside 0..1.
void set_weight(PocketWeights& weights, CardCode a, CardCode b, float weight);

/// Reads "AA", "AK", "AKs", "AKo" or "AsKh". Throws `std::invalid_argument`.
ComboPattern parse_combo_pattern(std::string_view text);
/// The indices of the pockets that a pattern covers. Throws `std::invalid_argument` for an exact
/// pattern of one card twice.
std::vector<std::size_t> expand_pattern(const ComboPattern& pattern);

/// A range such as "88+,A8s+,A5s-A2s:0.5,KQo". Tokens overwrite from left to right.
/// Throws `std::invalid_argument` or `std::out_of_range` at the first bad token.
PocketWeights parse_range(std::string_view text);
/// A percent text such as "50%" (every pocket at that weight) or else a range as above.
PocketWeights parse_range_text(std::string_view text);
/// Whether the text has the percent form of `parse_range_text`.
bool is_percent_range(std::string_view text);
/// What is wrong with a text for `parse_range_text`: one sentence that quotes the first bad token,
/// or
/// "" for a text that can be read.
std::string range_fault(std::string_view text);

/// True if the table is unchanged when the two suits are exchanged.
bool is_suit_symmetric(const PocketWeights& weights, std::uint8_t suit1, std::uint8_t suit2);

/// Label of the pocket in the 13 by 13 grid: "AA", "AKs", "AKo", higher rank first.
std::string hand_class_label(Pocket pocket);

inline constexpr std::size_t kNumHandClasses = 169;

/// A hand class of the 13 by 13 grid and what a range holds of it.
struct HandClassWeight {
  std::string_view label;  ///< "AA", "AKs", "AKo".
  float weight = 0;        ///< 0..1, the mean over the 6, 4 or 12 pockets of the class.
};

/// Each class once, in no order that matters. A token that can't be read adds nothing: while
/// somebody types, the rest of the range stays in sight.
std::array<HandClassWeight, kNumHandClasses> hand_class_weights(std::string_view text);

/// Sum of the weights of all pockets, 0..1326. Throws the faults of `parse_range_text`.
double range_combos(std::string_view text);

/// Whether a text can be read and gives some pocket a weight above 0.
bool range_has_hand(std::string_view text);

/// The text with the class `label` added at its end, with a weight 0..1 in at most three decimals
/// where that is below 1. A percent text gives way to the hand.
std::string with_hand(std::string_view text, std::string_view label, double weight);

/// The text without the tokens that cover a pocket of the class `label`, each as a whole. Nothing
/// is left of a percent text.
std::string without_hand(std::string_view text, std::string_view label);

/// The range of a text file as one line: line breaks are commas, and so is the white space of a
/// line that has no meaning otherwise ("AA KK" but not "QQ : 0.5"). Every token keeps the weight
/// that it has in the notation. What can't be read stays, for `range_fault` to name.
std::string imported_range_text(std::string_view text);

}  // namespace velmora
