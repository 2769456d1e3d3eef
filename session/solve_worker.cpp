#include "solve_worker.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <stdexcept>

#include "betting_rules.h"
#include "discounted_cfr.h"
#include "game.h"
#include "memory_estimate.h"
#include "node_locks.h"
#include "results/snapshot.h"
#include "spot.h"
#include "system_memory.h"

namespace velmora_app {
namespace {

/// Reports before the end stay below a full bar.
constexpr double kMostProgress = 0.999;

/// The same text in every locale.
std::string iteration_status(std::uint32_t iteration, float exploitability) {
  std::array<char, 64> digits{};
  char* const end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                  static_cast<double>(exploitability), std::chars_format::fixed, 4)
                        .ptr;
  return "Iter " + std::to_string(iteration) + " | exploitability≈" +
         std::string(digits.data(), end);
}

/// The system hands out more memory than it has and ends the program that uses it; so a spot that
/// can't fit is refused before its tree and tables are made.
void check_memory(const SolveConfig& config, const velmora::GameSettings& settings,
                  const velmora::CardContext& cards) {
  const std::uint64_t available = available_memory_bytes();
  if (available == 0) return;
  velmora::PlanCounter counter(settings, cards);
  const velmora::PlanCounts counts = counter.count(velmora::root_point(settings, cards.board()));
  const std::uint64_t needed =
      peak_memory_bytes(config, settings, cards, counts, counter.betting_trees());
  if (needed > available) throw std::runtime_error(memory_shortage(needed, available));
}

double seconds_since(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

double fraction_of(std::uint32_t iterations, std::uint32_t max_iterations) {
  if (max_iterations == 0) return 0;
  return std::clamp(static_cast<double>(iterations) / max_iterations, 0.0, kMostProgress);
}

SolvedSpot run_solve(const SolveConfig& config, const std::function<bool()>& cancelled,
                     const std::function<bool()>& stopped,
                     const std::function<void(const SolveProgress&)>& report, SolveResult& result) {
  const auto start = std::chrono::steady_clock::now();
  const auto stage = [&report](double progress, const char* status) {
    SolveProgress p;
    p.progress = progress;
    p.status = status;
    report(p);
  };

  // Step 1. The request.
  result.board = config.board;
  const SpotCards spot = translate_cards(config);
  velmora::GameSettings settings = translate_settings(config);
  result.starting_pot = config.starting_pot;
  result.effective_stack = config.effective_stack;
  translate_sizing(config, settings);

  // Step 2. The game.
  stage(0, "Init: building game object...");
  check_ranges_meet(spot);
  velmora::CardContext cards(spot.board, spot.weights);
  check_memory(config, settings, cards);
  const auto game = std::make_shared<velmora::Game>(std::move(settings), std::move(cards));
  if (!config.node_locks.empty()) velmora::build_node_locks(*game, config.node_locks);

  // Step 3. The solver.
  velmora::SolverOptions options;
  options.max_iterations = config.max_iterations;
  options.target_exploitability = config.target_exploitability;
  options.check_interval = kCheckInterval;
  options.compressed_storage = config.compressed_storage;
  options.threads = config.thread_count;
  options.cancel = cancelled;
  options.stop = stopped;
  options.progress = [&](std::uint32_t iteration, float exploitability, double) {
    SolveProgress p;
    p.progress = fraction_of(iteration, config.max_iterations);
    p.status = iteration_status(iteration, exploitability);
    p.iteration = iteration;
    p.exploitability = exploitability;
    report(p);
  };
  stage(0, "Init: building game tree structures...");
  const auto solver = std::make_shared<velmora::DiscountedCfr>(std::move(options));
  stage(0, "Init: starting solver...");
  result.build_seconds = seconds_since(start);
  if (stopped() && !cancelled() && config.max_iterations > 0) {
    // Before the tables are made, which takes a while for a large tree.
    result.stopped = true;
    return {};
  }
  const auto solve_start = std::chrono::steady_clock::now();
  solver->run(*game);
  result.solve_seconds = seconds_since(solve_start);
  if (cancelled()) return {};
  result.stopped = solver->stopped();
  result.stalled = solver->stalled();
  if (result.stopped && solver->iterations_done() == 0) return {};

  // Step 4. The result.
  const double done = fraction_of(solver->iterations_done(), config.max_iterations);
  stage(done, "Finalizing: computing results...");
  fill_summary(*game, *solver, result);
  stage(done, "Finalizing: building result snapshot...");
  fill_nodes(*game, *solver, solver->worker_count(), result);
  return {game, solver};
}

}  // namespace velmora_app
