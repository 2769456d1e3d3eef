// What a run reports while it is under way, and what it delivers at its end.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "results/tree.h"

namespace velmora_app {

/// What a run delivers. A failed or cancelled run has `success` false and only what was filled
/// up to then. A stopped one has `success` false too, but all fields, if it had begun to iterate.
struct SolveResult {
  bool success = false;
  /// Ended by `SolveSession::stop_and_keep`, before it reached the target or the limit.
  bool stopped = false;
  /// A success that ended before the target and the limit: the hands without a lock at locked nodes
  /// don't learn, which keeps the exploitability from falling any further.
  bool stalled = false;
  std::string error;  ///< Empty on success.
  std::string board;
  std::int32_t starting_pot = 0;
  std::int32_t effective_stack = 0;
  std::uint32_t iterations = 0;
  float exploitability = 0;  ///< Chips.
  float ev_oop = 0;          ///< Chips, counted from half of the pot.
  float ev_ip = 0;
  std::vector<std::string> root_action_names;
  std::vector<std::string> root_action_types;
  std::vector<float> root_action_freqs;
  /// One entry for each node of the tree; never null on success.
  std::shared_ptr<const TreeSnapshot> nodes;
  double build_seconds = 0;  ///< Cards, tree and locks.
  double solve_seconds = 0;  ///< The iterations, measuring included.
};

struct SolveProgress {
  double progress = 0;  ///< 0..1
  std::string status;
  std::uint32_t iteration = 0;        ///< In the reports of the iterations, counted from 1; else 0.
  float exploitability = 0;           ///< Chips; last measured, in the reports of the iterations.
  std::optional<SolveResult> result;  ///< Only in the last report of a run.
};

}  // namespace velmora_app
