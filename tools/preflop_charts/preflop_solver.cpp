#include "preflop_solver.h"

#include <algorithm>
#include <cmath>

namespace preflop_charts {

namespace {

constexpr double kPositiveRegretExponent = 1.5;
constexpr double kNegativeRegretFactor = 0.5;  ///< The exponent 0.
constexpr double kStrategyExponent = 2;

/// Cumulative regrets and cumulative policy of one decision.
class RegretTable {
 public:
  explicit RegretTable(std::vector<Action> actions) : actions_(std::move(actions)) {}

  /// Regret matching.
  const ByAction& update_policy() {
    policy_ = proportions(regrets_);
    return policy_;
  }
  const ByAction& policy() const { return policy_; }
  ByAction average() const { return proportions(policy_sums_); }

  /// `values` are counterfactual; `reach` is the player's own.
  void add(const ByAction& values, const ClassValues& reach, int iteration) {
    const double t = iteration;
    const double grown = std::pow(t, kPositiveRegretExponent);
    const double positive = grown / (grown + 1);
    const double aged = std::pow(t / (t + 1), kStrategyExponent);
    for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
      double mean = 0;
      for (const Action a : actions_) mean += policy_[a][hand] * values[a][hand];
      for (const Action a : actions_) {
        double& regret = regrets_[a][hand];
        regret += values[a][hand] - mean;
        regret *= regret > 0 ? positive : kNegativeRegretFactor;
        policy_sums_[a][hand] += reach[hand] * policy_[a][hand];
        policy_sums_[a][hand] *= aged;
      }
    }
  }

 private:
  ByAction proportions(const ByAction& weights) const {
    ByAction result{};
    for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
      double sum = 0;
      for (const Action a : actions_) sum += std::max(weights[a][hand], 0.0);
      for (const Action a : actions_) {
        result[a][hand] = sum > 0 ? std::max(weights[a][hand], 0.0) / sum
                                  : 1.0 / static_cast<double>(actions_.size());
      }
    }
    return result;
  }

  std::vector<Action> actions_;
  ByAction regrets_{};
  ByAction policy_sums_{};
  ByAction policy_{};
};

ClassValues product(const ClassValues& a, const ClassValues& b) {
  ClassValues result;
  std::ranges::transform(a, b, result.begin(), std::multiplies<>());
  return result;
}

/// For each class, the sum of `weights` times the table's cell over the other player's classes,
/// which are the rows.
ClassValues sum_over_rows(const ClassTable& table, const ClassValues& weights) {
  ClassValues sums{};
  for (std::size_t row = 0; row < kNumClasses; ++row) {
    if (weights[row] == 0) continue;
    for (std::size_t c = 0; c < kNumClasses; ++c) sums[c] += weights[row] * table[row][c];
  }
  return sums;
}

/// Chances that two hands are dealt, given one of them: column's class to row's class.
const ClassTable& deal_chances() {
  static const auto table = [] {
    ClassTable chances;
    for (std::size_t own = 0; own < kNumClasses; ++own) {
      double sum = 0;
      for (std::size_t other = 0; other < kNumClasses; ++other) sum += matchups()[own][other];
      for (std::size_t other = 0; other < kNumClasses; ++other) {
        chances[other][own] = matchups()[own][other] / sum;
      }
    }
    return chances;
  }();
  return table;
}

/// A called pot as the values of both sides: deal chance times pot share. The other player's
/// classes are the rows.
struct PotTables {
  double invested;
  double net_pot;
  ClassTable for_opener;
  ClassTable for_caller;

  explicit PotTables(const CalledPot& pot) : invested(pot.invested), net_pot(pot.net_pot) {
    for (std::size_t opener = 0; opener < kNumClasses; ++opener) {
      for (std::size_t caller = 0; caller < kNumClasses; ++caller) {
        const double share = pot.opener_share[opener][caller];
        for_opener[caller][opener] = deal_chances()[caller][opener] * share;
        for_caller[opener][caller] = deal_chances()[opener][caller] * (1 - share);
      }
    }
  }
  /// Value of the pot against `weights` of the other player's classes, whose sums over the deals
  /// are `met`; the chips invested are taken off.
  ClassValues value(const ClassTable& side, const ClassValues& weights,
                    const ClassValues& met) const {
    ClassValues result = sum_over_rows(side, weights);
    for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
      result[hand] = net_pot * result[hand] - invested * met[hand];
    }
    return result;
  }
};

constexpr ClassValues kAlways = filled(1);

ClassValues scaled(ClassValues values, double factor) {
  for (double& value : values) value *= factor;
  return values;
}
ClassValues sum_of(const ClassValues& a, const ClassValues& b) {
  ClassValues result;
  std::ranges::transform(a, b, result.begin(), std::plus<>());
  return result;
}

/// Counterfactual values of a decision: action values times the chance that the others play so that
/// it is reached, and that chance.
struct Counterfactual {
  ByAction value{};
  ClassValues reached{};
};

/// The strategies of one confrontation, indexed by `Decision`.
using Policies = std::array<const ByAction*, kNumDecisions>;

/// One opener against one caller, everybody else out of the way.
class ConfrontationGame {
 public:
  ConfrontationGame(const Table& table, const RakeLevel& rake, const HandTables& tables,
                    const Confrontation& spot)
      : spot_(spot),
        open_(table.positions[spot.opener].open_size),
        caller_post_(table.positions[spot.caller].post),
        squeezed_(squeeze_chance(spot.players_behind)),
        cold_four_bet_(cold_four_bet_chance(spot.players_behind)) {
    for (const Pot pot : {kSingleRaised, kThreeBetPot, kFourBetPot, kAllInPot}) {
      pots_.emplace_back(called_pot(table, rake, tables, spot, pot));
    }
  }

  const Confrontation& spot() const { return spot_; }

  /// Values of the caller's actions against an opener who arrives with `reach`.
  void caller_values(const ClassValues& reach, const Policies& policies, Counterfactual& vs_open,
                     Counterfactual& vs_four_bet) const {
    const auto met = sum_over_rows(deal_chances(), reach);
    const ByAction& vs_three_bet = *policies[kVsThreeBet];
    const auto folds = sum_over_rows(deal_chances(), product(reach, vs_three_bet[kFold]));
    const auto calls_reach = product(reach, vs_three_bet[kCall]);
    const auto calls = sum_over_rows(deal_chances(), calls_reach);
    const auto raise_reach = product(reach, vs_three_bet[kRaise]);
    const auto raises = sum_over_rows(deal_chances(), raise_reach);

    // Facing a 4-bet.
    const ByAction& vs_all_in = *policies[kVsAllIn];
    const auto shove_folds = sum_over_rows(deal_chances(), product(raise_reach, vs_all_in[kFold]));
    const auto shove_call_reach = product(raise_reach, vs_all_in[kCall]);
    const auto shove_calls = sum_over_rows(deal_chances(), shove_call_reach);
    ByAction& answer = vs_four_bet.value;
    vs_four_bet.reached = scaled(raises, 1 - cold_four_bet_);
    answer[kFold] = scaled(raises, -spot_.three_bet);
    answer[kCall] = caller_pot(kFourBetPot, raise_reach, raises);
    answer[kRaise] = sum_of(scaled(shove_folds, spot_.four_bet + spot_.dead),
                            caller_pot(kAllInPot, shove_call_reach, shove_calls));
    for (ClassValues& value : answer) value = scaled(value, 1 - cold_four_bet_);

    // Facing the open.
    ByAction& response = vs_open.value;
    vs_open.reached = met;
    response[kFold] = scaled(met, -caller_post_);
    response[kCall] = sum_of(scaled(caller_pot(kSingleRaised, reach, met), 1 - squeezed_),
                             scaled(met, -squeezed_ * open_));
    response[kRaise] = sum_of(scaled(sum_of(scaled(folds, open_ + spot_.dead),
                                            caller_pot(kThreeBetPot, calls_reach, calls)),
                                     1 - cold_four_bet_),
                              scaled(met, -cold_four_bet_ * spot_.three_bet));
    for (const Action a : {kFold, kCall, kRaise}) {
      response[kRaise] = sum_of(response[kRaise], product((*policies[kVsFourBet])[a], answer[a]));
    }
  }

  /// Values of the opener's actions, and in `vs_caller` what the opener gets from the caller's call
  /// and 3-bet together. All are weighted with the chance that the caller takes those actions.
  void opener_values(const Policies& policies, Counterfactual& vs_three_bet,
                     Counterfactual& vs_all_in, ClassValues& vs_caller) const {
    const ByAction& vs_open = *policies[kVsOpen];
    const ByAction& vs_four_bet = *policies[kVsFourBet];
    const ClassValues three_bet_reach = scaled(vs_open[kRaise], 1 - cold_four_bet_);
    const auto three_bets = sum_over_rows(deal_chances(), three_bet_reach);
    const auto folds = sum_over_rows(deal_chances(), product(three_bet_reach, vs_four_bet[kFold]));
    const auto call_reach = product(three_bet_reach, vs_four_bet[kCall]);
    const auto calls = sum_over_rows(deal_chances(), call_reach);
    const auto shove_reach = product(three_bet_reach, vs_four_bet[kRaise]);
    const auto shoves = sum_over_rows(deal_chances(), shove_reach);

    ByAction& last = vs_all_in.value;
    vs_all_in.reached = shoves;
    last[kFold] = scaled(shoves, -spot_.four_bet);
    last[kCall] = opener_pot(kAllInPot, shove_reach, shoves);

    ByAction& answer = vs_three_bet.value;
    vs_three_bet.reached = three_bets;
    answer[kFold] = scaled(three_bets, -open_);
    answer[kCall] = opener_pot(kThreeBetPot, three_bet_reach, three_bets);
    answer[kRaise] = sum_of(scaled(folds, spot_.three_bet + spot_.dead),
                            opener_pot(kFourBetPot, call_reach, calls));
    for (const Action a : {kFold, kCall}) {
      answer[kRaise] = sum_of(answer[kRaise], product((*policies[kVsAllIn])[a], last[a]));
    }

    const auto flats = sum_over_rows(deal_chances(), vs_open[kCall]);
    const auto all_three_bets = sum_over_rows(deal_chances(), vs_open[kRaise]);
    vs_caller = sum_of(
        scaled(opener_pot(kSingleRaised, vs_open[kCall], flats), 1 - squeezed_),
        sum_of(scaled(flats, -squeezed_ * open_), scaled(all_three_bets, -cold_four_bet_ * open_)));
    for (const Action a : {kFold, kCall, kRaise}) {
      vs_caller = sum_of(vs_caller, product((*policies[kVsThreeBet])[a], answer[a]));
    }
  }

 private:
  ClassValues caller_pot(Pot pot, const ClassValues& weights, const ClassValues& met) const {
    return pots_[pot].value(pots_[pot].for_caller, weights, met);
  }
  ClassValues opener_pot(Pot pot, const ClassValues& weights, const ClassValues& met) const {
    return pots_[pot].value(pots_[pot].for_opener, weights, met);
  }

  Confrontation spot_;
  double open_;
  double caller_post_;
  double squeezed_;
  double cold_four_bet_;
  std::vector<PotTables> pots_;  ///< By `Pot`.
};

/// Values of all decisions of the table under given policies.
struct TableValues {
  std::vector<ByAction> first_in;  ///< Not weighted.
  std::vector<std::array<Counterfactual, kNumDecisions>> confrontations;
};

class TableGame {
 public:
  TableGame(const Table& table, const RakeLevel& rake, const HandTables& tables) : table_(table) {
    for (const Confrontation& spot : table.confrontations) {
      games_.emplace_back(table, rake, tables, spot);
    }
  }

  /// `first_in` by position and `policies` by confrontation.
  TableValues values(const std::vector<const ByAction*>& first_in,
                     const std::vector<Policies>& policies) const {
    TableValues result;
    result.first_in.resize(first_in.size());
    result.confrontations.resize(games_.size());
    double posts = 0;
    for (const Position& position : table_.positions) posts += position.post;

    for (std::size_t i = 0; i < games_.size();) {
      const std::size_t opener = games_[i].spot().opener;
      ByAction& open = result.first_in[opener];
      open[kFold].fill(-table_.positions[opener].post);
      // Chance that all players before the caller fold, by the opener's class.
      ClassValues folded = kAlways;
      for (; i < games_.size() && games_[i].spot().opener == opener; ++i) {
        auto& spot_values = result.confrontations[i];
        games_[i].caller_values(product((*first_in[opener])[kRaise], folded), policies[i],
                                spot_values[kVsOpen], spot_values[kVsFourBet]);
        ClassValues vs_caller;
        games_[i].opener_values(policies[i], spot_values[kVsThreeBet], spot_values[kVsAllIn],
                                vs_caller);
        const auto folds = sum_over_rows(deal_chances(), (*policies[i][kVsOpen])[kFold]);
        for (const auto decision : {kVsThreeBet, kVsAllIn}) {
          for (ClassValues& value : spot_values[decision].value) value = product(value, folded);
          spot_values[decision].reached = product(spot_values[decision].reached, folded);
        }
        open[kRaise] = sum_of(open[kRaise], product(vs_caller, folded));
        folded = product(folded, folds);
      }
      open[kRaise] = sum_of(open[kRaise], scaled(folded, posts - table_.positions[opener].post));
    }
    return result;
  }

 private:
  const Table& table_;
  std::vector<ConfrontationGame> games_;
};

/// How often the player of each decision of a confrontation plays so that it is reached.
std::array<ClassValues, kNumDecisions> own_reach(const Confrontation& spot,
                                                 const std::vector<const ByAction*>& first_in,
                                                 const Policies& policies) {
  const ClassValues& opened = (*first_in[spot.opener])[kRaise];
  return {kAlways, opened, (*policies[kVsOpen])[kRaise],
          product(opened, (*policies[kVsThreeBet])[kRaise])};
}

/// Big blinds a hand that are lost by not always taking the best action.
double possible_gain(const ByAction& frequency, const ByAction& value, const ClassValues& reach) {
  double gain = 0;
  for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
    double mean = 0;
    for (std::size_t a = 0; a < kMaxActions; ++a) mean += frequency[a][hand] * value[a][hand];
    const double best = std::max({value[kFold][hand], value[kCall][hand], value[kRaise][hand]});
    gain += combos_of(hand) * reach[hand] * (best - mean);
  }
  return gain / static_cast<double>(velmora::kNumPockets);
}

}  // namespace

PreflopSolution solve(const Table& table, const RakeLevel& rake, const HandTables& tables,
                      int iterations) {
  const TableGame game(table, rake, tables);
  const std::size_t openers = table.positions.size() - 1;
  const std::size_t spots = table.confrontations.size();
  std::vector<RegretTable> first_in(openers, RegretTable({kFold, kRaise}));
  using SpotTables = std::array<RegretTable, kNumDecisions>;
  const std::vector<Action> three{kFold, kCall, kRaise};
  std::vector<SpotTables> decisions(
      spots, SpotTables{RegretTable(three), RegretTable(three), RegretTable(three),
                        RegretTable({kFold, kCall})});

  std::vector<const ByAction*> open_policies(openers);
  std::vector<Policies> policies(spots);
  for (int t = 1; t <= iterations; ++t) {
    for (std::size_t p = 0; p < openers; ++p) open_policies[p] = &first_in[p].update_policy();
    for (std::size_t s = 0; s < spots; ++s) {
      for (std::size_t d = 0; d < kNumDecisions; ++d) {
        policies[s][d] = &decisions[s][d].update_policy();
      }
    }
    const TableValues values = game.values(open_policies, policies);
    for (std::size_t s = 0; s < spots; ++s) {
      auto& tables_of_spot = decisions[s];
      const auto& spot_values = values.confrontations[s];
      const auto reach = own_reach(table.confrontations[s], open_policies, policies[s]);
      for (std::size_t d = 0; d < kNumDecisions; ++d) {
        tables_of_spot[d].add(spot_values[d].value, reach[d], t);
      }
    }
    for (std::size_t p = 0; p < openers; ++p) first_in[p].add(values.first_in[p], kAlways, t);
  }

  // The averages, and what their actions are worth against each other.
  PreflopSolution solution;
  solution.first_in.resize(openers);
  solution.confrontations.resize(spots);
  for (std::size_t p = 0; p < openers; ++p) {
    solution.first_in[p].frequency = first_in[p].average();
    open_policies[p] = &solution.first_in[p].frequency;
  }
  for (std::size_t s = 0; s < spots; ++s) {
    for (std::size_t d = 0; d < kNumDecisions; ++d) {
      auto& result = solution.confrontations[s][d];
      result.frequency = decisions[s][d].average();
      policies[s][d] = &result.frequency;
    }
  }
  const TableValues values = game.values(open_policies, policies);
  for (std::size_t p = 0; p < openers; ++p) {
    DecisionResult& result = solution.first_in[p];
    result.value = values.first_in[p];
    result.value[kCall] = result.value[kFold];
    solution.regret += possible_gain(result.frequency, result.value, kAlways);
  }
  for (std::size_t s = 0; s < spots; ++s) {
    const auto reach = own_reach(table.confrontations[s], open_policies, policies[s]);
    for (std::size_t d = 0; d < kNumDecisions; ++d) {
      const Counterfactual& counterfactual = values.confrontations[s][d];
      DecisionResult& result = solution.confrontations[s][d];
      result.value = counterfactual.value;
      if (d == kVsAllIn) result.value[kRaise] = result.value[kFold];
      solution.regret += possible_gain(result.frequency, result.value, reach[d]);
      for (ClassValues& value : result.value) {
        for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
          value[hand] /= std::max(counterfactual.reached[hand], 1e-12);
        }
      }
    }
  }
  return solution;
}

}  // namespace preflop_charts
