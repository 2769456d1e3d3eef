#include "plain_solver.h"

#include <algorithm>

#include "plain_kernels.h"
#include "rows.h"

namespace velmora_plain {

using velmora::NodeKind;
using velmora::opponent_of;
using velmora::padded;

PlainSolver::PlainSolver(const Game& game, std::size_t threads, bool compressed)
    : game_(game), compressed_(compressed), first_cell_(game.nodes().size()) {
  std::size_t cells = 0;
  for (std::size_t i = 0; i < first_cell_.size(); ++i) {
    const PlanNode& node = game.nodes()[i];
    first_cell_[i] = cells;
    if (node.kind == NodeKind::kDecision) {
      cells += node.actions.size() * padded(game.num_hands(node.seat));
    }
  }
  regrets_ = velmora::PageArray<float>(cells);
  sums_ = velmora::PageArray<float>(cells);
  if (threads > 1) pool_ = std::make_unique<velmora::WorkerPool>(threads - 1);
}

void PlainSolver::run_iteration(std::uint32_t i) {
  discount_ = velmora::discount_params(i);
  for (const Seat seat : {velmora::kOop, velmora::kIp}) {
    from_root(Walk::kLearn, seat, scratch_[seat]);
  }
}

std::vector<float> PlainSolver::from_root(Walk walk, Seat seat, ScratchStack& scratch) {
  velmora::FloatList reach;
  velmora::FloatList values;
  const std::vector<float>& weights = game_.cards().hand_weights(opponent_of(seat));
  const Rows reach_row = reach.row(weights.size());
  std::copy(weights.begin(), weights.end(), reach_row.begin());
  const Rows result = values.row(game_.num_hands(seat));
  visit(walk, 0, seat, reach_row, result, 0, scratch);
  return {result.begin(), result.end()};
}

std::array<float, 2> PlainSolver::measure(bool best) {
  std::array<float, 2> gains{};
  for (const Seat seat : {velmora::kOop, velmora::kIp}) {
    ScratchStack scratch;
    const std::vector<float> values = from_root(best ? Walk::kBest : Walk::kAverage, seat, scratch);
    double gain = 0;
    for (std::size_t h = 0; h < values.size(); ++h) {
      gain +=
          static_cast<double>(game_.cards().hand_weights(seat)[h]) * static_cast<double>(values[h]);
    }
    gains[seat] = static_cast<float>(gain);
  }
  return gains;
}

float PlainSolver::measure_exploitability() {
  const std::array<float, 2> best = measure(true);
  double sum = static_cast<double>(best[1]) + static_cast<double>(best[0]);
  if (game_.settings().rake_fraction > 0 && game_.settings().rake_cap > 0) {
    const std::array<float, 2> expected = measure(false);
    sum = static_cast<double>(best[1] - expected[1]) + static_cast<double>(best[0] - expected[0]);
  }
  return static_cast<float>(sum * 0.5);
}

void PlainSolver::squeeze(float* table, std::size_t num_actions, std::size_t num_hands) const {
  if (!compressed_) return;
  std::vector<std::int16_t> q(num_actions * padded(num_hands));
  float scale = 1;
  velmora::quantize_block(num_actions, num_hands, table, q.data(), scale);
  velmora::dequantize_block(num_actions, num_hands, q.data(), scale, table);
}

void PlainSolver::visit(Walk walk, std::size_t index, Seat seat, Reach reach, Rows result,
                        std::size_t depth, ScratchStack& scratch) {
  const PlanNode& node = game_.nodes()[index];
  if (node.kind == NodeKind::kTerminal) {
    terminal_payoff(game_, node, seat, reach, result);
  } else if (node.actions.empty()) {
    std::fill(result.begin(), result.end(), 0.0F);
  } else if (node.kind == NodeKind::kChance) {
    visit_chance(walk, index, seat, reach, result, depth, scratch);
  } else if (node.seat == seat) {
    visit_own(walk, index, seat, reach, result, depth, scratch);
  } else {
    visit_other(walk, index, seat, reach, result, depth, scratch);
  }
}

void PlainSolver::visit_chance(Walk walk, std::size_t index, Seat seat, Reach reach, Rows result,
                               std::size_t depth, ScratchStack& scratch) {
  const PlanNode& node = game_.nodes()[index];
  const std::size_t children = node.children.size();
  const std::size_t stride = padded(result.size());
  ScratchFrame& frame = scratch.frame_at(depth);
  const Rows scaled = frame.scaled_reach.row(reach.size());
  scale_row(scaled.data(), reach.data(), 1.0F / (node.turn == velmora::kNoCard ? 45.0F : 44.0F),
            reach.size());
  float* const rows = frame.child_rows.rows(children, result.size());
  velmora::parallel_for(velmora::WorkerPool::in_worker() ? nullptr : pool_.get(), children,
                        [&](std::size_t begin, std::size_t end) {
                          ScratchStack fresh;
                          ScratchStack& own = pool_ ? fresh : scratch;
                          for (std::size_t c = begin; c < end; ++c) {
                            visit(walk, node.children[c], seat, scaled,
                                  {rows + c * stride, result.size()}, depth + 1, own);
                          }
                        });
  std::fill(result.begin(), result.end(), 0.0F);
  for (std::size_t c = 0; c < children; ++c) {
    add_row(result.data(), rows + c * stride, result.size());
  }
  const std::vector<std::uint8_t>& refs = game_.chance_refs(node);
  for (std::size_t i = 0; i < refs.size(); ++i) {
    std::vector<float> swapped(rows + refs[i] * stride, rows + refs[i] * stride + result.size());
    for (const auto& [x, y] : game_.chance_swaps(node, i)[seat]) std::swap(swapped[x], swapped[y]);
    add_row(result.data(), swapped.data(), result.size());
  }
}

void PlainSolver::visit_other(Walk walk, std::size_t index, Seat seat, Reach reach, Rows result,
                              std::size_t depth, ScratchStack& scratch) {
  const PlanNode& node = game_.nodes()[index];
  const std::size_t A = node.actions.size();
  const std::size_t hands = reach.size();
  const std::size_t stride = padded(hands);
  const std::size_t own_stride = padded(result.size());
  if (A == 1) {
    visit(walk, node.children[0], seat, reach, result, depth + 1, scratch);
    return;
  }
  ScratchFrame& frame = scratch.frame_at(depth);
  float* const strategy = frame.opp_strategy.rows(A, hands);
  if (walk == Walk::kLearn) {
    regret_match(strategy, frame.opp_denominators.row(hands).data(), regrets(index), A, hands,
                 stride);
    if (const LockTable* lock = game_.find_node_lock(index)) {
      apply_lock(strategy, *lock, A, hands, stride);
    }
  } else {
    average_strategy(strategy, sums(index), A, hands, stride);
  }
  float* const split = frame.action_reach.rows(A, hands);
  float* const values = frame.action_values.rows(A, result.size());
  for (std::size_t a = 0; a < A; ++a) {
    row_multiply(split + a * stride, strategy + a * stride, reach.data(), hands);
  }
  for (std::size_t a = 0; a < A; ++a) {
    visit(walk, node.children[a], seat, {split + a * stride, hands},
          {values + a * own_stride, result.size()}, depth + 1, scratch);
  }
  sum_actions(result.data(), values, A, result.size(), own_stride);
}

void PlainSolver::visit_own(Walk walk, std::size_t index, Seat seat, Reach reach, Rows result,
                            std::size_t depth, ScratchStack& scratch) {
  const PlanNode& node = game_.nodes()[index];
  const std::size_t A = node.actions.size();
  const std::size_t hands = result.size();
  const std::size_t stride = padded(hands);
  ScratchFrame& frame = scratch.frame_at(depth);
  float* const values = frame.action_values.rows(A, hands);
  for (std::size_t a = 0; a < A; ++a) {
    visit(walk, node.children[a], seat, reach, {values + a * stride, hands}, depth + 1, scratch);
  }
  const LockTable* const lock = game_.find_node_lock(index);
  float* const strategy = frame.strategy.rows(A, hands);
  float* const sum_table = sums_.data() + first_cell_[index];
  if (walk == Walk::kBest) {
    best_values(result.data(), values, lock, A, hands, stride);
    return;
  }
  if (walk == Walk::kAverage) {
    average_strategy(strategy, sum_table, A, hands, stride);
    expected_values(result.data(), strategy, values, A, hands, stride);
    return;
  }
  float* const regret_table = regrets_.data() + first_cell_[index];
  regret_match(strategy, frame.denominators.row(hands).data(), regret_table, A, hands, stride);
  if (lock) apply_lock(strategy, *lock, A, hands, stride);
  weighted_action_sum(result.data(), strategy, values, A, hands, stride);
  for (std::size_t a = 0; a < A; ++a) {
    update_strategy_sum(sum_table + a * stride, strategy + a * stride, discount_.gamma_t, hands);
  }
  squeeze(sum_table, A, hands);
  if (lock) return;
  update_regrets(regret_table, values, result.data(), A, hands, stride, discount_.alpha_t,
                 discount_.beta_t);
  squeeze(regret_table, A, hands);
}

}  // namespace velmora_plain
