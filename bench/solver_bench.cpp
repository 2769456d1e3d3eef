// Whole iterations and measures of the solver against the plain one, and what comes before and
// after.
#include <memory>

#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "discounted_cfr.h"
#include "plain_solver.h"
#include "results/snapshot.h"
#include "side_by_side.h"

namespace {

struct Rivals {
  Rivals(const velmora_app::SolveConfig& config, std::size_t threads)
      : game(make_bench_game(config)), plain(*game, threads) {
    velmora::SolverOptions options;
    options.threads = threads;
    fast = std::make_unique<velmora::DiscountedCfr>(std::move(options));
    fast->prepare_states(*game);
    for (; iteration < kWarmUp; ++iteration) {
      plain.run_iteration(iteration);
      fast->run_iteration(*game, iteration);
    }
  }

  /// Iterations until strategies have their usual zeros.
  static constexpr std::uint32_t kWarmUp = 8;

  std::unique_ptr<velmora::Game> game;
  velmora_plain::PlainSolver plain;
  std::unique_ptr<velmora::DiscountedCfr> fast;
  std::uint32_t iteration = 0;
};

void iteration(benchmark::State& state, velmora_app::SolveConfig (*spot)()) {
  Rivals rivals(spot(), static_cast<std::size_t>(state.range(0)));
  std::uint32_t i = rivals.iteration;
  side_by_side(
      state, [&] { rivals.plain.run_iteration(i); },
      [&] { rivals.fast->run_iteration(*rivals.game, i++); });
  if (rivals.plain.measure_exploitability() != rivals.fast->measure_exploitability(*rivals.game)) {
    state.SkipWithError("The two solvers differ");
  }
}

void measure(benchmark::State& state, velmora_app::SolveConfig (*spot)()) {
  Rivals rivals(spot(), static_cast<std::size_t>(state.range(0)));
  side_by_side(
      state, [&] { benchmark::DoNotOptimize(rivals.plain.measure_exploitability()); },
      [&] { benchmark::DoNotOptimize(rivals.fast->measure_exploitability(*rivals.game)); });
}

/// A measure against an iteration, both of the fast solver: `ratio` is measures an iteration.
void measure_against_iteration(benchmark::State& state, velmora_app::SolveConfig (*spot)()) {
  Rivals rivals(spot(), static_cast<std::size_t>(state.range(0)));
  std::uint32_t i = rivals.iteration;
  side_by_side(
      state, [&] { rivals.fast->run_iteration(*rivals.game, i++); },
      [&] { benchmark::DoNotOptimize(rivals.fast->measure_exploitability(*rivals.game)); });
}

/// The second thread: `plain` is one thread and `fast` two, both of the fast solver.
void second_thread(benchmark::State& state, velmora_app::SolveConfig (*spot)()) {
  Rivals one(spot(), 1);
  Rivals two(spot(), 2);
  std::uint32_t i = one.iteration;
  side_by_side(
      state, [&] { one.fast->run_iteration(*one.game, i); },
      [&] { two.fast->run_iteration(*two.game, i++); });
}

void per_spot(benchmark::internal::Benchmark* run) {
  run->ArgName("threads")->Arg(1)->Arg(2)->Iterations(7)->Unit(benchmark::kMillisecond);
}
BENCHMARK_CAPTURE(iteration, quick, &quick_spot)->Apply(per_spot);
BENCHMARK_CAPTURE(iteration, two_sizes, &two_size_spot)->Apply(per_spot);
BENCHMARK_CAPTURE(measure, quick, &quick_spot)->Apply(per_spot);
BENCHMARK_CAPTURE(measure, two_sizes, &two_size_spot)->Apply(per_spot);
BENCHMARK_CAPTURE(measure_against_iteration, quick, &quick_spot)->Apply(per_spot);
BENCHMARK_CAPTURE(measure_against_iteration, two_sizes, &two_size_spot)->Apply(per_spot);
BENCHMARK_CAPTURE(second_thread, quick, &quick_spot)->Iterations(7)->Unit(benchmark::kMillisecond);

/// Card context and tree of the quick spot, on all processors.
void set_up(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(make_bench_game(quick_spot()));
}
BENCHMARK(set_up)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The records of all nodes that a run delivers, with two threads.
void snapshot(benchmark::State& state) {
  const auto game = make_bench_game(quick_spot());
  velmora::SolverOptions options;
  options.threads = 2;
  velmora::DiscountedCfr solver(std::move(options));
  solver.prepare_states(*game);
  solver.run_iteration(*game, 0);
  for (auto _ : state) {
    velmora_app::SolveResult result;
    fill_nodes(*game, solver, 2, result);
    benchmark::DoNotOptimize(result.nodes);
  }
}
BENCHMARK(snapshot)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
