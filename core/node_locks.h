// Node locks: hand classes whose play at a node is fixed while the rest of the tree is solved.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace velmora {

class Game;

/// A request that a hand class plays an action at a node with a given frequency; the rest of its
/// mass is spread evenly over the other actions.
struct NodeLockEntry {
  std::uint64_t node = 0;    ///< Index of a decision node.
  std::string hand;          ///< Class label: "AA", "AKs", "AKo".
  std::uint64_t action = 0;  ///< Index of the action at that node.
  float frequency = 0;       ///< Held to 0..1.

  bool operator==(const NodeLockEntry&) const = default;
};

/// Turns the entries into lock tables of the game. Entries that fit no node, action or hand are
/// dropped; a later entry for a node and class replaces an earlier one.
void build_node_locks(Game& game, std::span<const NodeLockEntry> node_locks);

}  // namespace velmora
