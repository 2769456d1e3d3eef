// How much memory a solve will take, found before it is started.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "solve_session.h"

namespace velmora_app {

/// All figures are bytes or counts.
struct MemoryEstimate {
  /// False if the betting tree is larger than can be counted. No solve takes such a spot, and the
  /// figures are what it needs at least.
  bool complete = true;
  std::uint64_t total_bytes = 0;    ///< What to compare with the memory of the machine.
  std::uint64_t context_bytes = 0;  ///< Card tables.
  std::uint64_t tree_bytes = 0;     ///< Betting tree.
  std::uint64_t state_bytes = 0;    ///< Regrets and strategy sums.
  std::uint64_t node_count = 0;
  std::uint64_t decision_node_count = 0;
  std::uint64_t oop_hands = 0;
  std::uint64_t ip_hands = 0;
};

/// Exact in the tables, which are nearly all of a solve. Counts the tree without building it, so
/// it takes some seconds and a few hundred megabytes at most, whatever the spot. Empty on a fault,
/// and then `error` holds its text. Lets no standard exception out.
std::optional<MemoryEstimate> estimate_memory(const SolveConfig& config, std::string& error);

}  // namespace velmora_app
