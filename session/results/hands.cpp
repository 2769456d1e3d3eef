#include "results/hands.h"

#include <algorithm>
#include <array>
#include <bit>
#include <optional>
#include <stdexcept>

#include "hand_categories.h"
#include "results/node.h"

namespace velmora_app {

using velmora::PlanNode;
using velmora::Pocket;

namespace {

/// The values of a node's actions against those who play towards it, in chips.
class PricedActions {
 public:
  PricedActions(const SolvedSpot& spot, std::uint64_t node, const PlanNode& decision,
                ActionValues& values)
      : reach_(range_reach_at(spot, node, velmora::opponent_of(decision.seat))),
        table_(values.at(spot, node, reach_)),
        mass_(spot.game->cards(), decision.seat, reach_),
        scale_(*spot.game, decision) {}

  std::vector<double> evs_of(std::size_t hand) const {
    const double mass = mass_.of(hand);
    std::vector<double> evs;
    evs.reserve(table_->size());
    for (const std::vector<float>& row : *table_) {
      evs.push_back(scale_.chips(static_cast<double>(row[hand]), mass));
    }
    return evs;
  }

  /// Value of the hand when it plays its actions as often as `strategy` (action-major) says: what
  /// a walk from the node itself would give, to the last bit.
  double ev_of(std::size_t hand, const std::vector<float>& strategy) const {
    double value = 0;
    for (std::size_t a = 0; a < table_->size(); ++a) {
      const std::vector<float>& row = (*table_)[a];
      value +=
          static_cast<double>(strategy[a * row.size() + hand]) * static_cast<double>(row[hand]);
    }
    return scale_.chips(static_cast<double>(static_cast<float>(value)), mass_.of(hand));
  }

 private:
  std::vector<float> reach_;
  std::shared_ptr<const ActionValueTable> table_;
  OpponentMass mass_;
  ChipScale scale_;
};

std::vector<float> probabilities_of(std::size_t hand, std::size_t hands,
                                    const std::vector<float>& strategy) {
  std::vector<float> probabilities(strategy.size() / hands);
  for (std::size_t a = 0; a < probabilities.size(); ++a) {
    probabilities[a] = strategy[a * hands + hand];
  }
  normalize_frequencies(probabilities, probabilities);
  return probabilities;
}

/// The pocket of two card texts, empty if they are no two different cards.
std::optional<Pocket> pocket_of(std::string_view c1, std::string_view c2) {
  try {
    const velmora::CardCode a = velmora::parse_card(c1);
    const velmora::CardCode b = velmora::parse_card(c2);
    if (a != b) return velmora::make_pocket(a, b);
  } catch (const std::invalid_argument&) {  // NOLINT: the empty answer says it.
  }
  return std::nullopt;
}

}  // namespace

NodeHandCombos query_hand_combos(const SolvedSpot& spot, std::uint64_t node, ActionValues& values) {
  NodeHandCombos result;
  const PlanNode* const decision = decision_at(spot, node);
  if (!decision) return result;
  const std::vector<float> strategy = strategy_at(spot, node);
  if (strategy.empty()) return result;
  const std::vector<Pocket>& pockets = spot.game->cards().pockets(decision->seat);
  const std::vector<float>& weights = spot.game->cards().hand_weights(decision->seat);

  // Step 1. How each hand gets here and what its actions are worth.
  const std::vector<float> own_reach =
      reach_at(spot, node, decision->seat, std::vector<float>(pockets.size(), 1.0F));
  const PricedActions priced(spot, node, *decision, values);

  // Step 2. One record for each hand of the range.
  for (std::size_t h = 0; h < pockets.size(); ++h) {
    if (!counts(weights[h])) continue;
    HandCombo combo;
    combo.c1 = velmora::card_to_string(velmora::low_card(pockets[h]));
    combo.c2 = velmora::card_to_string(velmora::high_card(pockets[h]));
    combo.weight = static_cast<double>(own_reach[h]) * static_cast<double>(weights[h]);
    combo.action_probabilities = probabilities_of(h, pockets.size(), strategy);
    combo.buckets = velmora::hand_categories(*spot.game, *decision, pockets[h]);
    combo.ev = priced.ev_of(h, strategy);
    combo.action_evs = priced.evs_of(h);
    result.combos.push_back(std::move(combo));
  }
  std::stable_sort(result.combos.begin(), result.combos.end(),
                   [](const HandCombo& a, const HandCombo& b) { return a.ev > b.ev; });
  result.ok = true;
  return result;
}

SeatHandCombos query_seat_hand_combos(const SolvedSpot& spot, std::uint64_t node,
                                      velmora::Seat seat) {
  SeatHandCombos result;
  const PlanNode* const found = node_at(spot, node);
  if (!found) return result;
  const velmora::CardMask blocked = spot.game->cards().board_mask() |
                                    velmora::mask_of(found->turn) | velmora::mask_of(found->river);
  const std::vector<Pocket>& pockets = spot.game->cards().pockets(seat);
  const std::vector<float>& weights = spot.game->cards().hand_weights(seat);
  for (std::size_t h = 0; h < pockets.size(); ++h) {
    if (!counts(weights[h]) || (velmora::mask_of_pocket(pockets[h]) & blocked)) continue;
    result.combos.push_back({velmora::card_to_string(velmora::low_card(pockets[h])),
                             velmora::card_to_string(velmora::high_card(pockets[h])),
                             static_cast<double>(weights[h])});
  }
  result.ok = true;
  return result;
}

PocketActionEvs query_pocket_action_evs(const SolvedSpot& spot, std::uint64_t node,
                                        velmora::Seat seat, std::string_view c1,
                                        std::string_view c2, ActionValues& values) {
  PocketActionEvs result;
  const PlanNode* const decision = decision_at(spot, node);
  if (!decision || decision->seat != seat) return result;
  const std::optional<Pocket> pocket = pocket_of(c1, c2);
  if (!pocket) return result;
  const std::vector<Pocket>& pockets = spot.game->cards().pockets(seat);
  const auto found = std::find(pockets.begin(), pockets.end(), *pocket);
  if (found == pockets.end()) return result;
  // Opposing hands that share a card with this one don't enter its values or its mass, so the walk
  // that serves all hands of the node serves it too.
  result.evs = PricedActions(spot, node, *decision, values)
                   .evs_of(static_cast<std::size_t>(found - pockets.begin()));
  result.ok = true;
  return result;
}

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
