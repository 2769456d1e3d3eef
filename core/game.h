// One spot, ready to be solved: settings, cards, betting tree and node locks.
#pragma once

#include <cstddef>
#include <span>
#include <unordered_map>
#include <vector>

#include "action_plan.h"
#include "card_context.h"

namespace velmora {

/// Lock table of a decision node: action-major, one row of the acting seat's hands for each action.
/// A cell of 0 or above is a fixed frequency; -1 marks a hand without a lock.
using LockTable = std::vector<float>;

/// Read-only once it is built and its locks are entered: any number of threads may then read it.
/// It is built where it stays, since the plan refers to its cards.
class Game {
 public:
  /// Throws as the plan does.
  Game(GameSettings settings, CardContext cards);
  Game(const Game&) = delete;
  Game& operator=(const Game&) = delete;

  const GameSettings& settings() const { return plan_.settings(); }
  const CardContext& cards() const { return cards_; }
  const ActionPlan& plan() const { return plan_; }
  std::span<const PlanNode> nodes() const { return plan_.nodes(); }
  std::size_t num_hands(Seat seat) const { return cards_.num_hands(seat); }

  /// Stores a lock table under a node, replacing an earlier one.
  void set_node_lock(std::size_t node, LockTable table);
  bool has_node_locks() const { return !node_lock_table_.empty(); }
  /// The lock table of a node, or null; an empty table counts as none.
  const LockTable* find_node_lock(std::size_t node) const;

  /// The seat's hands that miss the cards dealt at a node.
  const LiveHandList& seat_hands_for(const PlanNode& node, Seat seat) const {
    return cards_.live_hands(seat, node.turn, node.river);
  }
  /// For each folded card of a chance node: position of the child that stands for it.
  const std::vector<std::uint8_t>& chance_refs(const PlanNode& node) const;
  /// The hands that the i-th folded card of a chance node exchanges against those of the card that
  /// stands for it.
  const BySeat<SwapList>& chance_swaps(const PlanNode& node, std::size_t i) const;

  /// True if the solver of this game keeps its tables compressed.
  bool compressed_storage() const { return compressed_storage_; }
  void set_compressed_storage(bool compressed) { compressed_storage_ = compressed; }

 private:
  CardContext cards_;
  ActionPlan plan_;
  std::unordered_map<std::size_t, LockTable> node_lock_table_;
  bool compressed_storage_ = false;
};

}  // namespace velmora
