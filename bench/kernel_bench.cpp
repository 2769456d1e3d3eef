// Nanoseconds of each kernel, by call and by list entry, and of whole iterations.
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench_spots.h"
#include "discounted_cfr.h"
#include "game.h"
#include "instruction_set.h"
#include "kernels.h"
#include "river_payoffs.h"
#include "rows.h"
#include "spot_translation.h"
#include "terminal_payoff.h"

namespace {

constexpr std::size_t kActions = 3;

std::unique_ptr<velmora::Game> make_game(const velmora_app::SolveConfig& config) {
  const velmora_app::SpotCards cards = translate_cards(config);
  velmora::GameSettings settings = translate_settings(config);
  translate_sizing(config, settings);
  return std::make_unique<velmora::Game>(std::move(settings),
                                         velmora::CardContext(cards.board, cards.weights));
}

/// The game of a spot of the fixed set, by its place in it.
const velmora::Game& bench_game(std::size_t index) {
  static std::vector<std::unique_ptr<velmora::Game>> games(bench_spots().size());
  if (!games[index]) games[index] = make_game(bench_spots()[index].config);
  return *games[index];
}

constexpr std::size_t kRiver = 0;
constexpr std::size_t kRakedRiver = 1;
constexpr std::size_t kTurn = 2;

std::vector<float> random_row(std::size_t n) {
  std::mt19937 random(1);
  std::uniform_real_distribution<float> value(-1.0F, 1.0F);
  std::vector<float> row(n);
  for (float& x : row) x = value(random);
  return row;
}

void report_entries(benchmark::State& state, std::size_t entries) {
  state.counters["entries"] = static_cast<double>(entries);
  state.counters["time/entry"] = benchmark::Counter(
      static_cast<double>(entries),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// A kernel over rows of the river spot's length.
template <typename Run>
void row_kernel(benchmark::State& state, const Run& run) {
  const std::size_t hands = velmora::padded(bench_game(kRiver).num_hands(velmora::kIp));
  std::vector<float> table = random_row(kActions * hands);
  const std::vector<float> values = random_row(kActions * hands);
  std::vector<float> strategy(kActions * hands);
  std::vector<float> row(hands);
  for (auto _ : state) {
    run(table.data(), values.data(), strategy.data(), row.data(), hands);
    benchmark::DoNotOptimize(table.data());
    benchmark::DoNotOptimize(strategy.data());
    benchmark::DoNotOptimize(row.data());
    benchmark::ClobberMemory();
  }
  report_entries(state, kActions * hands);
}

void regret_match(benchmark::State& state) {
  row_kernel(state, [](float* table, const float*, float* strategy, float* row, std::size_t n) {
    velmora::regret_match(strategy, row, table, kActions, n);
  });
}
void weighted_action_sum(benchmark::State& state) {
  row_kernel(state, [](float* table, const float* values, float*, float* row, std::size_t n) {
    velmora::weighted_action_sum(row, table, values, kActions, n);
  });
}
void update_strategy_sum(benchmark::State& state) {
  row_kernel(state, [](float* table, const float* values, float*, float*, std::size_t n) {
    velmora::update_strategy_sum(table, values, 0.5F, kActions * n);
  });
}
void update_regrets(benchmark::State& state) {
  row_kernel(state, [](float* table, const float* values, float*, float* row, std::size_t n) {
    velmora::update_regrets(table, values, row, kActions, n, 0.5F, 0.5F);
  });
}
void row_multiply(benchmark::State& state) {
  row_kernel(state, [](float* table, const float* values, float* strategy, float*, std::size_t n) {
    velmora::row_multiply(strategy, table, values, kActions * n);
  });
}
void sum_actions(benchmark::State& state) {
  row_kernel(state, [](float* table, const float*, float*, float* row, std::size_t n) {
    velmora::sum_actions(row, table, kActions, n);
  });
}
void average_strategy_rows(benchmark::State& state) {
  row_kernel(state, [](float* table, const float*, float* strategy, float*, std::size_t n) {
    velmora::average_strategy_rows(strategy, table, kActions, n);
  });
}
BENCHMARK(regret_match);
BENCHMARK(weighted_action_sum);
BENCHMARK(update_strategy_sum);
BENCHMARK(update_regrets);
BENCHMARK(row_multiply);
BENCHMARK(sum_actions);
BENCHMARK(average_strategy_rows);

/// A terminal node of a game, evaluated for the seat in position.
void terminal(benchmark::State& state, const velmora::Game& game, velmora::ActionKind last_action,
              velmora::CardCode turn, velmora::CardCode river) {
  velmora::PlanNode node;
  node.kind = velmora::NodeKind::kTerminal;
  node.pot = game.settings().starting_pot;
  node.last_action = last_action;
  node.turn = turn;
  node.river = river;
  const std::vector<float>& reach = game.cards().hand_weights(velmora::kOop);
  std::vector<float> result(game.num_hands(velmora::kIp));
  for (auto _ : state) {
    velmora::terminal_payoff(game, node, velmora::kIp, reach, result);
    benchmark::DoNotOptimize(result.data());
    benchmark::ClobberMemory();
  }
  report_entries(state, reach.size() + result.size());
}

void fold_payoff(benchmark::State& state) {
  const velmora::Game& game = bench_game(kRiver);
  terminal(state, game, velmora::ActionKind::kFold, game.cards().board().turn,
           game.cards().board().river);
}
void showdown_payoff(benchmark::State& state) {
  const velmora::Game& game = bench_game(kRiver);
  terminal(state, game, velmora::ActionKind::kCall, game.cards().board().turn,
           game.cards().board().river);
}
void showdown_payoff_raked(benchmark::State& state) {
  const velmora::Game& game = bench_game(kRakedRiver);
  terminal(state, game, velmora::ActionKind::kCall, game.cards().board().turn,
           game.cards().board().river);
}
void runout_payoff_of_a_turn(benchmark::State& state) {
  const velmora::Game& game = bench_game(kTurn);
  terminal(state, game, velmora::ActionKind::kCall, game.cards().board().turn, velmora::kNoCard);
}
BENCHMARK(fold_payoff);
BENCHMARK(showdown_payoff);
BENCHMARK(showdown_payoff_raked);
BENCHMARK(runout_payoff_of_a_turn);

/// One iteration of a spot of the fixed set, on one thread.
void iteration(benchmark::State& state) {
  const auto index = static_cast<std::size_t>(state.range(0));
  const BenchSpot spot = bench_spots()[index];
  const auto game = make_game(spot.config);
  velmora::SolverOptions options;
  options.compressed_storage = spot.config.compressed_storage;
  velmora::DiscountedCfr solver(std::move(options));
  solver.prepare_states(*game);
  std::uint32_t i = 0;
  for (auto _ : state) solver.run_iteration(*game, i++);
  state.SetLabel(spot.name);
}
BENCHMARK(iteration)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

}  // namespace
