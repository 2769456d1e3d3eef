// The actions of a node side by side: how often they are played and what they bring.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "action_values.h"
#include "solve_session.h"

namespace velmora_app {

/// Lists by action.
struct NodeActionStats {
  std::vector<std::string> names;
  std::vector<std::string> action_types;
  std::vector<float> frequencies;  ///< Plain means over the hands of the seat.
  std::vector<double> combos;      ///< Range weight that plays the action.
  std::vector<double> equity;      ///< 0..1 against the opposing range; not a number if unknown.
  std::vector<double> evs;         ///< Chips: mean over the hands that play the action.
  bool ok = false;
};

/// Both seats hold their whole ranges, whatever they have played towards the node. Before the river
/// the equity is sampled, with a generator that depends on the node alone. Not `ok` for a node that
/// is no decision node of the spot.
NodeActionStats query_action_stats(const SolvedSpot& spot, std::uint64_t node,
                                   ActionValues& values);

}  // namespace velmora_app
