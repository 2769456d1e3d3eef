// What a solved game tells: expected values, best responses and average strategies.
#include <algorithm>
#include <utility>

#include "discounted_cfr.h"
#include "kernels.h"

namespace velmora {

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
