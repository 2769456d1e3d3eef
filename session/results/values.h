// What the actions of a node are worth to each hand: the one costly part of the result queries.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "solve_session.h"

namespace velmora_app {

/// One row for each action: the value of each hand of the acting seat at the action's child, on the
/// solver's scale.
using ActionValueTable = std::vector<std::vector<float>>;

/// Gives the tables of decision nodes and keeps the latest few, so that queries that look at one
/// node against the same opposing reach share one walk of its subtree. May be used from any number
/// of threads at once. It keeps no result alive.
class ActionValues {
 public:
  /// `opponent_reach` goes by hand of the seat that does not act. `cancelled` is asked before each
  /// action and may be empty; null if it says yes, or for a node that is no decision.
  std::shared_ptr<const ActionValueTable> at(const SolvedSpot& spot, std::size_t node,
                                             const std::vector<float>& opponent_reach,
                                             const std::function<bool()>& cancelled = {});

 private:
  struct Entry {
    std::weak_ptr<const velmora::DiscountedCfr> solver;
    std::size_t node = 0;
    std::vector<float> opponent_reach;
    std::shared_ptr<const ActionValueTable> table;
  };
  static constexpr std::size_t kKept = 16;

  std::mutex mutex_;  ///< Guards the entries; nothing is computed under it.
  std::deque<Entry> entries_;
};

/// Walks what the queries of a node will need, so that they answer at once afterwards: meant for
/// another thread than the one that asks. False if the node is no decision of the spot, or if
/// `cancelled` said yes.
bool prepare_node(const SolvedSpot& spot, std::uint64_t node, ActionValues& values,
                  const std::function<bool()>& cancelled = {});

}  // namespace velmora_app
