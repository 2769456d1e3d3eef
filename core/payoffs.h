// Payoffs of terminal nodes, several at a time. Nodes of one board share its lists of hands, so up
// to eight of them go through the lists side by side, one in each lane of the processor's vectors.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "card_context.h"
#include "memory_ahead.h"
#include "scratch.h"

namespace velmora {

/// What a terminal node pays by outcome: chips over the total matchup weight, counted from the
/// seat's half of the pot. The rake comes from the winner, and half of it from each in a tie.
struct PotShares {
  double win = 0;
  double lose = 0;
  double tie = 0;
};

/// One terminal node to evaluate. `reach` goes by hand of the other seat and `result`, which is
/// overwritten, by hand of the seat; both are padded rows. A hand that the board blocks gets 0.
struct PayoffLane {
  const float* reach = nullptr;
  float* result = nullptr;
  PotShares shares;  ///< A fold uses `win` for what it pays, in single precision.
};

/// The seat whose gains are wanted, and what all boards of its game have in common.
struct PayoffSeat {
  const CardContext& cards;
  Seat seat;

  std::size_t own_hands() const { return cards.num_hands(seat); }
  std::size_t opp_hands() const { return cards.num_hands(opponent_of(seat)); }
};

/// Folds: each own hand gets the reach of the hands that it can meet, times the amount. The
/// opposing reach is summed once, and what a hand's two cards block is taken out by sums over
/// cards. Linear in the number of hands; all sums are kept in double precision, opposing hands
/// ascending.
void fold_payoff(const PayoffSeat& seat, CardCode turn, CardCode river,
                 std::span<const PayoffLane> lanes, ScratchStack& scratch, MemoryAhead& ahead);

/// Showdowns on a complete board, without rake: one pass in ascending order of strength for what a
/// hand wins and one in descending order for what it loses. Equal hands enter neither.
void showdown_payoff(const PayoffSeat& seat, CardCode turn, CardCode river,
                     std::span<const PayoffLane> lanes, ScratchStack& scratch, MemoryAhead& ahead);
/// With rake, which makes a tie cost something: one ascending pass.
void showdown_payoff_raked(const PayoffSeat& seat, CardCode turn, CardCode river,
                           std::span<const PayoffLane> lanes, ScratchStack& scratch,
                           MemoryAhead& ahead);

/// Showdowns with one or two cards to come (`turn` is `kNoCard` before it is dealt): the mean over
/// all run-outs on which both seats have a hand, in ascending order of their cards. The divisor is
/// their number, not that of the run-outs that a pair of hands can meet. All lanes are raked or
/// none is.
void runout_payoff(const PayoffSeat& seat, CardCode turn, bool raked,
                   std::span<const PayoffLane> lanes, ScratchStack& scratch);

}  // namespace velmora
