// The value of a terminal node for all hands of a seat at once.
#pragma once

#include <span>

#include "game.h"

namespace velmora {

/// Overwrites `result` (by hand of `seat`) with the seat's counterfactual values against `reach`
/// (by hand of the other seat): chips over the total matchup weight, times the reach of the hands
/// that can be met, counted from the seat's half of the pot. All zeros if a length doesn't fit.
void terminal_payoff(const Game& game, const PlanNode& node, Seat seat,
                     std::span<const float> reach, std::span<float> result);

/// Every live hand gets the reach that it can meet times `amount`; nothing is done if that is 0 for
/// all. `result` must hold zeros.
void fold_payoff(const Game& game, const PlanNode& node, Seat seat, float amount,
                 std::span<const float> reach, std::span<float> result);

/// A showdown on a complete board, without and with rake. False, and `result` left alone, if a
/// length doesn't fit or a seat has no live hand.
bool showdown_payoff(const Game& game, const PlanNode& node, Seat seat,
                     std::span<const float> reach, std::span<float> result);
bool showdown_payoff_raked(const Game& game, const PlanNode& node, Seat seat,
                           std::span<const float> reach, std::span<float> result);

/// A showdown with one or two cards to come: the mean over all run-outs on which both seats have a
/// hand. The divisor is their number for the node, not for a pair of hands. `result` must hold
/// zeros.
void runout_payoff(const Game& game, const PlanNode& node, Seat seat, std::span<const float> reach,
                   std::span<float> result);

}  // namespace velmora
