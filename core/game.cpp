#include "game.h"

#include <utility>

namespace velmora {

Game::Game(GameSettings settings, CardContext cards)
    : cards_(std::move(cards)), plan_(std::move(settings), cards_) {}

void Game::set_node_lock(std::size_t node, LockTable table) {
  node_lock_table_[node] = std::move(table);
}

const LockTable* Game::find_node_lock(std::size_t node) const {
  if (node_lock_table_.empty()) return nullptr;
  const auto entry = node_lock_table_.find(node);
  return entry == node_lock_table_.end() || entry->second.empty() ? nullptr : &entry->second;
}

const std::vector<std::uint8_t>& Game::chance_refs(const PlanNode& node) const {
  static const std::vector<std::uint8_t> kNoRefs;
  const SuitIsomorphism& isomorphism = cards_.isomorphism();
  if (node.street == kTurn) return isomorphism.turn_refs;
  if (node.street == kRiver && node.turn != kNoCard) return isomorphism.river_refs[node.turn];
  return kNoRefs;
}

const BySeat<SwapList>& Game::chance_swaps(const PlanNode& node, std::size_t i) const {
  static const BySeat<SwapList> kNoSwaps;
  const SuitIsomorphism& isomorphism = cards_.isomorphism();
  if (node.street == kTurn && i < isomorphism.turn_cards.size()) {
    return isomorphism.turn_swaps[suit_of(isomorphism.turn_cards[i])];
  }
  if (node.street == kRiver && node.turn != kNoCard) {
    const std::size_t turn_suit = suit_of(node.turn);
    const std::vector<CardCode>& folded = isomorphism.river_cards[turn_suit];
    if (i < folded.size()) return isomorphism.river_swaps[turn_suit][suit_of(folded[i])];
  }
  return kNoSwaps;
}

}  // namespace velmora
