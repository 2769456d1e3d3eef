#include "memory_estimate.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>
#include <vector>

#include "betting_rules.h"
#include "discounted_cfr.h"
#include "fault_scope.h"
#include "spot.h"

namespace velmora_app {

using velmora::kIp;
using velmora::kOop;

namespace {

/// Reckoned for a node, and for each entry of its action and child lists.
constexpr double kBytesPerNode = 72;
constexpr double kBytesPerEdge = 2 * 8;
constexpr double kReserve = 1.1;
/// The headless tool before it solves anything: its code, its libraries, a small heap.
constexpr double kProcessBytes = 12e6;
/// A thread of the solver: its stack, on which the payoffs keep their sums, and its share of the
/// heap.
constexpr double kThreadBytes = 0.3e6;
/// A lock beside its table, while it is read and entered: three copies, and a place in a map.
constexpr double kBytesPerLock = 3 * sizeof(NodeLockEntry) + 96;

std::uint64_t whole(double bytes) {
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
  return bytes < static_cast<double>(kMost) ? static_cast<std::uint64_t>(bytes) : kMost;
}

/// Of lock tables: one for each node that has any, of the size that a decision has on the average.
double lock_bytes(const SolveConfig& config, const velmora::CardContext& cards,
                  const velmora::PlanCounts& counts) {
  if (config.node_locks.empty() || counts.decision_nodes == 0) return 0;
  std::vector<std::uint64_t> nodes;
  for (const NodeLockEntry& lock : config.node_locks) {
    if (lock.node < counts.nodes) nodes.push_back(lock.node);
  }
  std::sort(nodes.begin(), nodes.end());
  const auto tables = static_cast<double>(std::unique(nodes.begin(), nodes.end()) - nodes.begin());
  double cells = 0;
  for (const velmora::Seat seat : {kOop, kIp}) {
    cells +=
        static_cast<double>(counts.action_rows[seat]) * static_cast<double>(cards.num_hands(seat));
  }
  return tables * cells / static_cast<double>(counts.decision_nodes) * sizeof(float) +
         static_cast<double>(config.node_locks.size()) * kBytesPerLock;
}

}  // namespace

std::uint64_t peak_memory_bytes(const SolveConfig& config, const velmora::GameSettings& settings,
                                const velmora::CardContext& cards,
                                const velmora::PlanCounts& counts,
                                const velmora::BettingTrees& trees) {
  const std::size_t workers = std::max<std::size_t>(config.thread_count, 1);
  const auto nodes = static_cast<double>(counts.nodes);
  // What stays from the first iteration to the result.
  double bytes = kProcessBytes + static_cast<double>(workers) * kThreadBytes;
  bytes += static_cast<double>(cards.memory_bytes()) + velmora::ActionPlan::bytes_for(nodes);
  bytes += lock_bytes(config, cards, counts);
  bytes +=
      velmora::DiscountedCfr::held_bytes(cards, counts, trees, config.compressed_storage, workers);
  // What comes and goes: the measures, and then the snapshot with the frequencies that go into it.
  const double measure = velmora::DiscountedCfr::measure_bytes(settings, cards, trees, workers);
  const double snapshot = TreeSnapshot::bytes_for(nodes) + nodes * sizeof(float);
  return whole(bytes + std::max(measure, snapshot));
}

std::string memory_shortage(std::uint64_t needed_bytes, std::uint64_t available_bytes) {
  const auto text = [](std::uint64_t bytes) {
    constexpr double kGigabyte = 1 << 30;
    const double tenths = std::round(static_cast<double>(bytes) / kGigabyte * 10);
    const auto number = static_cast<std::uint64_t>(tenths);
    return std::to_string(number / 10) + '.' + std::to_string(number % 10) + " GB";
  };
  return "Not enough memory: this solve needs " + text(needed_bytes) + ", and " +
         text(available_bytes) + " are available";
}

std::optional<MemoryEstimate> estimate_memory(const SolveConfig& config, std::string& error) {
  try {
    const FaultScope scope;
    const SpotCards spot = translate_cards(config);
    velmora::GameSettings settings = translate_settings(config);
    translate_sizing_bare(config, settings);
    check_ranges_meet(spot);
    const velmora::CardContext cards(spot.board, spot.weights);
    velmora::PlanCounter counter(settings, cards);
    const velmora::PlanCounts counts =
        counter.count_at_least(velmora::root_point(settings, cards.board()));

    MemoryEstimate estimate;
    estimate.complete = counter.complete();
    estimate.context_bytes = cards.memory_bytes();
    estimate.node_count = counts.nodes;
    estimate.decision_node_count = counts.decision_nodes;
    estimate.oop_hands = cards.num_hands(kOop);
    estimate.ip_hands = cards.num_hands(kIp);
    const double edges = static_cast<double>(counts.nodes - 1);
    estimate.tree_bytes =
        whole(kBytesPerNode * static_cast<double>(counts.nodes) + kBytesPerEdge * edges);
    double state_bytes = 0;
    for (const velmora::Seat seat : {kOop, kIp}) {
      state_bytes += static_cast<double>(counts.action_rows[seat]) *
                     static_cast<double>(cards.num_hands(seat)) *
                     (config.compressed_storage ? 4 : 8);
    }
    estimate.state_bytes = whole(state_bytes);
    const double sum = static_cast<double>(estimate.tree_bytes) +
                       static_cast<double>(estimate.context_bytes) +
                       static_cast<double>(estimate.state_bytes);
    estimate.total_bytes = whole(sum * kReserve);
    estimate.peak_bytes =
        peak_memory_bytes(config, settings, cards, counts, counter.betting_trees());
    return estimate;
  } catch (const std::exception& fault) {
    error = fault.what();
    return std::nullopt;
  }
}

}  // namespace velmora_app
