#include "node_locks.h"

#include <algorithm>
#include <map>
#include <utility>

#include "game.h"
#include "range.h"

namespace velmora {
namespace {

using LocksByHand = std::map<std::string, NodeLockEntry>;

/// The lock table of a decision node; empty if the entries cover none of the seat's hands.
LockTable lock_table(const Game& game, const PlanNode& node, const LocksByHand& locks) {
  const std::vector<Pocket>& pockets = game.cards().pockets(node.seat);
  const std::size_t num_actions = node.actions.size();
  LockTable table(num_actions * pockets.size(), -1.0F);
  bool covers_any = false;
  for (std::size_t h = 0; h < pockets.size(); ++h) {
    const auto entry = locks.find(hand_class_label(pockets[h]));
    if (entry == locks.end()) continue;
    covers_any = true;
    const auto& [label, lock] = *entry;
    const float rest =
        num_actions == 1 ? 0.0F : (1.0F - lock.frequency) / static_cast<float>(num_actions - 1);
    for (std::size_t a = 0; a < num_actions; ++a) {
      table[a * pockets.size() + h] = a == lock.action ? lock.frequency : rest;
    }
    if (num_actions == 1) table[h] = 1.0F;
  }
  return covers_any ? table : LockTable{};
}

}  // namespace

void build_node_locks(Game& game, std::span<const NodeLockEntry> node_locks) {
  const std::span<const PlanNode> nodes = game.plan().nodes();
  std::map<std::uint64_t, LocksByHand> locks_by_node;
  for (const NodeLockEntry& entry : node_locks) {
    if (entry.hand.empty() || entry.node >= nodes.size()) continue;
    NodeLockEntry held = entry;
    // A not-a-number frequency counts as 0.
    held.frequency = entry.frequency > 0.0F ? std::min(entry.frequency, 1.0F) : 0.0F;
    locks_by_node[entry.node][entry.hand] = held;
  }
  for (auto& [index, locks] : locks_by_node) {
    const PlanNode& node = nodes[index];
    if (node.kind != NodeKind::kDecision || node.actions.empty()) continue;
    std::erase_if(locks,
                  [&node](const auto& lock) { return lock.second.action >= node.actions.size(); });
    LockTable table = lock_table(game, node, locks);
    if (!table.empty()) game.set_node_lock(index, std::move(table));
  }
}

}  // namespace velmora
