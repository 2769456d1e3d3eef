// The strategy of a node by the 169 hand classes.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "solve_session.h"

namespace velmora_app {

inline constexpr std::size_t kNumHandClasses = 169;

/// The labels in grid order: row by row over the ranks "AKQJT98765432", pairs on the diagonal,
/// suited hands above it, offsuit hands below it.
const std::array<std::string, kNumHandClasses>& hand_class_labels();

/// Label of two card texts in either order and any case; empty if a rank is none or a text is
/// shorter than a card.
std::string hand_class_label_from_cards(std::string_view c1, std::string_view c2);

/// By label, in grid order.
struct NodeHandStrategy {
  std::vector<std::string> labels;
  std::vector<float> weights;  ///< Summed range weight of the acting seat's hands, at the root.
  std::vector<std::string> dominant_action_types;  ///< Empty where the weight is 0.
  std::vector<std::string> action_names;           ///< By action.
  std::vector<float> action_probabilities;         ///< `label * num_actions + action`.
  bool ok = false;
};

/// Not `ok` for a node that is no decision node of the spot.
NodeHandStrategy query_hand_strategy(const SolvedSpot& spot, std::uint64_t node);

}  // namespace velmora_app
