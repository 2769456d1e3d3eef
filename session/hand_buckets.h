// What a node's strategy does with each kind of hand.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "solve_session.h"

namespace velmora_app {

struct HandBucket {
  std::string name;                         ///< Of the hand category.
  double combos = 0;                        ///< Summed range weight of its hands, at the root.
  std::vector<float> action_probabilities;  ///< By action; the sum is 1.
};

/// The categories that some hand belongs to, in the order of their table. A hand can be in several.
struct NodeHandBuckets {
  std::vector<HandBucket> buckets;
  bool ok = false;
};

/// Not `ok` for a node that is no decision node of the spot. The hands of the classes in `locks`
/// play these instead of their strategy; the node of a lock is not looked at.
NodeHandBuckets query_hand_buckets(const SolvedSpot& spot, std::uint64_t node,
                                   std::span<const NodeLockEntry> locks = {});

}  // namespace velmora_app
