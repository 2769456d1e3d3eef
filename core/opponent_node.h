// What all traversals do at a decision node of the seat that is not traversed.
#pragma once

#include <cstddef>
#include <span>

#include "game.h"
#include "kernels.h"
#include "rows.h"
#include "scratch.h"

namespace velmora {

/// Values of a decision node of the other seat, which plays `strategy` (one padded row of its hands
/// for each action): each child is walked by `walk(child index, reach, row)` with its share of the
/// reach, which weights its values already, so their plain sum is the node's.
template <typename Walk>
void opponent_values(const PlanNode& node, const float* strategy, std::span<const float> reach,
                     std::span<float> result, ScratchFrame& frame, const Walk& walk) {
  const std::size_t num_actions = node.actions.size();
  const std::size_t reach_stride = padded(reach.size());
  const std::size_t own_stride = padded(result.size());
  float* const action_reach = frame.action_reach.rows(num_actions, reach.size());
  for (std::size_t a = 0; a < num_actions; ++a) {
    row_multiply(action_reach + a * reach_stride, strategy + a * reach_stride, reach.data(),
                 reach_stride);
  }
  float* const values = frame.action_values.rows(num_actions, result.size());
  for (std::size_t a = 0; a < num_actions; ++a) {
    walk(node.children[a], std::span<const float>(action_reach + a * reach_stride, reach.size()),
         std::span<float>(values + a * own_stride, result.size()));
  }
  sum_actions(result.data(), values, num_actions, own_stride);
}

}  // namespace velmora
