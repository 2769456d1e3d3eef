// What a traversal does with the tables of one decision node.
#include <algorithm>
#include <cmath>

#include "rows.h"
#include "traversal.h"

namespace velmora {
namespace {

/// Puts the fixed frequencies of a lock table in place of the strategy's. A set sign bit marks a
/// hand without a lock.
void apply_lock(float* strategy, const LockTable& lock, std::size_t num_actions,
                std::size_t num_hands) {
  const std::size_t stride = padded(num_hands);
  for (std::size_t a = 0; a < num_actions; ++a) {
    for (std::size_t h = 0; h < num_hands; ++h) {
      const std::size_t cell = a * num_hands + h;
      if (cell >= lock.size()) return;
      if (!std::signbit(lock[cell])) strategy[a * stride + h] = lock[cell];
    }
  }
}

/// Best response at a node with a lock: a locked hand keeps its mix, a free one takes its best
/// action.
void best_values_with_lock(float* result, ValueRows values, const LockTable& lock,
                           std::size_t num_actions, std::size_t num_hands) {
  for (std::size_t h = 0; h < num_hands; ++h) {
    if (std::signbit(lock[h])) {
      result[h] = values[0][h];
      for (std::size_t a = 1; a < num_actions; ++a) result[h] = std::max(result[h], values[a][h]);
      continue;
    }
    double value = 0;
    for (std::size_t a = 0; a < num_actions; ++a) {
      const float frequency = lock[a * num_hands + h];
      if (std::signbit(frequency)) continue;
      value += static_cast<double>(values[a][h]) * static_cast<double>(frequency);
    }
    result[h] = static_cast<float>(value);
  }
}

}  // namespace

/// The other seat's strategy splits its reach over the actions.
void Traversal::split_reach(NodeIndex node, std::size_t num_actions, const float* reach,
                            float* rows, bool* live, ScratchStack& scratch) {
  const ScratchStack::Frame frame(scratch);
  const NodeState& state = states_.node(node);
  const std::size_t row = opp_row();
  if (!learning_) {
    const float* const sums = states_.strategy_sums(state, scratch);
    if (has_fused_kernels(num_actions)) {
      split_average_fused(rows, live, sums, reach, num_actions, row);
      return;
    }
    float* const strategy = scratch.take<float>(num_actions * row);
    average_strategy_rows(strategy, sums, num_actions, row);
    split_rows(rows, live, strategy, reach, num_actions, row);
    return;
  }
  const float* const regrets = states_.regrets(state, scratch);
  const LockTable* const lock = game_.find_node_lock(node);
  if (!lock && has_fused_kernels(num_actions)) {
    split_reach_fused(rows, live, regrets, reach, num_actions, row);
    return;
  }
  float* const strategy = scratch.take<float>(num_actions * row);
  regret_match(strategy, scratch.take<float>(row), regrets, num_actions, row);
  if (lock) apply_lock(strategy, *lock, num_actions, state.num_hands);
  split_rows(rows, live, strategy, reach, num_actions, row);
}

/// The traversing seat's node: the value of its current strategy, and what is learnt. A node with a
/// lock keeps its regrets, for all of its hands. `next` is the node that will learn after this one.
void Traversal::learn(NodeIndex node, NodeIndex next, ValueRows values, float* result,
                      ScratchStack& scratch) {
  const ScratchStack::Frame frame(scratch);
  const NodeState& state = states_.node(node);
  const std::size_t num_actions = state.num_actions;
  const std::size_t row = own_row();
  float* const regrets = learning_->ensure_regrets(state, scratch);
  float* const sums = learning_->ensure_strategy_sums(state, scratch);
  const LockTable* const lock = game_.find_node_lock(node);
  if (!lock && has_fused_kernels(num_actions)) {
    // Compressed tables are expanded before use, so there is nothing to fetch.
    const NodeState& ahead = states_.node(next);
    const float* const next_regrets =
        states_.compressed() ? regrets : states_.regrets(ahead, scratch);
    const float* const next_sums =
        states_.compressed() ? sums : states_.strategy_sums(ahead, scratch);
    learn_fused(result, regrets, sums, values, num_actions, row, discount_.alpha_t,
                discount_.beta_t, discount_.gamma_t, next_regrets, next_sums);
  } else {
    float* const strategy = scratch.take<float>(num_actions * row);
    regret_match(strategy, scratch.take<float>(row), regrets, num_actions, row);
    if (lock) apply_lock(strategy, *lock, num_actions, state.num_hands);
    weighted_action_sum(result, strategy, values, num_actions, row);
    update_strategy_sum(sums, strategy, discount_.gamma_t, num_actions * row);
    if (!lock) {
      update_regrets(regrets, values, result, num_actions, row, discount_.alpha_t,
                     discount_.beta_t);
    }
  }
  learning_->store_strategy_sums(node, sums);
  if (!lock) learning_->store_regrets(node, regrets);
}

void Traversal::respond(Response response, NodeIndex node, ValueRows values, float* result,
                        ScratchStack& scratch) {
  const ScratchStack::Frame frame(scratch);
  const NodeState& state = states_.node(node);
  const std::size_t num_actions = state.num_actions;
  const std::size_t row = own_row();
  if (response == Response::kAverage) {
    const float* const sums = states_.strategy_sums(state, scratch);
    if (has_fused_kernels(num_actions)) {
      average_values_fused(result, sums, values, num_actions, row);
      return;
    }
    float* const strategy = scratch.take<float>(num_actions * row);
    average_strategy_rows(strategy, sums, num_actions, row);
    expected_values(result, strategy, values, num_actions, row);
    return;
  }
  const LockTable* const lock = game_.find_node_lock(node);
  if (lock && lock->size() == num_actions * state.num_hands) {
    best_values_with_lock(result, values, *lock, num_actions, state.num_hands);
  } else {
    best_values(result, values, num_actions, row);
  }
}

}  // namespace velmora
