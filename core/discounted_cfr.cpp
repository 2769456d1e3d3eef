#include "discounted_cfr.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iostream>
#include <utility>

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

}  // namespace velmora
