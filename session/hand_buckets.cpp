#include "hand_buckets.h"

#include <array>
#include <bit>

#include "hand_categories.h"
#include "result_node.h"

namespace velmora_app {
namespace {

struct Sums {
  double combos = 0;
  std::vector<double> actions;
};

std::vector<float> probabilities_of(const Sums& sums) {
  std::vector<float> probabilities;
  double total = 0;
  for (const double action : sums.actions) {
    probabilities.push_back(static_cast<float>(action / sums.combos));
    if (counts(probabilities.back())) total += static_cast<double>(probabilities.back());
  }
  if (total > 0) {
    for (float& probability : probabilities) {
      probability = static_cast<float>(static_cast<double>(probability) / total);
    }
  }
  return probabilities;
}

/// Puts the locks into the strategy of the hands of their classes.
void apply_locks(std::span<const NodeLockEntry> locks, const std::vector<velmora::Pocket>& pockets,
                 std::size_t num_actions, std::vector<float>& strategy) {
  for (const NodeLockEntry& lock : locks) {
    if (lock.action >= num_actions) continue;
    const float others =
        num_actions > 1 ? (1.0F - lock.frequency) / static_cast<float>(num_actions - 1) : 0.0F;
    for (std::size_t h = 0; h < pockets.size(); ++h) {
      if (velmora::hand_class_label(pockets[h]) != lock.hand) continue;
      for (std::size_t a = 0; a < num_actions; ++a) {
        strategy[a * pockets.size() + h] =
            a == lock.action ? (num_actions > 1 ? lock.frequency : 1.0F) : others;
      }
    }
  }
}

}  // namespace

NodeHandBuckets query_hand_buckets(const SolvedSpot& spot, std::uint64_t node,
                                   std::span<const NodeLockEntry> locks) {
  NodeHandBuckets result;
  const velmora::PlanNode* const decision = decision_at(spot, node);
  if (!decision) return result;
  std::vector<float> strategy = strategy_at(spot, node);
  const std::vector<velmora::CardCode> board = velmora::node_board(*spot.game, *decision);
  if (strategy.empty() || board.size() < 3 || board.size() > 5) return result;
  const std::size_t num_actions = decision->actions.size();
  const std::vector<velmora::Pocket>& pockets = spot.game->cards().pockets(decision->seat);

  apply_locks(locks, pockets, num_actions, strategy);

  std::array<Sums, velmora::kHandCategoryNames.size()> sums;
  for (Sums& sum : sums) sum.actions.resize(num_actions);
  for (std::size_t h = 0; h < pockets.size(); ++h) {
    const float range_weight = spot.game->cards().hand_weights(decision->seat)[h];
    if (!counts(range_weight)) continue;
    const double weight = static_cast<double>(range_weight);
    velmora::CategorySet rest = velmora::category_set(board, pockets[h]);
    for (; rest != 0; rest &= rest - 1) {
      Sums& sum = sums[static_cast<std::size_t>(std::countr_zero(rest))];
      sum.combos += weight;
      for (std::size_t a = 0; a < num_actions; ++a) {
        const float entry = strategy[a * pockets.size() + h];
        if (counts(entry)) sum.actions[a] += static_cast<double>(entry) * weight;
      }
    }
  }
  for (std::size_t i = 0; i < sums.size(); ++i) {
    if (!(sums[i].combos > 0)) continue;
    result.buckets.push_back(
        {std::string(velmora::kHandCategoryNames[i]), sums[i].combos, probabilities_of(sums[i])});
  }
  result.ok = true;
  return result;
}

}  // namespace velmora_app
