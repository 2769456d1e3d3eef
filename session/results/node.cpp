#include "results/node.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace velmora_app {

using velmora::NodeKind;
using velmora::PlanNode;

void normalize_frequencies(std::span<const float> raw, std::span<float> frequencies) {
  double sum = 0;
  for (std::size_t i = 0; i < frequencies.size(); ++i) {
    frequencies[i] = i < raw.size() && counts(raw[i]) ? raw[i] : 0.0F;
    sum += static_cast<double>(frequencies[i]);
  }
  for (float& frequency : frequencies) {
    frequency = sum > 0 ? static_cast<float>(static_cast<double>(frequency) / sum)
                        : 1.0F / static_cast<float>(frequencies.size());
  }
}

std::vector<PathStep> path_to(const velmora::Game& game, std::size_t node) {
  if (node >= game.nodes().size()) throw std::out_of_range("Node index is out of range");
  std::vector<PathStep> path;
  for (std::size_t at = 0; at != node;) {
    const std::span<const velmora::NodeIndex> children = game.nodes()[at].children;
    const auto behind = std::upper_bound(children.begin(), children.end(), node);
    const auto action = static_cast<std::size_t>(behind - children.begin()) - 1;
    path.push_back({at, action});
    at = children[action];
  }
  return path;
}

std::vector<float> reach_at(const SolvedSpot& spot, std::size_t node, velmora::Seat seat,
                            std::vector<float> start) {
  const PlanNode& target = spot.game->nodes()[node];
  const velmora::CardMask blocked = spot.game->cards().board_mask() |
                                    velmora::mask_of(target.turn) | velmora::mask_of(target.river);
  const std::vector<velmora::Pocket>& pockets = spot.game->cards().pockets(seat);
  std::vector<float> reach = std::move(start);
  for (std::size_t h = 0; h < reach.size(); ++h) {
    if (!counts(reach[h]) || (velmora::mask_of_pocket(pockets[h]) & blocked)) reach[h] = 0;
  }
  for (const PathStep& step : path_to(*spot.game, node)) {
    const PlanNode& passed = spot.game->nodes()[step.node];
    if (passed.kind != NodeKind::kDecision || passed.seat != seat) continue;
    const std::vector<float> strategy = spot.solver->average_strategy(step.node);
    if (strategy.size() != passed.actions.size() * reach.size()) continue;
    const float* const row = strategy.data() + step.action * reach.size();
    for (std::size_t h = 0; h < reach.size(); ++h) reach[h] *= counts(row[h]) ? row[h] : 0.0F;
  }
  return reach;
}

std::vector<float> range_reach_at(const SolvedSpot& spot, std::size_t node, velmora::Seat seat) {
  return reach_at(spot, node, seat, spot.game->cards().hand_weights(seat));
}

OpponentMass::OpponentMass(const velmora::CardContext& cards, velmora::Seat seat,
                           std::span<const float> opponent_reach)
    : cards_(cards), seat_(seat), opponent_reach_(opponent_reach) {
  const std::vector<velmora::Pocket>& pockets = cards.pockets(velmora::opponent_of(seat));
  for (std::size_t h = 0; h < opponent_reach.size(); ++h) {
    if (!counts(opponent_reach[h])) continue;
    total_.add(opponent_reach[h]);
    by_card_[velmora::low_card(pockets[h])].add(opponent_reach[h]);
    by_card_[velmora::high_card(pockets[h])].add(opponent_reach[h]);
  }
}

double OpponentMass::of(std::size_t hand) const {
  const velmora::Pocket pocket = cards_.pockets(seat_)[hand];
  const Sum& low = by_card_[velmora::low_card(pocket)];
  const Sum& high = by_card_[velmora::high_card(pocket)];
  // The one hand of the same two cards is in both sums, and is put back once.
  Sum same;
  const velmora::HandIndex same_cards = cards_.same_hand_index(seat_)[hand];
  if (same_cards < opponent_reach_.size() && counts(opponent_reach_[same_cards])) {
    same.add(opponent_reach_[same_cards]);
  }
  // Sums of very different size leave a rest that means nothing where there is nothing to meet.
  if (same.hands + total_.hands - low.hands - high.hands == 0) return 0;
  const double mass = same.reach + total_.reach - low.reach - high.reach;
  return std::isfinite(mass) && mass > 0 ? mass : 0.0;
}

ChipScale::ChipScale(const velmora::Game& game, const PlanNode& node)
    : total_matchup_weight_(game.cards().total_matchup_weight()) {
  const double half = (game.settings().starting_pot + 2.0 * node.commit) * 0.5;
  half_pot_ = std::isfinite(half) && half > 0 ? half : 0.0;
}

double ChipScale::gain(double value, double mass) const {
  return total_matchup_weight_ > 0 && mass > 0 ? value * (total_matchup_weight_ / mass) : value;
}

double ChipScale::chips(double value, double mass) const {
  const double amount = gain(value, mass) + half_pot_;
  return std::isfinite(amount) ? amount : 0.0;
}

}  // namespace velmora_app
