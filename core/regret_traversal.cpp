// One traversal of the tree for one seat, which updates its regrets and strategy sums on the way
// back.
#include <algorithm>
#include <cmath>

#include "chance_node.h"
#include "discounted_cfr.h"
#include "kernels.h"
#include "opponent_node.h"
#include "river_payoffs.h"
#include "terminal_payoff.h"

namespace velmora {
namespace {

/// A chance node is worth spreading over the pool from these on.
constexpr std::size_t kLeastChildren = 12;
constexpr std::size_t kLeastHands = 128;
constexpr std::size_t kGreatestDepth = 6;

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

void clear(std::span<float> result) {
  std::fill(result.begin(), result.end(), 0.0F);
}

}  // namespace

void DiscountedCfr::solve_recursive(const Game& game, std::size_t node_index, Seat seat,
                                    std::span<const float> reach, std::span<float> result,
                                    std::size_t depth, ScratchStack& scratch) {
  const PlanNode& node = game.nodes()[node_index];
  if (node.kind == NodeKind::kTerminal) {
    // Also where cards are still to come: a called all-in is evaluated on the spot.
    terminal_payoff(game, node, seat, reach, result);
    return;
  }
  if (node.actions.empty() || result.empty()) {
    clear(result);
    return;
  }
  if (node.kind == NodeKind::kChance) {
    const bool fans_out = pool_ && !WorkerPool::in_worker() &&
                          node.children.size() >= kLeastChildren && reach.size() >= kLeastHands &&
                          depth <= kGreatestDepth && states_.parallel_safe(node_index);
    const bool deals_river = node.turn != kNoCard && node.river == kNoCard;
    chance_values(game, node, seat, reach, result, scratch.frame_at(depth), scratch,
                  fans_out ? pool_.get() : nullptr,
                  [&](std::size_t child, std::span<const float> child_reach, std::span<float> row,
                      ScratchStack& own) {
                    if (deals_river) {
                      solve_river(game, child, seat, child_reach, row, depth + 1, own);
                    } else {
                      solve_recursive(game, child, seat, child_reach, row, depth + 1, own);
                    }
                  });
    return;
  }
  solve_decision(game, node_index, seat, reach, result, depth, scratch,
                 [&](std::size_t child, std::span<const float> child_reach, std::span<float> row) {
                   solve_recursive(game, child, seat, child_reach, row, depth + 1, scratch);
                 });
}

/// What lies below a dealt river card, from its first decision on: no card follows, and all
/// terminal nodes share the lists of one run-out.
void DiscountedCfr::solve_river(const Game& game, std::size_t root, Seat seat,
                                std::span<const float> root_reach, std::span<float> root_result,
                                std::size_t root_depth, ScratchStack& scratch) {
  const std::span<const PlanNode> nodes = game.nodes();
  const RiverPayoffs payoffs(game, nodes[root].turn, nodes[root].river, seat);
  const auto walk = [&](const auto& self, std::size_t node_index, std::span<const float> reach,
                        std::span<float> result, std::size_t depth) -> void {
    const PlanNode& node = nodes[node_index];
    if (node.kind == NodeKind::kDecision && !node.actions.empty()) {
      solve_decision(game, node_index, seat, reach, result, depth, scratch,
                     [&](std::size_t child, std::span<const float> child_reach,
                         std::span<float> row) { self(self, child, child_reach, row, depth + 1); });
      return;
    }
    clear(result);
    if (node.kind == NodeKind::kTerminal) payoffs.terminal(node, reach, result);
  };
  walk(walk, root, root_reach, root_result, root_depth);
}

/// A decision node; `walk(child, reach, row)` evaluates a child into a row.
template <typename Walk>
void DiscountedCfr::solve_decision(const Game& game, std::size_t node_index, Seat seat,
                                   std::span<const float> reach, std::span<float> result,
                                   std::size_t depth, ScratchStack& scratch, const Walk& walk) {
  const PlanNode& node = game.nodes()[node_index];
  const NodeState& state = states_.node(node_index);
  const std::size_t num_actions = node.actions.size();
  const std::size_t own_stride = padded(result.size());
  ScratchFrame& frame = scratch.frame_at(depth);

  if (state.seat != seat) {
    // Step 1. The other seat acts: its strategy splits its reach over the actions.
    if (num_actions == 1) {
      walk(node.children[0], reach, result);
      return;
    }
    if (state.num_hands != reach.size()) {
      clear(result);
      return;
    }
    const std::size_t stride = state.row_length();
    float* const strategy = frame.opp_strategy.rows(num_actions, reach.size());
    regret_match(strategy, frame.opp_denominators.row(reach.size()).data(),
                 states_.regrets(state, frame.regrets), num_actions, stride);
    if (const LockTable* lock = game.find_node_lock(node_index)) {
      apply_lock(strategy, *lock, num_actions, reach.size());
    }
    opponent_values(node, strategy, reach, result, frame, walk);
    return;
  }

  // Step 2. The traversing seat acts: first the value of each action.
  if (state.num_hands != result.size()) {
    clear(result);
    return;
  }
  float* const values = frame.action_values.rows(num_actions, result.size());
  for (std::size_t a = 0; a < num_actions; ++a) {
    walk(node.children[a], reach, std::span<float>(values + a * own_stride, result.size()));
  }

  // Step 3. The current strategy and its value.
  float* const regrets = states_.ensure_regrets(state, frame.regrets);
  float* const sums = states_.ensure_strategy_sums(state, frame.strategy_sums);
  float* const strategy = frame.strategy.rows(num_actions, result.size());
  regret_match(strategy, frame.denominators.row(result.size()).data(), regrets, num_actions,
               own_stride);
  const LockTable* const lock = game.find_node_lock(node_index);
  if (lock) apply_lock(strategy, *lock, num_actions, result.size());
  weighted_action_sum(result.data(), strategy, values, num_actions, own_stride);

  // Step 4. What is learnt. A node with a lock keeps its regrets, for all of its hands.
  update_strategy_sum(sums, strategy, discount_.gamma_t, num_actions * own_stride);
  states_.store_strategy_sums(node_index, sums);
  if (!lock) {
    update_regrets(regrets, values, result.data(), num_actions, own_stride, discount_.alpha_t,
                   discount_.beta_t);
    states_.store_regrets(node_index, regrets);
  }
}

}  // namespace velmora
