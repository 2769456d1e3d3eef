#include "results/values.h"

#include <algorithm>
#include <utility>

#include "results/node.h"

namespace velmora_app {

std::shared_ptr<const ActionValueTable> ActionValues::at(const SolvedSpot& spot, std::size_t node,
                                                         const std::vector<float>& opponent_reach,
                                                         const std::function<bool()>& cancelled) {
  const velmora::PlanNode* const decision = decision_at(spot, node);
  if (!decision) return nullptr;
  {
    const std::lock_guard lock(mutex_);
    const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
      return entry.node == node && entry.solver.lock() == spot.solver &&
             entry.opponent_reach == opponent_reach;
    });
    if (known != entries_.end()) return known->table;
  }
  ActionValueTable table;
  for (const velmora::NodeIndex child : decision->children) {
    if (cancelled && cancelled()) return nullptr;
    table.push_back(
        spot.solver->compute_cfvalue(*spot.game, child, decision->seat, opponent_reach));
  }
  auto shared = std::make_shared<const ActionValueTable>(std::move(table));
  const std::lock_guard lock(mutex_);
  if (entries_.size() == kKept) entries_.pop_back();
  entries_.push_front({spot.solver, node, opponent_reach, shared});
  return shared;
}

bool prepare_node(const SolvedSpot& spot, std::uint64_t node, ActionValues& values,
                  const std::function<bool()>& cancelled) {
  const velmora::PlanNode* const decision = decision_at(spot, node);
  if (!decision) return false;
  const velmora::Seat opponent = velmora::opponent_of(decision->seat);
  // Single hands are valued against those who play towards the node, the statistics of the actions
  // against the whole range.
  return values.at(spot, node, range_reach_at(spot, node, opponent), cancelled) &&
         values.at(spot, node, spot.game->cards().hand_weights(opponent), cancelled);
}

}  // namespace velmora_app
