#include "discounted_cfr.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iostream>
#include <utility>

#include "kernels.h"
#include "rows.h"

namespace velmora {

DiscountParams discount_params(std::uint32_t i) {
  const double t = i == 0 ? 0.0 : static_cast<double>(i - 1);
  const double p = t * std::sqrt(t);
  std::uint32_t restart = i == 0 ? 0 : 1;
  while (restart != 0 && restart <= i / 4) restart *= 4;
  const double d = static_cast<double>(i - restart);
  const double g = d / (d + 1);
  return {static_cast<float>(p / (p + 1)), 0.5F, static_cast<float>(g * g * g)};
}

bool StallWatch::add(float exploitability) {
  measures_.push_back(exploitability);
  if (measures_.size() < kLeastMeasures) return false;
  const auto half = measures_.begin() + static_cast<std::ptrdiff_t>(measures_.size() / 2);
  const float before = *std::min_element(measures_.begin(), half);
  const float since = *std::min_element(half, measures_.end());
  return static_cast<double>(since) > (1 - kLeastFall) * static_cast<double>(before);
}

DiscountedCfr::DiscountedCfr(SolverOptions options) : options_(std::move(options)) {
  if (options_.threads >= 2) pool_ = std::make_unique<WorkerPool>(options_.threads - 1);
}

double DiscountedCfr::held_bytes(const CardContext& cards, const PlanCounts& counts,
                                 const BettingTrees& trees, bool compressed, std::size_t workers) {
  double bytes = SolverState::bytes_for(counts, cards, compressed);
  for (const StreetCounts& street : trees) {
    bytes += static_cast<double>(street.nodes) * sizeof(StreetShape::Node);
  }
  double scratch = 0;
  for (const Seat seat : {kOop, kIp}) {
    scratch = std::max(scratch, Traversal::scratch_bytes(cards, trees, seat, true, 1, workers));
  }
  return bytes + scratch;
}

double DiscountedCfr::measure_bytes(const GameSettings& settings, const CardContext& cards,
                                    const BettingTrees& trees, std::size_t workers) {
  const std::size_t responses = needs_both_responses(settings) ? 2 : 1;
  double scratch = 0;
  for (const Seat seat : {kOop, kIp}) {
    scratch =
        std::max(scratch, Traversal::scratch_bytes(cards, trees, seat, false, responses, workers));
  }
  return scratch;
}

void DiscountedCfr::prepare_states(Game& game) {
  game.set_compressed_storage(options_.compressed_storage);
  states_.prepare(game, options_.compressed_storage, pool_.get());
  shape_ = street_shape(game, 0);
  scratch_ = std::vector<ScratchStack>(worker_count());
}

void DiscountedCfr::run(Game& game) {
  using Clock = std::chrono::steady_clock;
  exploitability_ = 0;
  iterations_done_ = 0;
  stopped_ = stalled_ = false;
  prepare_states(game);
  const Clock::time_point run_start = Clock::now();
  StallWatch stall_watch;
  bool measured = true;

  for (std::uint32_t i = 1; i <= options_.max_iterations && i != 0; ++i) {
    // Step 1. The iteration, unless somebody wants the run to end.
    if (options_.cancel && options_.cancel()) break;
    if (options_.stop && options_.stop()) {
      stopped_ = true;
      if (!measured) exploitability_ = measure_exploitability(game);
      break;
    }
    const Clock::time_point start = Clock::now();
    iterations_done_ = i;
    run_iteration(game, i - 1);

    // Step 2. The measure, at its interval and at the end.
    const bool checks = i == options_.max_iterations ||
                        (options_.check_interval != 0 && i % options_.check_interval == 0);
    if (checks) exploitability_ = measure_exploitability(game);
    measured = checks;

    // Step 3. The report.
    const auto micros =
        std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start).count();
    const double ms = static_cast<double>(micros) / 1000.0;
    if (options_.progress) options_.progress(i, exploitability_, ms);
    if (options_.verbose && (i % 50 == 0 || i == options_.max_iterations)) {
      std::cout << "[CFR] iteration " << i << " / " << options_.max_iterations
                << "  exploitability≈" << exploitability_ << "  iter≈" << ms << "ms" << std::endl;
    }

    // Step 4. The target, looked at where the exploitability is known.
    if (options_.check_interval != 0 && checks &&
        options_.target_exploitability >= exploitability_) {
      break;
    }
    const bool at_interval = options_.check_interval != 0 && i % options_.check_interval == 0;
    if (at_interval && game.has_node_locks() && stall_watch.add(exploitability_)) {
      stalled_ = i != options_.max_iterations;
      if (stalled_) break;
    }
  }

  if (options_.verbose) {
    const auto total =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - run_start).count();
    std::cout << "[CFR] completed " << iterations_done_ << " iterations in " << total
              << "ms  exploitability≈" << exploitability_ << std::endl;
  }
}

void DiscountedCfr::run_iteration(const Game& game, std::uint32_t i) {
  const DiscountParams discount = discount_params(i);
  for (const Seat seat : {kOop, kIp}) {
    const std::vector<float>& weights = game.cards().hand_weights(opponent_of(seat));
    FloatList reach;
    FloatList values;
    const std::span<float> reach_row = reach.row(weights.size());
    std::copy(weights.begin(), weights.end(), reach_row.begin());
    float* const result = values.row(game.num_hands(seat)).data();
    Traversal(game, states_, seat, discount, pool_.get(), scratch_)
        .run(shape_, 0, reach_row.data(), {&result, 1});
  }
}

std::vector<std::vector<float>> DiscountedCfr::measure_node(
    const Game& game, const StreetShape& shape, std::size_t node, Seat seat,
    std::span<const Response> responses, std::span<const float> opponent_reach) const {
  const std::size_t hands = game.num_hands(seat);
  FloatList reach;
  FloatList rows;
  std::vector<ScratchStack> scratch(worker_count());
  const std::span<float> reach_row = reach.row(opponent_reach.size());
  std::copy(opponent_reach.begin(), opponent_reach.end(), reach_row.begin());
  std::vector<float*> results;
  float* const first = rows.rows(responses.size(), hands);
  for (std::size_t r = 0; r < responses.size(); ++r) results.push_back(first + r * padded(hands));
  Traversal(game, states_, seat, responses, pool_.get(), scratch)
      .run(shape, static_cast<NodeIndex>(node), reach_row.data(), results);
  std::vector<std::vector<float>> values;
  for (const float* const row : results) values.emplace_back(row, row + hands);
  return values;
}

std::vector<std::array<float, 2>> DiscountedCfr::measure_root(
    const Game& game, std::span<const Response> responses) const {
  std::vector<std::array<float, 2>> gains(responses.size());
  for (const Seat seat : {kOop, kIp}) {
    const std::vector<std::vector<float>> values = measure_node(
        game, shape_, 0, seat, responses, game.cards().hand_weights(opponent_of(seat)));
    const std::vector<float>& weights = game.cards().hand_weights(seat);
    for (std::size_t r = 0; r < responses.size(); ++r) {
      double gain = 0;
      for (std::size_t h = 0; h < weights.size(); ++h) {
        gain += static_cast<double>(weights[h]) * static_cast<double>(values[r][h]);
      }
      gains[r][seat] = static_cast<float>(gain);
    }
  }
  return gains;
}

float DiscountedCfr::measure_exploitability(const Game& game) const {
  double sum = 0;
  if (needs_both_responses(game.settings())) {
    const auto gains = measure_root(game, std::array{Response::kBest, Response::kAverage});
    const std::array<float, 2>& best = gains[0];
    const std::array<float, 2>& expected = gains[1];
    sum = static_cast<double>(best[1] - expected[1]) + static_cast<double>(best[0] - expected[0]);
  } else {
    const std::array<float, 2> best = best_cf_values(game);
    sum = static_cast<double>(best[1]) + static_cast<double>(best[0]);
  }
  return static_cast<float>(sum * 0.5);
}

std::array<float, 2> DiscountedCfr::cf_values(const Game& game) const {
  return measure_root(game, std::array{Response::kAverage}).front();
}

std::array<float, 2> DiscountedCfr::best_cf_values(const Game& game) const {
  return measure_root(game, std::array{Response::kBest}).front();
}

std::vector<float> DiscountedCfr::compute_cfvalue(const Game& game, std::size_t node,
                                                  Seat seat) const {
  return compute_cfvalue(game, node, seat, game.cards().hand_weights(opponent_of(seat)));
}

std::vector<float> DiscountedCfr::compute_cfvalue(const Game& game, std::size_t node, Seat seat,
                                                  std::span<const float> opponent_reach) const {
  if (opponent_reach.size() != game.num_hands(opponent_of(seat)) || node >= states_.size()) {
    return std::vector<float>(game.num_hands(seat));
  }
  const StreetShape shape = street_shape(game, static_cast<NodeIndex>(node));
  return measure_node(game, shape, node, seat, std::array{Response::kAverage}, opponent_reach)
      .front();
}

std::vector<float> DiscountedCfr::average_strategy(std::size_t node) const {
  if (node >= states_.size()) return {};
  const NodeState& state = states_.node(node);
  if (!state.active || state.num_actions == 0 || state.num_hands == 0) return {};
  ScratchStack scratch;
  FloatList rows;
  float* const strategy = rows.rows(state.num_actions, state.num_hands);
  average_strategy_rows(strategy, states_.strategy_sums(state, scratch), state.num_actions,
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
