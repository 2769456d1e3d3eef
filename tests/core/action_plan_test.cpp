#include "action_plan.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <sstream>

#include <gtest/gtest.h>

#include "betting_rules.h"
#include "faults.h"
#include "scoped_environment.h"

namespace velmora {
namespace {

using velmora_test::ScopedEnvironment;

/// A spot as a table row: the sizes of each street are those of both seats.
struct Rules {
  std::string board = "AhKd7c2s9h";
  std::int32_t pot = 100;
  std::int32_t stack = 1000;
  std::string bets = {};
  std::string raises = {};
  BySeat<double> jam{};
  bool dont_donk = false;
  double force = 0;
  double merge = 0;
  std::optional<Street> street = {};  ///< Of the root, where it is not the board's.
};

GameSettings settings_of(const Rules& rules) {
  GameSettings settings;
  settings.street = rules.street.value_or(street_of(parse_board(rules.board)));
  settings.starting_pot = rules.pot;
  settings.effective_stack = rules.stack;
  for (StreetSizing& sizing : settings.sizing) {
    const SeatSizing sizes = parse_seat_sizing(rules.bets, rules.raises);
    sizing.seats = {sizes, sizes};
    sizing.donk = rules.dont_donk ? std::vector<BetSize>{} : sizes.bets;
  }
  settings.jam_threshold = rules.jam;
  settings.force_all_in_threshold = rules.force;
  settings.merge_threshold = rules.merge;
  return settings;
}

CardContext context_of(const std::string& board, const std::string& oop = "KK,QJs",
                       const std::string& ip = "AA,87s:0.5") {
  return {parse_board(board), {parse_range(oop), parse_range(ip)}};
}

std::string text_of(const Action& action) {
  switch (action.kind) {
    case ActionKind::kNone: return "none";
    case ActionKind::kFold: return "fold";
    case ActionKind::kCheck: return "check";
    case ActionKind::kCall: return "call " + std::to_string(action.amount);
    case ActionKind::kBet: return "bet " + std::to_string(action.amount);
    case ActionKind::kRaise: return "raise " + std::to_string(action.amount);
    case ActionKind::kAllIn: return "allin " + std::to_string(action.amount);
    case ActionKind::kChance: return card_to_string(static_cast<CardCode>(action.amount));
  }
  return "?";
}

std::string text_of(std::span<const Action> actions) {
  std::string text;
  for (const Action& action : actions) text += (text.empty() ? "" : ", ") + text_of(action);
  return text;
}

/// The node that a path such as "check, bet 50, call 50" leads to; "*" is the first action.
PlanPoint walk(const GameSettings& settings, const CardContext& cards, const std::string& path) {
  PlanPoint point = root_point(settings, cards.board());
  std::istringstream steps(path);
  for (std::string step; std::getline(steps >> std::ws, step, ',');) {
    const std::vector<PlanChild> children = expand(settings, cards, point);
    const auto child = std::find_if(children.begin(), children.end(), [&](const PlanChild& c) {
      return step == "*" || text_of(c.action) == step;
    });
    if (child == children.end()) throw std::runtime_error("no " + step + " in " + path);
    point = child->point;
  }
  return point;
}

TEST(BettingRules, ActionListsByPath) {
  struct Case {
    Rules rules;
    std::string path;
    std::string actions;
  };
  const auto sizes = [](const std::string& bets, const std::string& raises = "") {
    return Rules{.bets = bets, .raises = raises};
  };
  const auto jam = [](std::int32_t stack, double oop, double ip, bool dont_donk = false) {
    return Rules{.stack = stack, .jam = {oop, ip}, .dont_donk = dont_donk};
  };
  const auto flop = [](Rules rules) {
    rules.board = "AhKd7c";
    return rules;
  };
  Rules dont_donk = sizes("50%", "50%");
  dont_donk.dont_donk = true;

  const std::vector<Case> cases = {
      // Sizes at the root.
      {sizes(""), "", "check"},
      {sizes("2e"), "", "check, bet 179"},
      {sizes("e"), "", "check, allin 1000"},
      {flop(sizes("e")), "", "check, bet 88"},
      {flop(sizes("%60e")), "", "check, bet 60"},
      {sizes("a"), "", "check, allin 1000"},
      {sizes("5000c"), "", "check, allin 1000"},
      {sizes("999c"), "", "check, bet 999"},
      {sizes("0.1%"), "", "check, bet 1"},
      {sizes("-5%,-5c,0c,0%"), "", "check, bet 1"},
      {sizes("50.5%,49.5%,50.49%"), "", "check, bet 50, bet 51"},
      {sizes("75%,a,33%,5000c,2000%,33c"), "", "check, bet 33, bet 75, allin 1000"},
      {sizes("1e300%,99999999999%,2147483647c"), "", "check, allin 1000"},
      {{.pot = 0, .stack = 50, .bets = "50%,10c,10c,e"}, "", "check, bet 1, bet 1, bet 10, bet 10"},
      {{.stack = 0, .bets = "50%,a"}, "", "check, allin 0, allin 0"},
      // Raises.
      {sizes("50%", "50%"), "bet 50", "fold, call 50, raise 150"},
      {sizes("50%", "50%,3x,100c"), "bet 50", "fold, call 50, raise 150"},
      {sizes("50%", "1.5x"), "bet 50", "fold, call 50, raise 100"},
      {sizes("50%", "3x,1e300x"), "bet 50", "fold, call 50, raise 150, allin 1000"},
      {sizes("50%", "50%"), "bet 50,raise 150", "fold, call 100, raise 350"},
      {sizes("50%", "a"), "bet 50", "fold, call 50, allin 1000"},
      // A geometric raise is a street total: the pot is 200 after a call, 950 are behind, and
      // (sqrt(2 * 950 / 200 + 1) - 1) / 2 of 200 is 224.04.
      {sizes("50%", "2e"), "bet 50", "fold, call 50, raise 224"},
      {sizes("50%", "100c2r"), "bet 50,raise 150", "fold, call 100"},
      {sizes("50%", "100c3r"), "bet 50,raise 150", "fold, call 100, raise 250"},
      {sizes("50%", "100c1r"), "bet 50", "fold, call 50"},
      {flop(sizes("50%", "100c2r")),  // The raises of each street are counted anew.
       "bet 50,raise 150,call 100,*,bet 200", "fold, call 200, raise 400"},
      {sizes("700c", "2x"), "bet 700", "fold, call 700, allin 1000"},
      {sizes("a", "50%,3x,a"), "allin 1000", "fold, call 1000"},
      {sizes("50%", "a"), "bet 50,allin 1000", "fold, call 950"},
      {sizes("50%", "a,50%"), "check,bet 50,allin 1000", "fold, call 950"},
      // Leading into aggression.
      {flop(dont_donk), "", "check"},
      {flop(dont_donk), "check,bet 50,call 50,*", "check"},
      {flop(dont_donk), "check,bet 50,call 50,*,check", "check, bet 100"},
      {flop(dont_donk), "check,bet 50,raise 150,call 100,*", "check, bet 200"},
      {flop(dont_donk), "check,check,*", "check, bet 50"},
      {flop(dont_donk), "check,bet 50,call 50,*,check,check,*", "check, bet 100"},
      {flop(dont_donk), "check,bet 50,call 50,*,check,bet 100,call 100,*", "check"},
      // The all-in that the threshold of a seat adds.
      {jam(150, 1.5, 0), "", "check, allin 150"},
      {jam(151, 1.5, 0), "", "check"},
      {jam(120, 0, 1.5), "", "check"},
      {jam(120, 0, 1.5), "check", "check, allin 120"},
      {jam(120, 1.5, 0, true), "", "check, allin 120"},
      {{.stack = 300, .bets = "50%", .jam = {1.5, 1.5}}, "", "check, bet 50"},
      {{.stack = 300, .bets = "50%", .jam = {1.5, 1.5}}, "bet 50", "fold, call 50, allin 300"},
      {{.stack = 301, .bets = "50%", .jam = {1.5, 1.5}}, "bet 50", "fold, call 50"},
      {{.stack = 100, .bets = "a", .jam = {1.5, 1.5}}, "", "check, allin 100"},
      {{.stack = 100, .bets = "a", .jam = {1.5, 1.5}}, "allin 100", "fold, call 100"},
      {{.stack = 10, .jam = {1e300, 1e300}}, "", "check, allin 10"},
      // What leaves too little behind becomes the all-in; what is too close to a larger size goes.
      {{.stack = 100, .bets = "50%", .force = 0.49}, "", "check, bet 50"},
      {{.stack = 100, .bets = "50%", .force = 0.5}, "", "check, allin 100"},
      {{.bets = "50%,60%,100%", .merge = 0.1}, "", "check, bet 60, bet 100"},
      {{.bets = "50%,60%,100%", .merge = 0.05}, "", "check, bet 50, bet 60, bet 100"},
      {{.bets = "50%,81%", .merge = 0.2}, "", "check, bet 50, bet 81"},
  };
  for (const Case& c : cases) {
    const GameSettings settings = settings_of(c.rules);
    const CardContext cards = context_of(c.rules.board);
    std::string found;
    EXPECT_EQ(faults::of(
                  [&] { found = text_of(legal_actions(settings, walk(settings, cards, c.path))); }),
              "none");
    EXPECT_EQ(found, c.actions) << "bets '" << c.rules.bets << "' raises '" << c.rules.raises
                                << "' path '" << c.path << "'";
  }
}

/// Counts worked out from the rules. A river without bets is two checks and the showdown: 3 nodes.
/// With an all-in only it has 9: after each of the two all-ins a fold and a call besides.
TEST(ActionPlan, NodeCountsBySpot) {
  struct Case {
    Rules rules;
    std::size_t nodes, decisions;
    BySeat<std::uint64_t> rows;  ///< Actions of the decision nodes.
  };
  const char* const river = "AhKd7c2s9h";
  const char* const turn = "AhKd7c2s";
  const Case cases[] = {
      {{.board = river}, 3, 2, {1, 1}},
      {{.board = river, .bets = "a"}, 9, 4, {4, 4}},
      // A bet is met by fold, call and all-in, which is met by fold and call.
      {{.board = river, .bets = "50%", .raises = "a"}, 15, 6, {7, 7}},
      {{.board = river, .bets = "50%", .raises = "100c2r"}, 15, 6, {7, 7}},
      {{.board = river, .bets = "50%", .raises = "100c3r"}, 21, 8, {10, 10}},
      // OOP has no size of its own to lead with: only IP's bet after its check is left.
      {{.board = river, .bets = "a", .dont_donk = true}, 6, 3, {3, 2}},
      // 48 rivers after the two checks, and as showdowns after each call of an all-in.
      {{.board = turn}, 3 + 48 * 3, 2 + 48 * 2, {49, 49}},
      {{.board = turn, .bets = "a"}, 3 + 48 * 9 + 2 * 51, 4 + 48 * 4, {4 + 48 * 4, 4 + 48 * 4}},
      {{.board = "AhKd7c"},
       3 + 49 * (3 + 48 * 3),
       2 + 49 * (2 + 48 * 2),
       {1 + 49 * 49, 1 + 49 * 49}},
      // Three hearts: 10 turns of hearts, with 9 more hearts and 13 clubs to come, and 13 clubs for
      // all other suits, after which diamonds stand for spades: 10 + 12 + 13 rivers.
      {{.board = "AhKh7h"},
       3 + 10 * (3 + 22 * 3) + 13 * (3 + 35 * 3),
       2 + 10 * (2 + 22 * 2) + 13 * (2 + 35 * 2),
       {1 + 10 * 23 + 13 * 36, 1 + 10 * 23 + 13 * 36}},
      // A root that is not on the street of the board: the cards that are there aren't dealt again.
      {{.board = turn, .street = kFlop}, 3 + 48 * 3, 2 + 48 * 2, {49, 49}},
      {{.board = river, .bets = "a", .street = kFlop}, 9, 4, {4, 4}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.rules.board + " " + c.rules.bets + " / " + c.rules.raises);
    const CardContext cards = context_of(c.rules.board);
    const ActionPlan plan(settings_of(c.rules), cards);
    EXPECT_EQ(plan.node_count(), c.nodes);
    EXPECT_EQ(plan.counts().nodes, c.nodes);
    EXPECT_EQ(plan.counts().decision_nodes, c.decisions);
    EXPECT_EQ(plan.counts().action_rows, c.rows);
    const PlanCounts counted = count_plan(plan.settings(), cards);
    EXPECT_EQ(counted.nodes, c.nodes);
    EXPECT_EQ(counted.action_rows, c.rows);
    // Depth first: a subtree lies behind its root and before that of the next action.
    for (std::size_t i = 0; i < plan.node_count(); ++i) {
      const PlanNode& node = plan.nodes()[i];
      EXPECT_EQ(node.pot, c.rules.pot + node.invested[kOop] + node.invested[kIp]);
      EXPECT_TRUE(std::is_sorted(node.children.begin(), node.children.end()));
      EXPECT_TRUE(node.children.empty() || node.children[0] == i + 1) << i;
    }
  }
}

TEST(ActionPlan, WorkersChangeNoNode) {
  const CardContext cards = context_of("AhKh7c");
  const GameSettings settings =
      settings_of({.board = "AhKh7c", .stack = 200, .bets = "50%", .raises = "a"});
  const auto build = [&](const char* workers) {
    const ScopedEnvironment environment("VELMORA_ACTIONPLAN_MAX_WORKERS", workers);
    return std::make_unique<ActionPlan>(settings, cards);
  };
  const auto one = build("1");
  for (const char* workers : {"2", "5"}) {
    const auto many = build(workers);
    ASSERT_EQ(one->node_count(), many->node_count());
    for (std::size_t i = 0; i < one->node_count(); ++i) {
      const PlanNode& x = one->nodes()[i];
      const PlanNode& y = many->nodes()[i];
      ASSERT_TRUE(
          std::equal(x.actions.begin(), x.actions.end(), y.actions.begin(), y.actions.end()) &&
          std::equal(x.children.begin(), x.children.end(), y.children.begin(), y.children.end()) &&
          x.kind == y.kind && x.pot == y.pot && x.turn == y.turn && x.river == y.river)
          << "node " << i;
    }
  }
}

TEST(ActionPlan, TreesBeyondTheLimitsAreRefused) {
  const CardContext cards = context_of("AhKd7c2s9h");
  // One chip more each time: check, 1, 2, ..., the stack, and the call.
  const auto fault = [&](std::int32_t stack) {
    const GameSettings settings = settings_of({.stack = stack, .bets = "1c", .raises = "1c"});
    return faults::of([&] { ActionPlan(settings, cards); });
  };
  const auto edges = static_cast<std::int32_t>(kMaxPlanDepth);
  EXPECT_EQ(fault(edges - 2), "none");
  EXPECT_EQ(fault(edges - 1), "other: Betting tree is too deep");
  EXPECT_EQ(fault(std::numeric_limits<std::int32_t>::max()), "other: Betting tree is too deep");

  // A tree of more nodes than an index can tell apart is counted at once and not built.
  const CardContext flop = context_of("AhKd7c");
  const GameSettings wide = settings_of({.board = "AhKd7c",
                                         .stack = 1000,
                                         .bets = "10%,20%,33%,50%,75%,100%,150%",
                                         .raises = "2x,3x,4x"});
  EXPECT_GT(count_plan(wide, flop).nodes, std::uint64_t{1} << 32);
  EXPECT_EQ(faults::of([&] { ActionPlan(wide, flop); }), "other: std::bad_alloc");
}

}  // namespace
}  // namespace velmora
