// Payoffs on a complete board. Everything that a traversal evaluates below a dealt river card
// comes from here: one object serves all terminal nodes of a run-out.
#pragma once

#include <span>

#include "game.h"

namespace velmora {

/// Amounts of a pot by outcome, divided by the total matchup weight. A seat's result is counted
/// from its half of the pot; the rake comes from the winner, and half of it from each in a tie.
struct PotShares {
  double win = 0;
  double lose = 0;
  double tie = 0;
};

/// `pot` in chips. `rake` in chips, 0 for none.
PotShares pot_shares(const Game& game, double pot, double rake);
/// min(cap, pot * fraction), in chips. A cap of 0 means no rake.
double rake_of(const Game& game, double pot);
/// Below this a rake counts as none.
inline constexpr double kLeastRake = 1e-9;

/// The chips of a node's pot that were matched: what a fold wins.
double matched_pot(const Game& game, const PlanNode& node);

/// What one seat gains at the terminal nodes of one run-out. All of it is linear in the number of
/// hands: the opposing reach is summed once, over the whole list or in order of strength, and what
/// a hand's two cards block is taken out by sums over cards. Sums of reach are kept in double
/// precision. `reach` goes by hand of the other seat, `result` by hand of the seat; a hand that the
/// board blocks is left alone.
class RiverPayoffs {
 public:
  /// The lists of a run-out, ready for both kinds of terminal node.
  RiverPayoffs(const Game& game, CardCode turn, CardCode river, Seat seat);

  /// A terminal node of this run-out, fold or showdown. `result` must hold zeros.
  void terminal(const PlanNode& node, std::span<const float> reach, std::span<float> result) const;

  /// False, and nothing done, if a seat has no hand on this run-out.
  bool showdown(double pot, std::span<const float> reach, std::span<float> result) const;
  bool showdown_raked(double pot, std::span<const float> reach, std::span<float> result) const;
  /// The raked or the plain form, as the rake of the pot asks.
  bool any_showdown(double pot, std::span<const float> reach, std::span<float> result) const;

 private:
  const Game& game_;
  Seat seat_;
  const StrengthList& own_;
  const StrengthList& opp_;
  const LiveHandList& own_live_;
  const LiveHandList& opp_live_;
};

/// Fold payoff over given lists of live hands: each own hand gets the reach of the hands that it
/// can meet, times `amount`. `same_hand` is the seat's `same_hand_index`.
void fold_sweep(const LiveHandList& own, const LiveHandList& opp,
                const std::vector<HandIndex>& same_hand, float amount, std::span<const float> reach,
                std::span<float> result);

}  // namespace velmora
