#include "terminal_payoff.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "river_payoffs.h"

namespace velmora {
namespace {

bool lengths_fit(const Game& game, Seat seat, std::span<const float> reach,
                 std::span<const float> result) {
  return reach.size() == game.num_hands(opponent_of(seat)) && result.size() == game.num_hands(seat);
}

/// The run-outs of a node, in ascending order of their cards.
std::vector<std::pair<CardCode, CardCode>> runouts_of(const Game& game, const PlanNode& node) {
  const CardMask used = game.cards().board_mask() | mask_of(node.turn) | mask_of(node.river);
  std::vector<std::pair<CardCode, CardCode>> runouts;
  for (CardCode a = 0; a < kNumCards; ++a) {
    if (node.turn != kNoCard ? a != node.turn : (used & mask_of(a)) != 0) continue;
    const CardCode first = node.turn != kNoCard ? CardCode{0} : static_cast<CardCode>(a + 1);
    for (CardCode b = first; b < kNumCards; ++b) {
      if (!(used & mask_of(b))) runouts.emplace_back(a, b);
    }
  }
  return runouts;
}

}  // namespace

void terminal_payoff(const Game& game, const PlanNode& node, Seat seat,
                     std::span<const float> reach, std::span<float> result) {
  std::fill(result.begin(), result.end(), 0.0F);
  if (!lengths_fit(game, seat, reach, result)) return;
  if (node.turn != kNoCard && node.river != kNoCard) {
    RiverPayoffs(game, node.turn, node.river, seat).terminal(node, reach, result);
  } else if (node.last_action == ActionKind::kFold) {
    const double pot = matched_pot(game, node);
    const PotShares shares = pot_shares(game, pot, rake_of(game, pot));
    const double amount = node.last_actor == seat ? shares.lose : shares.win;
    fold_payoff(game, node, seat, static_cast<float>(amount), reach, result);
  } else {
    runout_payoff(game, node, seat, reach, result);
  }
}

void fold_payoff(const Game& game, const PlanNode& node, Seat seat, float amount,
                 std::span<const float> reach, std::span<float> result) {
  fold_sweep(game.seat_hands_for(node, seat), game.seat_hands_for(node, opponent_of(seat)),
             game.cards().same_hand_index(seat), amount, reach, result);
}

bool showdown_payoff(const Game& game, const PlanNode& node, Seat seat,
                     std::span<const float> reach, std::span<float> result) {
  return lengths_fit(game, seat, reach, result) &&
         RiverPayoffs(game, node.turn, node.river, seat).showdown(node.pot, reach, result);
}

bool showdown_payoff_raked(const Game& game, const PlanNode& node, Seat seat,
                           std::span<const float> reach, std::span<float> result) {
  return lengths_fit(game, seat, reach, result) &&
         RiverPayoffs(game, node.turn, node.river, seat).showdown_raked(node.pot, reach, result);
}

void runout_payoff(const Game& game, const PlanNode& node, Seat seat, std::span<const float> reach,
                   std::span<float> result) {
  std::vector<float> values(result.size());
  std::size_t evaluated = 0;
  for (const auto& [turn, river] : runouts_of(game, node)) {
    std::fill(values.begin(), values.end(), 0.0F);
    if (!RiverPayoffs(game, turn, river, seat).any_showdown(node.pot, reach, values)) continue;
    for (std::size_t h = 0; h < values.size(); ++h) result[h] += values[h];
    ++evaluated;
  }
  if (evaluated == 0) return;
  const float share = 1.0F / static_cast<float>(evaluated);
  for (float& value : result) value *= share;
}

}  // namespace velmora
