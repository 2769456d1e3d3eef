// The actions of a node side by side: their labels, how often they are played and what they bring.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "action_plan.h"
#include "results/values.h"
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

/// "none", "fold", "check", "call", "bet", "raise", "allin", "chance".
std::string_view action_kind_name(velmora::ActionKind kind);
/// Text for display, such as "Check" or "Bet 33%". `pot` (chips) is the base of the percentage of
/// the street total that a bet or raise reaches; below 1 there is no percentage.
std::string action_label(const velmora::Action& action, std::int32_t pot);
/// Key, such as "check" or "bet 33%"; `pot` as above.
std::string action_key(const velmora::Action& action, std::int32_t pot);

}  // namespace velmora_app
