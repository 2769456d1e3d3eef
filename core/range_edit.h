// Editing a range text hand by hand: what a matrix of hand classes shows of it and writes into it.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "range.h"

namespace velmora {

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
