// How much memory a solve will take, found before it is started.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "action_plan.h"
#include "card_context.h"
#include "solve_session.h"

namespace velmora_app {

/// All figures are bytes or counts.
struct MemoryEstimate {
  /// False if the betting tree is larger than can be counted. No solve takes such a spot, and the
  /// figures are what it needs at least.
  bool complete = true;
  /// Bytes of tree, cards and tables, and a tenth: the size of the spot, whatever solves it.
  std::uint64_t total_bytes = 0;
  /// Bytes that the whole process takes from the machine at the peak of the solve, with the threads
  /// and the locks of the request: what to compare with the memory that there is.
  std::uint64_t peak_bytes = 0;
  std::uint64_t context_bytes = 0;  ///< Card tables.
  std::uint64_t tree_bytes = 0;     ///< Betting tree.
  std::uint64_t state_bytes = 0;    ///< Regrets and strategy sums.
  std::uint64_t node_count = 0;
  std::uint64_t decision_node_count = 0;
  std::uint64_t oop_hands = 0;
  std::uint64_t ip_hands = 0;
};

/// The bytes that a solve takes at its peak, from the same functions that allocate them. `counter`
/// has counted the tree.
std::uint64_t peak_memory_bytes(const SolveConfig& config, const velmora::GameSettings& settings,
                                const velmora::CardContext& cards,
                                const velmora::PlanCounts& counts,
                                const velmora::BettingTrees& trees);

/// One sentence for a spot that doesn't fit, with both figures.
std::string memory_shortage(std::uint64_t needed_bytes, std::uint64_t available_bytes);

/// Counts the tree without building it, so
/// it takes some seconds and a few hundred megabytes at most, whatever the spot. Empty on a fault,
/// and then `error` holds its text. Lets no standard exception out.
std::optional<MemoryEstimate> estimate_memory(const SolveConfig& config, std::string& error);

}  // namespace velmora_app
