#include "memory_estimate.h"

#include <exception>
#include <limits>

#include "betting_rules.h"
#include "fault_scope.h"
#include "spot_translation.h"

namespace velmora_app {

using velmora::kIp;
using velmora::kOop;

namespace {

/// Reckoned for a node, and for each entry of its action and child lists.
constexpr double kBytesPerNode = 72;
constexpr double kBytesPerEdge = 2 * 8;
/// Scratch memory, node records and what else a solve takes beside its tables.
constexpr double kReserve = 1.1;

std::uint64_t whole(double bytes) {
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
  return bytes < static_cast<double>(kMost) ? static_cast<std::uint64_t>(bytes) : kMost;
}

}  // namespace

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
    return estimate;
  } catch (const std::exception& fault) {
    error = fault.what();
    return std::nullopt;
  }
}

}  // namespace velmora_app
