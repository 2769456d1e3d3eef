#include "results/snapshot.h"

#include <cmath>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "results/actions.h"
#include "results/node.h"
#include "worker_pool.h"

namespace velmora_app {

using velmora::NodeKind;
using velmora::PlanNode;

namespace {

NodeMeta describe(const PlanNode& node, std::int32_t starting_pot,
                  std::span<const float> frequencies) {
  NodeMeta meta;
  switch (node.kind) {
    case NodeKind::kDecision:
      meta.node_type = "decision";
      meta.player = node.seat == velmora::kOop ? "OOP" : "IP";
      break;
    case NodeKind::kChance:
      meta.node_type = "chance";
      meta.chance_deal = node.turn == velmora::kNoCard    ? "turn"
                         : node.river == velmora::kNoCard ? "river"
                                                          : "";
      break;
    case NodeKind::kTerminal: meta.node_type = "terminal"; break;
  }
  meta.pot = node.pot;
  meta.invested_oop = node.invested[velmora::kOop];
  meta.invested_ip = node.invested[velmora::kIp];
  const std::int32_t base = node.pot > 0 ? node.pot : starting_pot;
  meta.actions.reserve(node.actions.size());
  for (std::size_t i = 0; i < node.actions.size(); ++i) {
    meta.actions.push_back({action_label(node.actions[i], base), action_key(node.actions[i], base),
                            frequencies[i], node.children[i]});
  }
  return meta;
}

}  // namespace

void fill_summary(const velmora::Game& game, const velmora::DiscountedCfr& solver,
                  SolveResult& result) {
  result.iterations = solver.iterations_done();
  result.exploitability = solver.exploitability();
  const std::array<float, 2> values = solver.cf_values(game);
  result.ev_oop = values[velmora::kOop];
  result.ev_ip = values[velmora::kIp];

  const PlanNode& root = game.nodes()[0];
  const std::int32_t base = result.starting_pot >= 1 ? result.starting_pot : root.pot;
  for (const velmora::Action& action : root.actions) {
    result.root_action_names.push_back(action_label(action, base));
    result.root_action_types.push_back(action_key(action, base));
  }
  result.root_action_freqs.resize(root.actions.size());
  normalize_frequencies(solver.average_action_frequencies(0), result.root_action_freqs);
}

void fill_nodes(const velmora::Game& game, const velmora::DiscountedCfr& solver,
                std::size_t workers, SolveResult& result) {
  const std::span<const PlanNode> nodes = game.nodes();

  // Step 1. The frequencies of all edges, in edge order: the costly part, spread over threads.
  const velmora::Action* const first_edge = nodes[0].actions.data();
  std::vector<float> frequencies(nodes.size() - 1);
  std::optional<velmora::WorkerPool> pool;
  if (workers >= 2) pool.emplace(workers - 1);
  velmora::parallel_for(
      pool ? &*pool : nullptr, nodes.size(), [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
          if (nodes[i].actions.empty()) continue;
          normalize_frequencies(solver.average_action_frequencies(i),
                                {frequencies.data() + (nodes[i].actions.data() - first_edge),
                                 nodes[i].actions.size()});
        }
      });

  // Step 2. The records, in order.
  auto snapshot = std::make_shared<TreeSnapshot>();
  snapshot->reserve(nodes.size(), frequencies.size());
  for (const PlanNode& node : nodes) {
    const float* const own =
        node.actions.empty() ? nullptr : frequencies.data() + (node.actions.data() - first_edge);
    snapshot->append(describe(node, result.starting_pot, {own, node.actions.size()}));
  }
  result.nodes = std::move(snapshot);
}

}  // namespace velmora_app
