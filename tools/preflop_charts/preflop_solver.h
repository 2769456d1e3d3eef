// Solves the preflop game of a table.
#pragma once

#include <vector>

#include "preflop_model.h"

namespace preflop_charts {

/// The decisions of a confrontation. Each is a number of actions, of which the first is to fold.
enum Decision : std::size_t {
  kVsOpen,      ///< Caller: fold, call, 3-bet.
  kVsThreeBet,  ///< Opener: fold, call, 4-bet.
  kVsFourBet,   ///< Caller: fold, call, all-in.
  kVsAllIn,     ///< Opener: fold, call.
  kNumDecisions
};
enum Action : std::size_t { kFold, kCall, kRaise, kMaxActions };
constexpr std::size_t num_actions(std::size_t decision) {
  return decision == kVsAllIn ? 2 : 3;
}

/// Frequency of each action, or its value in big blinds, by class.
using ByAction = std::array<ClassValues, kMaxActions>;

/// How often each class takes each action and what each action is worth to it there, counted from
/// the stack before the blinds.
struct DecisionResult {
  ByAction frequency{};
  ByAction value{};
};

struct PreflopSolution {
  std::vector<DecisionResult> first_in;  ///< By position; fold or raise.
  /// By confrontation of the table.
  std::vector<std::array<DecisionResult, kNumDecisions>> confrontations;
  /// What the players could gain by changing one decision each, summed over all decisions, in big
  /// blinds a hand.
  double regret = 0;
};

/// Average strategies after `iterations` of Discounted CFR (Brown and Sandholm, 2019) with the
/// exponents 1.5, 0 and 2, all decisions updated in each iteration. With more than two players and
/// with rake the average need not be an equilibrium; `regret` tells how near it is.
PreflopSolution solve(const Table& table, const RakeLevel& rake, const HandTables& tables,
                      int iterations);

}  // namespace preflop_charts
