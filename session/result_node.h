// What every query asks first: whether there is a result, and a node in it to answer for.
#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "discounted_cfr.h"
#include "game.h"
#include "solve_session.h"

namespace velmora_app {

/// Weights and frequencies that are not finite or not above 0 count for nothing.
inline bool counts(float weight) {
  return std::isfinite(weight) && weight > 0.0F;
}

/// A node of the game, or null.
inline const velmora::PlanNode* node_at(const SolvedSpot& spot, std::uint64_t node) {
  return spot.game && node < spot.game->nodes().size() ? &spot.game->nodes()[node] : nullptr;
}

/// A decision node with actions, or null; also null without a solver.
inline const velmora::PlanNode* decision_at(const SolvedSpot& spot, std::uint64_t node) {
  const velmora::PlanNode* const found = spot.solver ? node_at(spot, node) : nullptr;
  const bool decides = found && found->kind == velmora::NodeKind::kDecision &&
                       !found->actions.empty() && found->children.size() >= found->actions.size() &&
                       spot.game->num_hands(found->seat) > 0;
  return decides ? found : nullptr;
}

/// The average strategy of a decision node, action-major; empty if it doesn't fit the node.
inline std::vector<float> strategy_at(const SolvedSpot& spot, std::uint64_t node) {
  const velmora::PlanNode& decision = spot.game->nodes()[node];
  std::vector<float> strategy = spot.solver->average_strategy(node);
  const std::size_t cells = decision.actions.size() * spot.game->num_hands(decision.seat);
  if (strategy.size() != cells) strategy.clear();
  return strategy;
}

/// Base of the percentages of a node's actions, in chips.
inline std::int32_t percent_base(const velmora::Game& game, const velmora::PlanNode& node) {
  return node.pot >= 1 ? node.pot : game.settings().starting_pot;
}

}  // namespace velmora_app
