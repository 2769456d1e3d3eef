// The kernels against the plain ones, on real boards and ranges of the quick spot.
#include <random>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "huge_pages.h"
#include "kernels.h"
#include "payoffs.h"
#include "plain_kernels.h"
#include "rows.h"
#include "side_by_side.h"
#include "street_shape.h"

namespace {

using velmora::kIp;
using velmora::kOop;
using velmora::Seat;

/// The quick spot with or without its rake.
const velmora::Game& game_of(bool raked) {
  static const auto with_rake = make_bench_game(quick_spot());
  static const auto without_rake = [] {
    velmora_app::SolveConfig config = quick_spot();
    config.rake_percent = 0;
    return make_bench_game(config);
  }();
  return raked ? *with_rake : *without_rake;
}

/// The terminal nodes of the river betting trees below one board: of the line in which everybody
/// checks, or of all lines, as the solver sweeps them together.
std::vector<velmora::PlanNode> river_terminals(const velmora::Game& game, bool all_lines) {
  std::vector<velmora::PlanNode> terminals;
  const auto nodes = game.nodes();
  const auto walk = [&](const auto& self, const velmora::PlanNode& node) -> void {
    if (node.kind == velmora::NodeKind::kTerminal) {
      if (node.river != velmora::kNoCard) terminals.push_back(node);
      return;
    }
    const bool first_only =
        node.kind == velmora::NodeKind::kChance || (!all_lines && node.river == velmora::kNoCard);
    for (const velmora::NodeIndex child : node.children) {
      self(self, nodes[child]);
      if (first_only) break;
    }
  };
  walk(walk, nodes[0]);
  return terminals;
}

/// All run-outs of the flop.
std::vector<std::pair<velmora::CardCode, velmora::CardCode>> runouts(const velmora::Game& game) {
  std::vector<std::pair<velmora::CardCode, velmora::CardCode>> pairs;
  for (velmora::CardCode a = 0; a < velmora::kNumCards; ++a) {
    for (velmora::CardCode b = static_cast<velmora::CardCode>(a + 1); b < velmora::kNumCards; ++b) {
      if (!game.cards().runout_order(a, b).groups.empty()) pairs.emplace_back(a, b);
    }
  }
  return pairs;
}

/// Rows as the solver has them: each starts on a vector's boundary.
using Cells = std::vector<float, velmora::CacheLineAllocator<float>>;

/// Reach as deep nodes have it: `zeros` is the share of hands that don't come here.
Cells random_rows(std::size_t rows, std::size_t row, double zeros) {
  std::mt19937 random(1);
  std::uniform_real_distribution<float> value(0.01F, 1.0F);
  std::bernoulli_distribution is_zero(zeros);
  Cells cells(rows * row);
  for (float& cell : cells) cell = is_zero(random) ? 0.0F : value(random);
  return cells;
}

enum Which : std::int64_t { kAll = 0, kFolds = 1, kShowdowns = 2 };

/// Terminal nodes of a river for the seat in position, one run-out after the other. Arguments:
/// rake, percent of hands without reach, which nodes, whether of all lines.
void river_payoffs(benchmark::State& state) {
  using Kind = velmora::StreetShape::Kind;
  const bool raked = state.range(0) != 0;
  const velmora::Game& game = game_of(raked);
  const auto boards = runouts(game);
  const std::size_t opp_row = velmora::padded(game.num_hands(kOop));
  const std::size_t own_row = velmora::padded(game.num_hands(kIp));
  std::vector<velmora::PlanNode> terminals = river_terminals(game, state.range(3) != 0);
  std::erase_if(terminals, [&](const velmora::PlanNode& node) {
    const bool is_fold = velmora::shape_node(game, node).kind == Kind::kFold;
    return state.range(2) == (is_fold ? kShowdowns : kFolds);
  });
  const Cells reach =
      random_rows(terminals.size(), opp_row, static_cast<double>(state.range(1)) / 100);
  Cells results(terminals.size() * own_row);
  std::vector<velmora::PayoffLane> folds, showdowns;
  for (std::size_t i = 0; i < terminals.size(); ++i) {
    const velmora::StreetShape::Node node = velmora::shape_node(game, terminals[i]);
    (node.kind == Kind::kFold ? folds : showdowns)
        .push_back({&reach[i * opp_row], &results[i * own_row], node.shares[kIp]});
  }
  const velmora::PayoffSeat seat{game.cards(), kIp};
  velmora::ScratchStack scratch;
  velmora::MemoryAhead ahead;
  std::size_t at = 0;
  side_by_side(
      state,
      [&] {
        const auto [turn, river] = boards[at % boards.size()];
        for (std::size_t i = 0; i < terminals.size(); ++i) {
          terminals[i].turn = turn;
          terminals[i].river = river;
          velmora_plain::terminal_payoff(game, terminals[i], kIp,
                                         {&reach[i * opp_row], game.num_hands(kOop)},
                                         {&results[i * own_row], game.num_hands(kIp)});
        }
        benchmark::ClobberMemory();
      },
      [&] {
        const auto [turn, river] = boards[at++ % boards.size()];
        fold_payoff(seat, turn, river, folds, scratch, ahead);
        const auto showdown = raked ? velmora::showdown_payoff_raked : velmora::showdown_payoff;
        showdown(seat, turn, river, showdowns, scratch, ahead);
        benchmark::ClobberMemory();
      });
  state.counters["nodes"] = static_cast<double>(terminals.size());
}
BENCHMARK(river_payoffs)
    ->ArgNames({"rake", "zeros", "which", "all_lines"})
    ->ArgsProduct({{0, 1}, {0, 50}, {kAll, kFolds, kShowdowns}, {0, 1}})
    ->Iterations(1500);

/// Tables of many nodes, far more than the caches hold, so that every visit reads from memory.
struct NodeTables {
  NodeTables(std::size_t num_actions, std::size_t num_hands)
      : actions(num_actions),
        row(velmora::padded(num_hands)),
        count((std::size_t{256} << 20) / (num_actions * row * sizeof(float))),
        regrets(count * num_actions * row),
        sums(count * num_actions * row),
        values(random_rows(num_actions, row, 0.1)),
        reach(random_rows(1, row, 0.1)),
        strategy(num_actions * row),
        denominators(row),
        result(row),
        split(num_actions * row) {
    std::mt19937 random(2);
    std::uniform_real_distribution<float> value(-1.0F, 1.0F);
    for (std::size_t i = 0; i < regrets.size(); ++i) regrets[i] = value(random);
    for (std::size_t a = 0; a < num_actions; ++a) rows.push_back(&values[a * row]);
  }
  float* next_regrets() { return &regrets[(node % count) * actions * row]; }
  float* next_sums() { return &sums[(node % count) * actions * row]; }

  std::size_t actions, row, count;
  velmora::PageArray<float> regrets, sums;
  Cells values, reach, strategy, denominators, result, split;
  std::vector<const float*> rows;
  std::size_t node = 0;
};

/// All row work at a node of the traversing seat. Argument: number of actions.
void own_node(benchmark::State& state) {
  const std::size_t A = static_cast<std::size_t>(state.range(0));
  const std::size_t hands = game_of(false).num_hands(kIp);
  NodeTables plain(A, hands);
  NodeTables fast(A, hands);
  side_by_side(
      state,
      [&] {
        float* const regrets = plain.next_regrets();
        velmora_plain::regret_match(plain.strategy.data(), plain.denominators.data(), regrets, A,
                                    hands, plain.row);
        velmora_plain::weighted_action_sum(plain.result.data(), plain.strategy.data(),
                                           plain.values.data(), A, hands, plain.row);
        velmora_plain::update_strategy_sum(plain.next_sums(), plain.strategy.data(), 0.9F,
                                           A * plain.row);
        velmora_plain::update_regrets(regrets, plain.values.data(), plain.result.data(), A, hands,
                                      plain.row, 0.9F, 0.5F);
        ++plain.node;
      },
      [&] {
        velmora::learn_fused(fast.result.data(), fast.next_regrets(), fast.next_sums(),
                             fast.rows.data(), A, fast.row, 0.9F, 0.5F, 0.9F,
                             fast.next_regrets() + A * fast.row, fast.next_sums() + A * fast.row);
        ++fast.node;
      });
}
BENCHMARK(own_node)->ArgName("actions")->DenseRange(2, 4)->Iterations(60000);

/// All row work at a node of the other seat.
void other_node(benchmark::State& state) {
  const std::size_t A = static_cast<std::size_t>(state.range(0));
  const std::size_t hands = game_of(false).num_hands(kIp);
  NodeTables plain(A, hands);
  NodeTables fast(A, hands);
  bool live[8];
  side_by_side(
      state,
      [&] {
        velmora_plain::regret_match(plain.strategy.data(), plain.denominators.data(),
                                    plain.next_regrets(), A, hands, plain.row);
        for (std::size_t a = 0; a < A; ++a) {
          velmora_plain::row_multiply(&plain.split[a * plain.row], &plain.strategy[a * plain.row],
                                      plain.reach.data(), hands);
        }
        ++plain.node;
      },
      [&] {
        velmora::split_reach_fused(fast.split.data(), live, fast.next_regrets(), fast.reach.data(),
                                   A, fast.row);
        benchmark::DoNotOptimize(live);
        ++fast.node;
      });
}
BENCHMARK(other_node)->ArgName("actions")->DenseRange(2, 4)->Iterations(60000);

/// What the memory gives: a table read, and one read and written in place, in bytes a second.
void memory(benchmark::State& state) {
  const bool writes = state.range(0) != 0;
  velmora::PageArray<float> table(std::size_t{128} << 20);
  std::fill_n(table.data(), table.size(), 1.0F);
  constexpr std::size_t kPiece = 4096;
  Cells sum(kPiece);
  for (auto _ : state) {
    for (std::size_t i = 0; i < table.size(); i += kPiece) {
      if (writes) {
        velmora::scale_row(&table[i], &table[i], 0.5F, kPiece);
      } else {
        velmora::add_rows(sum.data(), &table[i], 1, kPiece);
      }
    }
    benchmark::ClobberMemory();
  }
  const std::size_t bytes = table.size() * sizeof(float) * (writes ? 2 : 1);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
}
BENCHMARK(memory)->ArgName("writes")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
