// The preflop game that the charts are solved from: seats, sizes, rake, and what a pot that is
// called before the flop is worth. All amounts are in big blinds.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "hand_classes.h"

namespace preflop_charts {

inline constexpr double kStack = 100;

/// One seat at the table, in the order in which they act before the flop.
struct Position {
  std::string_view name;
  double post = 0;       ///< Blind.
  double open_size = 0;  ///< Size of a first raise; 0 where there is none.
};

/// What becomes of a raise by `opener` to which `caller`, the only other player left, responds.
struct Confrontation {
  std::size_t opener = 0;
  std::size_t caller = 0;
  double three_bet = 0;
  double four_bet = 0;
  bool opener_in_position = false;
  int players_behind = 0;  ///< Players who still have to act behind the caller.
  double dead = 0;         ///< Blinds of players who fold.
};

struct Table {
  std::string_view name;
  std::vector<Position> positions;
  std::vector<Confrontation> confrontations;  ///< By opener, then in the order of action.

  /// Throws `std::out_of_range` if the two never meet.
  std::size_t index_of(std::string_view opener, std::string_view caller) const;
};

/// Six players: UTG, HJ, CO, BTN, SB, BB.
const Table& six_max();
/// Two players: the button posts the small blind and is called SB.
const Table& heads_up();

struct RakeLevel {
  std::string_view name;
  double rate = 0;  ///< Part of the pot.
  double cap = 0;   ///< Big blinds.
};
/// In the order of the rows. The smaller the blinds the more big blinds go to the house.
inline constexpr std::array<RakeLevel, 5> kRakeLevels{{
    {"No rake", 0, 0},
    {"50nl rake", 0.05, 4.0},
    {"100nl rake", 0.045, 3.0},
    {"200nl rake", 0.04, 2.0},
    {"500nl rake", 0.035, 0.75},
}};
/// Rake that a pot which reaches the flop pays on the average: some pots end as they are, others
/// grow until the stacks are in.
double expected_rake(const RakeLevel& level, double pot, double behind);

/// What the pot is worth in which two hands see a flop: the pot less the rake is split by `share`.
struct CalledPot {
  double invested = 0;      ///< By each of the two.
  double net_pot = 0;       ///< After rake.
  ClassTable opener_share;  ///< Row: opener's class, column: caller's class.
};

/// A pot that two hands play on: after an open, a 3-bet or a 4-bet that was called, or all-in.
enum Pot : std::size_t { kSingleRaised, kThreeBetPot, kFourBetPot, kAllInPot, kNumPots };

/// What the cards are worth, whatever the table.
struct HandTables {
  ClassTable equity;
  std::array<ClassValues, kAllInPot> playability{};  ///< By pot, against the hands usual there.
};
HandTables hand_tables(unsigned threads);

CalledPot called_pot(const Table& table, const RakeLevel& rake, const HandTables& tables,
                     const Confrontation& spot, Pot pot);

/// Chance that one of the players behind a caller raises, and behind a 3-bettor; both who are in
/// the pot are then taken to fold.
double squeeze_chance(int players_behind);
double cold_four_bet_chance(int players_behind);

}  // namespace preflop_charts
