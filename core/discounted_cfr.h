// Discounted counterfactual regret minimisation on a two-seat game.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "game.h"
#include "scratch.h"
#include "solver_state.h"
#include "street_shape.h"
#include "traversal.h"
#include "worker_pool.h"

namespace velmora {

struct SolverOptions {
  std::uint32_t max_iterations = 0;  ///< Each is one traversal for each seat.
  float target_exploitability = 0;   ///< Chips.
  std::uint32_t check_interval = 0;  ///< Iterations between measures; 0: only at the last one.
  bool verbose = false;              ///< "[CFR]" lines on standard output.
  bool compressed_storage = false;   ///< Tables as 16-bit integers at rest.
  std::uint64_t threads = 1;         ///< 0 counts as 1.
  /// Called after each iteration with its count from 1, the last measured exploitability (chips)
  /// and its milliseconds; may be empty.
  std::function<void(std::uint32_t, float, double)> progress;
  /// Asked before each iteration whether to stop; may be empty.
  std::function<bool()> cancel;
  /// Asked before each iteration whether to end the run with what there is: it is measured, and
  /// then the run is over. May be empty.
  std::function<bool()> stop;
};

/// Notices that the exploitability of a game with node locks falls no more. At a locked node the
/// hands that are free don't learn, so it has a limit above 0 that no number of iterations goes
/// below. While a solve converges, each doubling of the iterations brings the exploitability down
/// by a fixed share (a half at a rate of 1/t, three tenths at the guaranteed 1/sqrt(t)), however
/// late it is. So the solve has stalled once the best measure of the second half of its iterations
/// is less than a hundredth below the best one of the first half.
class StallWatch {
 public:
  /// Measures before a verdict.
  static constexpr std::size_t kLeastMeasures = 10;
  static constexpr double kLeastFall = 0.01;

  /// Takes the measures in order; they must be equally many iterations apart. True if the solve has
  /// stalled.
  bool add(float exploitability);

 private:
  std::vector<float> measures_;
};

/// The discounts of the iteration with index i, from 0: exponents 1.5, 0 and 3 on the iteration
/// count, where the count of the strategy sums restarts at each power of 4.
DiscountParams discount_params(std::uint32_t i);

/// Vector-form Discounted CFR (N. Brown, T. Sandholm, "Solving Imperfect-Information Games via
/// Discounted Regret Minimization", AAAI 2019): each traversal carries the whole range at once and
/// visits every deal, apart from those that suit symmetry folds into another one. Two players, zero
/// sum apart from the rake, perfect recall. The current strategies do not converge, their average
/// does. The numbers don't depend on the number of threads or the instruction set.
///
/// Per-hand values are counterfactual: chips over the game's total matchup weight, times the reach
/// of the opposing hands that can be met, counted from the seat's half of the pot. Folded with the
/// seat's hand weights at the root they give its expected gain in chips.
///
/// One object serves one game: construct, `run` once, then read. After `run` any number of threads
/// may read.
class DiscountedCfr {
 public:
  /// Starts `threads - 1` pool threads; no tables yet.
  explicit DiscountedCfr(SolverOptions options);

  /// Bytes that a solver holds from its first iteration to its end: the tables, the shape of the
  /// betting trees and the scratch memory of the iterations.
  static double held_bytes(const CardContext& cards, const PlanCounts& counts,
                           const BettingTrees& trees, bool compressed, std::size_t workers);
  /// Bytes that a measure of the exploitability takes beside these and gives back.
  static double measure_bytes(const GameSettings& settings, const CardContext& cards,
                              const BettingTrees& trees, std::size_t workers);

  /// The whole solve, on the calling thread and the pool. Throws `std::bad_alloc`, also when
  /// memory ran out on a pool thread.
  void run(Game& game);

  /// Mean gain, in chips, of the two seats from deviating to a best response, as last measured; 0
  /// before the first measure.
  float exploitability() const { return exploitability_; }
  /// Count of the iteration last begun.
  std::uint32_t iterations_done() const { return iterations_done_; }

  /// True if the last run was ended by `SolverOptions::stop`.
  bool stopped() const { return stopped_; }
  /// True if the last run ended because node locks keep the exploitability from falling further.
  bool stalled() const { return stalled_; }

  /// What each seat expects, in chips, when both play their average strategies.
  std::array<float, 2> cf_values(const Game& game) const;
  /// What each seat expects if it plays a best response to the other's average strategy. A locked
  /// hand can't deviate.
  std::array<float, 2> best_cf_values(const Game& game) const;

  /// Value of each hand of `seat` at a node when both seats play their average strategies, against
  /// the other seat's range weights as reach.
  std::vector<float> compute_cfvalue(const Game& game, std::size_t node, Seat seat) const;
  /// The same against a given reach, by hand of the other seat; zeros if its length doesn't fit.
  std::vector<float> compute_cfvalue(const Game& game, std::size_t node, Seat seat,
                                     std::span<const float> opponent_reach) const;

  /// Action-major, `num_actions * num_hands` frequencies without padding. Empty for a node that is
  /// out of range or no decision node.
  std::vector<float> average_strategy(std::size_t node) const;
  /// For each action the plain mean of the average strategy over all hands of the seat, each hand
  /// counting the same; same empty cases.
  std::vector<float> average_action_frequencies(std::size_t node) const;

  /// Stages of `run`, for tests and measurements: allocates the tables; one iteration, i from 0.
  void prepare_states(Game& game);
  void run_iteration(const Game& game, std::uint32_t i);
  float measure_exploitability(const Game& game) const;

  const SolverState& states() const { return states_; }
  std::size_t worker_count() const { return pool_ ? pool_->size() + 1 : 1; }

 private:
  /// A rake is lost to both seats, so their values don't add up to 0 by themselves: a measure wants
  /// the best response and the average strategy of each.
  static bool needs_both_responses(const GameSettings& settings) {
    return settings.rake_fraction > 0 && settings.rake_cap > 0;
  }
  /// Values of a seat's hands at a node against a reach, by response.
  std::vector<std::vector<float>> measure_node(const Game& game, const StreetShape& shape,
                                               std::size_t node, Seat seat,
                                               std::span<const Response> responses,
                                               std::span<const float> opponent_reach) const;
  /// What each seat expects at the root, in chips, by response.
  std::vector<std::array<float, 2>> measure_root(const Game& game,
                                                 std::span<const Response> responses) const;

  SolverOptions options_;
  float exploitability_ = 0;
  std::uint32_t iterations_done_ = 0;
  bool stopped_ = false;
  bool stalled_ = false;
  SolverState states_;
  std::unique_ptr<WorkerPool> pool_;   ///< Absent with one worker.
  StreetShape shape_;                  ///< Of the whole tree.
  std::vector<ScratchStack> scratch_;  ///< By worker.
};

}  // namespace velmora
