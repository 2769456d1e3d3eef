#include "action_stats.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>

#include "action_text.h"
#include "equity.h"
#include "node_reach.h"
#include "result_node.h"

namespace velmora_app {

using velmora::kNoCard;
using velmora::PlanNode;

namespace {

/// What each hand brings along when it takes an action: its range weight times its strategy entry.
std::vector<double> shares_of(const std::vector<float>& weights, const float* strategy_row) {
  std::vector<double> shares(weights.size());
  for (std::size_t h = 0; h < shares.size(); ++h) {
    if (!(weights[h] > 0) || !(strategy_row[h] > 0)) continue;
    const double share = static_cast<double>(strategy_row[h]) * static_cast<double>(weights[h]);
    if (std::isfinite(share)) shares[h] = share;
  }
  return shares;
}

/// Equities of the actions of one node, asked for in their order.
class ActionEquity {
 public:
  ActionEquity(const velmora::Game& game, const PlanNode& node, std::uint64_t index)
      : game_(game), seat_(node.seat), generator_(static_cast<std::uint32_t>(index ^ 0xC0FFEE)) {
    board_ = game.cards().board();
    board_.turn = node.turn;
    board_.river = node.river;
    if (node.turn != kNoCard && node.river != kNoCard) {
      exact_.emplace(game, node, seat_);
    } else {
      const std::vector<float>& weights = game.cards().hand_weights(velmora::opponent_of(seat_));
      opponent_weights_.assign(weights.begin(), weights.end());
    }
  }

  double of(const std::vector<double>& shares) {
    const double equity = exact_ ? exact_->of(shares) : sampled(shares);
    return std::isfinite(equity) ? std::clamp(equity, 0.0, 1.0) : equity;
  }

 private:
  double sampled(const std::vector<double>& shares) {
    const std::size_t samples = board_.turn != kNoCard ? 4000 : 6000;
    const velmora::Seat opponent = velmora::opponent_of(seat_);
    return sampled_equity(generator_, board_, {game_.cards().pockets(seat_), shares},
                          {game_.cards().pockets(opponent), opponent_weights_}, samples);
  }

  const velmora::Game& game_;
  velmora::Seat seat_;
  std::mt19937 generator_;
  velmora::Board board_;
  std::optional<RiverEquity> exact_;
  std::vector<double> opponent_weights_;
};

/// Mean chips value of an action over the hands that play it.
double mean_value(const std::vector<double>& shares, double combos, const std::vector<float>& row,
                  const OpponentMass& mass, const ChipScale& scale) {
  double sum = 0;
  for (std::size_t h = 0; h < shares.size(); ++h) {
    if (!(shares[h] > 0)) continue;
    const double value = scale.gain(static_cast<double>(row[h]), mass.of(h));
    if (std::isfinite(value)) sum += shares[h] * value;
  }
  const double mean = combos > 0 ? sum / combos : 0.0;
  return std::isfinite(mean) ? mean + scale.half_pot() : mean;
}

}  // namespace

NodeActionStats query_action_stats(const SolvedSpot& spot, std::uint64_t node,
                                   ActionValues& values) {
  NodeActionStats stats;
  const PlanNode* const decision = decision_at(spot, node);
  if (!decision) return stats;
  const std::vector<float> strategy = strategy_at(spot, node);
  if (strategy.empty()) return stats;
  const velmora::Game& game = *spot.game;
  const std::vector<float>& weights = game.cards().hand_weights(decision->seat);
  const std::vector<float>& opponent =
      game.cards().hand_weights(velmora::opponent_of(decision->seat));
  const auto table = values.at(spot, node, opponent);
  const OpponentMass mass(game.cards(), decision->seat, opponent);
  const ChipScale scale(game, *decision);
  const std::int32_t base = percent_base(game, *decision);

  stats.frequencies = spot.solver->average_action_frequencies(node);
  stats.frequencies.resize(decision->actions.size());
  ActionEquity equity(game, *decision, node);
  for (std::size_t a = 0; a < decision->actions.size(); ++a) {
    const std::vector<double> shares = shares_of(weights, strategy.data() + a * weights.size());
    double combos = 0;
    for (const double share : shares) combos += share;
    stats.names.push_back(action_label(decision->actions[a], base));
    stats.action_types.push_back(action_key(decision->actions[a], base));
    stats.combos.push_back(combos);
    stats.evs.push_back(mean_value(shares, combos, (*table)[a], mass, scale));
    stats.equity.push_back(equity.of(shares));
  }
  stats.ok = true;
  return stats;
}

}  // namespace velmora_app
