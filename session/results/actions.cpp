#include "results/actions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <optional>
#include <random>

#include "cards.h"
#include "results/equity.h"
#include "results/node.h"

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

using velmora::Action;
using velmora::ActionKind;

namespace {

/// `text` + "33%"; the percentage rounds as printf does.
std::string with_percent(std::string text, std::int32_t amount, std::int32_t pot) {
  std::array<char, 64> digits{};
  std::snprintf(digits.data(), digits.size(), " %.0f%%", static_cast<double>(amount) / pot * 100.0);
  return text + digits.data();
}

bool has_percent(const Action& action, std::int32_t pot) {
  return (action.kind == ActionKind::kBet || action.kind == ActionKind::kRaise) && pot >= 1;
}

}  // namespace

std::string_view action_kind_name(ActionKind kind) {
  constexpr std::array<std::string_view, 8> kNames = {"none", "fold",  "check", "call",
                                                      "bet",  "raise", "allin", "chance"};
  const auto index = static_cast<std::size_t>(kind);
  return index < kNames.size() ? kNames[index] : kNames[0];
}

std::string action_label(const Action& action, std::int32_t pot) {
  const auto sized = [&](const char* name) {
    return has_percent(action, pot) ? with_percent(name, action.amount, pot) : std::string(name);
  };
  switch (action.kind) {
    case ActionKind::kCheck: return "Check";
    case ActionKind::kCall: return "Call";
    case ActionKind::kFold: return "Fold";
    case ActionKind::kAllIn: return "All-In";
    case ActionKind::kChance:
      return velmora::card_to_string(static_cast<velmora::CardCode>(action.amount));
    case ActionKind::kBet: return sized("Bet");
    case ActionKind::kRaise: return sized("Raise");
    case ActionKind::kNone: break;
  }
  return "Action";
}

std::string action_key(const Action& action, std::int32_t pot) {
  std::string name(action_kind_name(action.kind));
  return has_percent(action, pot) ? with_percent(std::move(name), action.amount, pot) : name;
}

}  // namespace velmora_app
