#include "preflop_model.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "class_equity.h"
#include "playability.h"

namespace preflop_charts {

namespace {

// How a pot is realised after the flop. With e the all-in equity of one hand against the other, its
// odds e : 1 - e are multiplied by what position and initiative are worth, less so when little
// money is left behind, and by the two hands' playabilities in such a pot, each to a power that
// tells how much of it counts in that seat. Then the distance of the share from one half grows by
// up to `kGrowth`: the better hand also wins what is bet later on, and the worse one pays it.
constexpr double kPositionOdds = 1.30;
constexpr double kInitiativeOdds = 1.03;
constexpr double kPlayabilityInPosition = 1.8;
constexpr double kPlayabilityOutOfPosition = 2.0;
constexpr double kGrowth = 0.30;
constexpr double kHalfDepth = 2.0;  ///< Stack-to-pot ratio at which depth counts by half.

constexpr double kSqueeze = 0.08;
constexpr double kColdFourBet = 0.035;

/// Where playability is measured, by pot. The opponent's range is the given part of all hands, the
/// best against a random hand.
struct UsualPlay {
  double range;
  double nut_power;
  double give_up;
};
constexpr std::array<UsualPlay, kAllInPot> kUsualPlay{
    {{0.40, 5.5, 0.18}, {0.12, 4.5, 0.28}, {0.05, 2.5, 0.25}}};

/// How pots end, as multiples of what they hold before the flop.
struct PotGrowth {
  double chance;
  double factor;
};
constexpr std::array<PotGrowth, 4> kPotGrowth{{{0.45, 1}, {0.30, 2}, {0.17, 4}, {0.08, 9}}};

/// The part of all hands with the highest all-in equity against a random hand.
ClassValues best_hands(const ClassTable& equity, double part) {
  ClassValues strength{};
  for (std::size_t own = 0; own < kNumClasses; ++own) {
    double met = 0;
    for (std::size_t other = 0; other < kNumClasses; ++other) {
      strength[own] += matchups()[own][other] * equity[own][other];
      met += matchups()[own][other];
    }
    strength[own] /= met;
  }
  return top_of(strength, part);
}

double three_bet_size(const Confrontation& spot, const Table& table) {
  if (table.positions.size() == 2) return 11;
  if (table.positions[spot.opener].name == "SB") return 10.5;
  if (!spot.opener_in_position) return 8.5;
  return table.positions[spot.caller].name == "SB" ? 11 : 12;
}

double four_bet_size(double three_bet, bool opener_in_position) {
  return std::round(three_bet * (opener_in_position ? 2.2 : 2.75));
}

Table make_table(std::string_view name, std::vector<Position> positions) {
  Table table{name, std::move(positions), {}};
  const std::size_t count = table.positions.size();
  for (std::size_t opener = 0; opener + 1 < count; ++opener) {
    for (std::size_t caller = opener + 1; caller < count; ++caller) {
      Confrontation spot;
      spot.opener = opener;
      spot.caller = caller;
      // After the flop the blinds act first, but with two players the button is the small blind.
      const bool caller_in_blinds = table.positions[caller].post > 0;
      const bool opener_in_blinds = table.positions[opener].post > 0;
      spot.opener_in_position = count == 2 || (caller_in_blinds && !opener_in_blinds);
      spot.three_bet = three_bet_size(spot, table);
      spot.four_bet = four_bet_size(spot.three_bet, spot.opener_in_position);
      spot.players_behind = static_cast<int>(count - 1 - caller);
      for (std::size_t other = 0; other < count; ++other) {
        if (other != opener && other != caller) spot.dead += table.positions[other].post;
      }
      table.confrontations.push_back(spot);
    }
  }
  return table;
}

}  // namespace

std::size_t Table::index_of(std::string_view opener, std::string_view caller) const {
  const auto found = std::ranges::find_if(confrontations, [&](const Confrontation& spot) {
    return positions[spot.opener].name == opener && positions[spot.caller].name == caller;
  });
  if (found == confrontations.end()) throw std::out_of_range("These two positions never meet");
  return static_cast<std::size_t>(found - confrontations.begin());
}

const Table& six_max() {
  static const Table table = make_table("6-max", {{"UTG", 0, 2.5},
                                                  {"HJ", 0, 2.5},
                                                  {"CO", 0, 2.5},
                                                  {"BTN", 0, 2.5},
                                                  {"SB", 0.5, 3},
                                                  {"BB", 1, 0}});
  return table;
}

const Table& heads_up() {
  static const Table table = make_table("Heads up", {{"SB", 0.5, 2.5}, {"BB", 1, 0}});
  return table;
}

double expected_rake(const RakeLevel& level, double pot, double behind) {
  double rake = 0;
  for (const PotGrowth& growth : kPotGrowth) {
    const double final_pot = std::min(pot * growth.factor, pot + 2 * behind);
    rake += growth.chance * std::min(level.rate * final_pot, level.cap);
  }
  return rake;
}

HandTables hand_tables(unsigned threads) {
  HandTables tables{class_equities(threads), {}};
  for (const Pot pot : {kSingleRaised, kThreeBetPot, kFourBetPot}) {
    const UsualPlay& usual = kUsualPlay[pot];
    tables.playability[pot] = playability(
        {best_hands(tables.equity, usual.range), usual.nut_power, usual.give_up}, threads);
  }
  return tables;
}

CalledPot called_pot(const Table& table, const RakeLevel& rake, const HandTables& tables,
                     const Confrontation& spot, Pot pot) {
  CalledPot result;
  const std::array<double, kNumPots> sizes{table.positions[spot.opener].open_size, spot.three_bet,
                                           spot.four_bet, kStack};
  result.invested = sizes[pot];
  const double chips = 2 * result.invested + spot.dead;
  const double behind = kStack - result.invested;
  result.net_pot = chips - expected_rake(rake, chips, behind);
  if (pot == kAllInPot) {
    result.opener_share = tables.equity;
    return result;
  }
  const double depth = (behind / chips) / (behind / chips + kHalfDepth);

  const bool opener_has_initiative = pot != kThreeBetPot;
  const double side_odds =
      std::pow((spot.opener_in_position ? kPositionOdds : 1 / kPositionOdds) *
                   (opener_has_initiative ? kInitiativeOdds : 1 / kInitiativeOdds),
               depth);
  ClassValues opener_odds;
  ClassValues caller_odds;
  for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
    const double in_position = std::pow(tables.playability[pot][hand], kPlayabilityInPosition);
    const double out_of_position =
        std::pow(tables.playability[pot][hand], kPlayabilityOutOfPosition);
    opener_odds[hand] = spot.opener_in_position ? in_position : out_of_position;
    caller_odds[hand] = spot.opener_in_position ? out_of_position : in_position;
  }
  for (std::size_t own = 0; own < kNumClasses; ++own) {
    for (std::size_t other = 0; other < kNumClasses; ++other) {
      const double equity = tables.equity[own][other];
      const double odds = side_odds * opener_odds[own] / caller_odds[other];
      const double share = equity * odds / (equity * odds + 1 - equity);
      result.opener_share[own][other] = 0.5 + (1 + kGrowth * depth) * (share - 0.5);
    }
  }
  return result;
}

double squeeze_chance(int players_behind) {
  return 1 - std::pow(1 - kSqueeze, players_behind);
}
double cold_four_bet_chance(int players_behind) {
  return 1 - std::pow(1 - kColdFourBet, players_behind);
}

}  // namespace preflop_charts
