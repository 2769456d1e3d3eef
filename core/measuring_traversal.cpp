// Read-only traversals on the average strategies: expected values and best responses.
#include <algorithm>
#include <cmath>
#include <utility>

#include "chance_node.h"
#include "discounted_cfr.h"
#include "kernels.h"
#include "opponent_node.h"
#include "terminal_payoff.h"

namespace velmora {
namespace {

/// Best response at a node with a lock: a locked hand keeps its mix, a free one takes its best
/// action.
void best_values_with_lock(std::span<float> result, const float* values, const LockTable& lock,
                           std::size_t num_actions) {
  const std::size_t hands = result.size();
  const std::size_t stride = padded(hands);
  for (std::size_t h = 0; h < hands; ++h) {
    if (std::signbit(lock[h])) {
      result[h] = values[h];
      for (std::size_t a = 1; a < num_actions; ++a) {
        result[h] = std::max(result[h], values[a * stride + h]);
      }
      continue;
    }
    double value = 0;
    for (std::size_t a = 0; a < num_actions; ++a) {
      const float frequency = lock[a * hands + h];
      if (std::signbit(frequency)) continue;
      value += static_cast<double>(values[a * stride + h]) * static_cast<double>(frequency);
    }
    result[h] = static_cast<float>(value);
  }
}

}  // namespace

void DiscountedCfr::measure_recursive(const Game& game, std::size_t node_index, Seat seat,
                                      Response response, std::span<const float> reach,
                                      std::span<float> result, std::size_t depth,
                                      ScratchStack& scratch) const {
  const PlanNode& node = game.nodes()[node_index];
  const std::size_t num_actions = node.actions.size();
  if (node.kind == NodeKind::kTerminal) {
    terminal_payoff(game, node, seat, reach, result);
    return;
  }
  const auto clear = [&result] { std::fill(result.begin(), result.end(), 0.0F); };
  if (num_actions == 0) return clear();
  const auto walk = [&](std::size_t child, std::span<const float> child_reach, std::span<float> row,
                        ScratchStack& own) {
    measure_recursive(game, child, seat, response, child_reach, row, depth + 1, own);
  };

  ScratchFrame& frame = scratch.frame_at(depth);
  if (node.kind == NodeKind::kChance) {
    const bool fans_out = pool_ && !WorkerPool::in_worker() && node.children.size() >= 2 &&
                          states_.parallel_safe(node_index);
    chance_values(game, node, seat, reach, result, frame, scratch, fans_out ? pool_.get() : nullptr,
                  walk);
    return;
  }

  const NodeState& state = states_.node(node_index);
  const std::size_t own_stride = padded(result.size());
  if (state.seat != seat) {
    if (num_actions == 1) return walk(node.children[0], reach, result, scratch);
    if (state.num_hands != reach.size()) return clear();
    const std::size_t stride = state.row_length();
    float* const strategy = frame.opp_strategy.rows(num_actions, reach.size());
    average_strategy_rows(strategy, states_.strategy_sums(state, frame.strategy_sums), num_actions,
                          stride);
    opponent_values(node, strategy, reach, result, frame,
                    [&](std::size_t child, std::span<const float> child_reach,
                        std::span<float> row) { walk(child, child_reach, row, scratch); });
    return;
  }

  if (state.num_hands != result.size()) return clear();
  float* const values = frame.action_values.rows(num_actions, result.size());
  for (std::size_t a = 0; a < num_actions; ++a) {
    walk(node.children[a], reach, std::span<float>(values + a * own_stride, result.size()),
         scratch);
  }
  if (response == Response::kAverage) {
    float* const strategy = frame.strategy.rows(num_actions, result.size());
    average_strategy_rows(strategy, states_.strategy_sums(state, frame.strategy_sums), num_actions,
                          own_stride);
    expected_values(result.data(), strategy, values, num_actions, own_stride);
    return;
  }
  const LockTable* const lock = game.find_node_lock(node_index);
  if (lock && lock->size() == num_actions * result.size()) {
    best_values_with_lock(result, values, *lock, num_actions);
  } else {
    best_values(result.data(), values, num_actions, own_stride);
  }
}

std::vector<float> DiscountedCfr::measure_node(const Game& game, std::size_t node, Seat seat,
                                               Response response,
                                               std::span<const float> opponent_reach) const {
  FloatList reach;
  FloatList values;
  ScratchStack scratch;
  const std::span<float> reach_row = reach.row(opponent_reach.size());
  std::copy(opponent_reach.begin(), opponent_reach.end(), reach_row.begin());
  const std::span<float> result = values.row(game.num_hands(seat));
  if (node < states_.size() && !result.empty()) {
    measure_recursive(game, node, seat, response, reach_row, result, 0, scratch);
  }
  return {result.begin(), result.end()};
}

std::array<float, 2> DiscountedCfr::measure_root(const Game& game, Response response) const {
  std::array<float, 2> gains{};
  for (const Seat seat : {kOop, kIp}) {
    const std::vector<float> values =
        measure_node(game, 0, seat, response, game.cards().hand_weights(opponent_of(seat)));
    const std::vector<float>& weights = game.cards().hand_weights(seat);
    double gain = 0;
    for (std::size_t h = 0; h < values.size(); ++h) {
      gain += static_cast<double>(weights[h]) * static_cast<double>(values[h]);
    }
    gains[seat] = static_cast<float>(gain);
  }
  return gains;
}

std::array<float, 2> DiscountedCfr::cf_values(const Game& game) const {
  return measure_root(game, Response::kAverage);
}

std::array<float, 2> DiscountedCfr::best_cf_values(const Game& game) const {
  return measure_root(game, Response::kBest);
}

std::vector<float> DiscountedCfr::compute_cfvalue(const Game& game, std::size_t node,
                                                  Seat seat) const {
  return compute_cfvalue(game, node, seat, game.cards().hand_weights(opponent_of(seat)));
}

std::vector<float> DiscountedCfr::compute_cfvalue(const Game& game, std::size_t node, Seat seat,
                                                  std::span<const float> opponent_reach) const {
  if (opponent_reach.size() != game.num_hands(opponent_of(seat))) {
    return std::vector<float>(game.num_hands(seat));
  }
  return measure_node(game, node, seat, Response::kAverage, opponent_reach);
}

std::vector<float> DiscountedCfr::average_strategy(std::size_t node) const {
  if (node >= states_.size()) return {};
  const NodeState& state = states_.node(node);
  if (!state.active || state.num_actions == 0 || state.num_hands == 0) return {};
  FloatList expanded;
  FloatList rows;
  float* const strategy = rows.rows(state.num_actions, state.num_hands);
  average_strategy_rows(strategy, states_.strategy_sums(state, expanded), state.num_actions,
                        state.row_length());
  std::vector<float> result;
  result.reserve(std::size_t{state.num_actions} * state.num_hands);
  for (std::size_t a = 0; a < state.num_actions; ++a) {
    const float* const row = strategy + a * state.row_length();
    result.insert(result.end(), row, row + state.num_hands);
  }
  return result;
}

std::vector<float> DiscountedCfr::average_action_frequencies(std::size_t node) const {
  const std::vector<float> strategy = average_strategy(node);
  if (strategy.empty()) return {};
  const NodeState& state = states_.node(node);
  std::vector<float> frequencies(state.num_actions);
  for (std::size_t a = 0; a < frequencies.size(); ++a) {
    double sum = 0;
    for (std::size_t h = 0; h < state.num_hands; ++h) {
      sum += static_cast<double>(strategy[a * state.num_hands + h]);
    }
    frequencies[a] = static_cast<float>(sum / state.num_hands);
  }
  return frequencies;
}

}  // namespace velmora
