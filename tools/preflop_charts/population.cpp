#include "population.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <string_view>

#include "range_writer.h"

namespace preflop_charts {

namespace {

/// How a kind of player enters a pot that nobody has entered. Percent of all hands.
struct Entry {
  double played;  ///< Limped or raised.
  double raised;
};

/// The habits of one kind of player. Percent are of all hands, parts are 0..1.
struct Habits {
  std::string_view name;
  Entry early;  ///< UTG, HJ and CO.
  Entry button;
  Entry small_blind;
  double trap;            ///< Part of the premium hands that is limped to be raised later on.
  double limp_call;       ///< Part of the limped hands that call a raise.
  double three_bet;       ///< Percent, facing an open.
  double four_bet;        ///< Percent, of all hands.
  double call_three_bet;  ///< Part of the opened hands that is left after the 4-bets.
  double call_four_bet;   ///< Part of the 3-bet hands, from the top.
  double shove;           ///< How often the best of them go all-in over a 4-bet instead.
  double defended;        ///< Percent the big blind plays against a raise, its 3-bets included.
  double isolated;        ///< Percent the big blind raises over limps.
  double cold_call;       ///< Percent that call a 3-bet without having put money in.
};

enum class Group { kPassive, kLooseAggressive, kNit };

constexpr std::array<Habits, 4> kPassive{{
    {"Passive tight (VPIP 18–25)",
     {18, 8},
     {26, 14},
     {25, 12},
     0.5,
     0.60,
     3.0,
     1.4,
     0.55,
     0.70,
     0.5,
     23,
     5,
     2.0},
    {"Passive neutral (VPIP 25–35)",
     {26, 8},
     {35, 13},
     {34, 11},
     0.5,
     0.70,
     3.2,
     1.4,
     0.65,
     0.75,
     0.5,
     33,
     4,
     3.0},
    {"Passive loose (VPIP 35–45)",
     {37, 7},
     {45, 12},
     {44, 10},
     0.4,
     0.75,
     3.5,
     1.3,
     0.75,
     0.80,
     0.4,
     44,
     3,
     5.0},
    {"Extreme loose (VPIP 45–65)",
     {50, 7},
     {62, 11},
     {60, 9},
     0.3,
     0.85,
     4.0,
     1.2,
     0.85,
     0.90,
     0.3,
     62,
     0,
     9.0},
}};
constexpr std::array<Habits, 2> kLooseAggressive{{
    {"Standard LAG (VPIP 28–40)",
     {26, 26},
     {50, 50},
     {44, 44},
     0,
     0,
     11,
     3.5,
     0.40,
     0.50,
     0.7,
     44,
     18,
     0},
    {"Maniac (VPIP 45–70)",
     {50, 50},
     {75, 75},
     {70, 70},
     0,
     0,
     18,
     7.0,
     0.50,
     0.60,
     0.7,
     64,
     30,
     0},
}};
constexpr Habits kNit{"Nit", {11, 11}, {22, 22}, {17, 17}, 0,  0, 2.6,
                      1.0,   0.40,     0.55,     0.5,      15, 4, 0};

constexpr int kAce = velmora::kNumRanks - 1;

/// Weights of the ranges move in these steps.
constexpr double kStep = 0.05;
ClassValues stepped(ClassValues range) {
  for (double& weight : range) weight = std::round(weight / kStep) / std::round(1 / kStep);
  return range;
}

ClassValues minus(const ClassValues& from, const ClassValues& taken) {
  ClassValues rest{};
  for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
    rest[hand] = std::max(from[hand] - taken[hand], 0.0);
  }
  return stepped(rest);
}
ClassValues smaller(const ClassValues& a, const ClassValues& b) {
  ClassValues result{};
  for (std::size_t hand = 0; hand < kNumClasses; ++hand) result[hand] = std::min(a[hand], b[hand]);
  return result;
}
ClassValues times(ClassValues range, double factor) {
  for (double& weight : range) weight *= factor;
  return stepped(range);
}

/// Equity of each class against a range.
ClassValues equity_against(const ClassTable& equity, const ClassValues& range) {
  ClassValues result{};
  for (std::size_t own = 0; own < kNumClasses; ++own) {
    double met = 0;
    for (std::size_t other = 0; other < kNumClasses; ++other) {
      const double pairs = matchups()[own][other] * range[other];
      result[own] += pairs * equity[own][other];
      met += pairs;
    }
    result[own] /= met;
  }
  return result;
}

/// The orders in which players rank their hands.
struct Tastes {
  ClassValues appeal{};    ///< For playing at all: pairs, high cards, suited and connected hands.
  ClassValues value{};     ///< For opening: equity and playability against what calls.
  ClassValues strength{};  ///< For 3-bets and 4-bets: equity and playability there.
  ClassValues company{};   ///< For calling 3-bets and 4-bets: the same in the smaller pot.

  explicit Tastes(const HandTables& tables) {
    const ClassValues random = equity_against(tables.equity, filled(1));
    const ClassValues strong = equity_against(tables.equity, top_of(random, 0.06));
    for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
      appeal[hand] = random[hand] * std::pow(tables.playability[kSingleRaised][hand], 0.6);
      value[hand] = random[hand] * std::pow(tables.playability[kSingleRaised][hand], 0.8);
      strength[hand] = strong[hand] * std::sqrt(tables.playability[kFourBetPot][hand]);
      company[hand] = strong[hand] * std::sqrt(tables.playability[kThreeBetPot][hand]);
    }
  }
};

/// The best `part` (by combos) of a range.
ClassValues best_of(const ClassValues& range, const ClassValues& scores, double part) {
  double wanted = part * combos_in(range);
  // Scores below every other take the hands out that are not in the range.
  ClassValues within = scores;
  for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
    if (range[hand] == 0) within[hand] = -1;
  }
  ClassValues result{};
  ClassValues order = within;
  while (wanted > 0) {
    const auto best = static_cast<std::size_t>(std::ranges::max_element(order) - order.begin());
    if (order[best] < 0) break;
    order[best] = -1;
    result[best] = std::min(range[best], wanted / combos_of(best));
    wanted -= combos_of(best) * range[best];
  }
  return smaller(stepped(result), range);
}

ClassValues best_percent(const ClassValues& scores, double percent) {
  return stepped(top_of(scores, percent / 100));
}

/// All that one kind of player does from one position.
class Player {
 public:
  Player(const Tastes& tastes, const Habits& habits) : tastes_(tastes), habits_(habits) {}

  ClassValues range(std::string_view leaf, const Entry& entry) const {
    const ClassValues open = opened(entry);
    const ClassValues limp = minus(best_percent(tastes_.appeal, entry.played), open);
    const ClassValues limp_raise = smaller(limp, times(premium(), habits_.trap));
    const ClassValues three_bet = best_percent(tastes_.strength, habits_.three_bet);
    const ClassValues four_bet = smaller(open, best_percent(tastes_.strength, habits_.four_bet));
    if (leaf == "Limp") return limp;
    if (leaf == "Limp-3b") return limp_raise;
    if (leaf == "Limp-call") {
      return best_of(minus(limp, limp_raise), tastes_.appeal, habits_.limp_call);
    }
    if (leaf == "RFI") return open;
    if (leaf == "3b") return three_bet;
    if (leaf == "4b") return four_bet;
    if (leaf == "Call 3b") {
      return best_of(minus(open, four_bet), tastes_.company, habits_.call_three_bet);
    }
    if (leaf == "Call 4b") {
      const ClassValues shoved = times(smaller(three_bet, shoving_hands()), habits_.shove);
      return minus(best_of(three_bet, tastes_.company, habits_.call_four_bet), shoved);
    }
    if (leaf == "Call raise" || leaf == "Call") {
      return minus(best_percent(tastes_.appeal, habits_.defended), three_bet);
    }
    if (leaf == "Check back") {
      return minus(filled(1), best_percent(tastes_.value, habits_.isolated));
    }
    if (leaf == "3b cold call") {
      return minus(best_percent(tastes_.company, habits_.cold_call + habits_.four_bet),
                   best_percent(tastes_.strength, habits_.four_bet));
    }
    throw std::logic_error("No habit for the leaf " + std::string(leaf));
  }

 private:
  static ClassValues premium() {
    ClassValues range = shoving_hands();
    for (const bool suited : {false, true}) range[class_of(kAce, kAce - 1, suited)] = 1;
    range[class_of(kAce - 2, kAce - 2, false)] = 1;
    return range;
  }
  /// With which a 4-bet is raised.
  static ClassValues shoving_hands() {
    ClassValues range{};
    for (const int rank : {kAce, kAce - 1}) range[class_of(rank, rank, false)] = 1;
    return range;
  }

  /// The played hands that are raised: the best ones, less the traps.
  ClassValues opened(const Entry& entry) const {
    const ClassValues raised = best_percent(tastes_.value, entry.raised);
    return entry.raised < entry.played ? minus(raised, times(premium(), habits_.trap)) : raised;
  }

  const Tastes& tastes_;
  const Habits& habits_;
};

using Leaves = std::vector<std::string_view>;

struct PositionFolder {
  std::string_view name;
  Leaves leaves;
};

std::vector<PositionFolder> position_folders(Group group, velmora::Seat seat) {
  const bool passive = group == Group::kPassive;
  if (seat == velmora::kOop) {
    return {{"UTG/HJ/CO", passive ? Leaves{"Limp", "Limp-call", "Limp-3b", "RFI", "Call 3b", "4b"}
                                  : Leaves{"RFI", "Call 3b", "4b"}},
            {"SB", passive ? Leaves{"Limp", "Limp-3b", "RFI", "3b", "4b", "Call 3b", "Call 4b"}
                           : Leaves{"RFI", "3b", "4b", "Call 3b", "Call 4b"}},
            {"BB", group == Group::kLooseAggressive
                       ? Leaves{"Call raise", "3b", "Call 4b"}
                       : Leaves{"Check back", "Call raise", "3b", "Call 4b"}}};
  }
  const Leaves open =
      passive ? Leaves{"Limp", "Limp-call", "Limp-3b", "RFI", "3b", "Call 3b", "4b", "Call 4b"}
              : Leaves{"RFI", "3b", "Call 3b", "4b", "Call 4b"};
  return {{"UTG/HJ/CO", open},
          {"BU", open},
          {"BB", group == Group::kLooseAggressive ? Leaves{"Call", "3b"}
                                                  : Leaves{"Call raise", "3b", "Call 4b"}}};
}

LibraryNode player_folder(const Tastes& tastes, const Habits& habits, Group group,
                          velmora::Seat seat) {
  const Player player(tastes, habits);
  LibraryNode folder{std::string(habits.name), "", {}};
  for (const PositionFolder& position : position_folders(group, seat)) {
    const Entry& entry = position.name == "BU"   ? habits.button
                         : position.name == "SB" ? habits.small_blind
                                                 : habits.early;
    LibraryNode node{std::string(position.name), "", {}};
    for (const std::string_view leaf : position.leaves) {
      node.children.push_back({std::string(leaf), short_text(player.range(leaf, entry)), {}});
    }
    folder.children.push_back(std::move(node));
  }
  if (group == Group::kPassive) {
    constexpr std::string_view kLeaf = "3b cold call";
    folder.children.push_back(
        {std::string(kLeaf), short_text(player.range(kLeaf, habits.early)), {}});
  }
  return folder;
}

LibraryNode& child_named(std::vector<LibraryNode>& nodes, const std::string& name) {
  const auto found = std::ranges::find(nodes, name, &LibraryNode::name);
  if (found != nodes.end()) return *found;
  return nodes.emplace_back(LibraryNode{name, "", {}});
}

LibraryNode regular_folder(std::string name, const PreflopSolution& solution, Regular regular,
                           velmora::Seat seat) {
  LibraryNode folder{std::move(name), "", {}};
  const PreflopSolution strategy = strayed(six_max(), solution, regular);
  for (const ChartRow& row : chart_rows(six_max(), strategy, seat)) {
    LibraryNode* place = &folder;
    for (const std::string& step : row.folders) place = &child_named(place->children, step);
    place->children.push_back({row.leaf, short_text(stepped(row.range)), {}});
  }
  return folder;
}

}  // namespace

std::vector<LibraryNode> population_tree(const HandTables& tables, const PreflopSolution& solution,
                                         velmora::Seat seat) {
  const Tastes tastes(tables);
  LibraryNode passive{"Passive (VPIP 18–65)", "", {}};
  for (const Habits& habits : kPassive) {
    passive.children.push_back(player_folder(tastes, habits, Group::kPassive, seat));
  }
  LibraryNode aggressive{"Loose aggressive (VPIP 28–70)", "", {}};
  for (const Habits& habits : kLooseAggressive) {
    aggressive.children.push_back(player_folder(tastes, habits, Group::kLooseAggressive, seat));
  }
  LibraryNode regulars{"Weaker regs",
                       "",
                       {regular_folder("Tighter reg", solution, Regular::kTighter, seat),
                        regular_folder("Looser reg", solution, Regular::kLooser, seat)}};
  LibraryNode overfolder{
      "Overfolder (10-22 VPIP)", "", {player_folder(tastes, kNit, Group::kNit, seat)}};
  LibraryNode other{"Other", "", {{"Bomb pot", short_text(filled(1)), {}}}};
  return {std::move(passive), std::move(aggressive), std::move(regulars), std::move(overfolder),
          std::move(other)};
}

}  // namespace preflop_charts
