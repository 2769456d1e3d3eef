#include "action_plan.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "betting_rules.h"
#include "faults.h"
#include "scoped_environment.h"
#include "slow_tree.h"

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
      {sizes("50%"), "", "check, bet 50"},
      {flop(sizes("2e")), "", "check, bet 179"},
      {sizes("2e"), "", "check, bet 179"},
      {sizes("e"), "", "check, allin 1000"},
      {flop(sizes("e")), "", "check, bet 88"},
      {flop(sizes("%60e")), "", "check, bet 60"},
      {sizes("a"), "", "check, allin 1000"},
      {sizes("5000c"), "", "check, allin 1000"},
      {sizes("1000c"), "", "check, allin 1000"},
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
      {sizes("50%", "3x"), "bet 50", "fold, call 50, raise 150"},
      {sizes("50%", "100c"), "bet 50", "fold, call 50, raise 150"},
      {sizes("50%", "50%,3x,100c"), "bet 50", "fold, call 50, raise 150"},
      {sizes("50%", "1.5x"), "bet 50", "fold, call 50, raise 100"},
      {sizes("50%", "3x,1e300x"), "bet 50", "fold, call 50, raise 150, allin 1000"},
      {sizes("50%", "50%"), "bet 50,raise 150", "fold, call 100, raise 350"},
      {sizes("50%", "50%"), "check,bet 50", "fold, call 50, raise 150"},
      {sizes("50%", "a"), "bet 50", "fold, call 50, allin 1000"},
      // A geometric raise is a street total: the pot is 200 after a call, 950 are behind, and
      // (sqrt(2 * 950 / 200 + 1) - 1) / 2 of 200 is 224.04.
      {sizes("50%", "2e"), "bet 50", "fold, call 50, raise 224"},
      {sizes("50%", "100c2r"), "bet 50", "fold, call 50, raise 150"},
      {sizes("50%", "100c2r"), "bet 50,raise 150", "fold, call 100"},
      {sizes("50%", "100c3r"), "bet 50,raise 150", "fold, call 100, raise 250"},
      {sizes("50%", "100c1r"), "bet 50", "fold, call 50"},
      {sizes("700c", "2x"), "bet 700", "fold, call 700, allin 1000"},
      {sizes("a", "50%,3x,a"), "allin 1000", "fold, call 1000"},
      {sizes("50%", "a"), "bet 50,allin 1000", "fold, call 950"},
      {sizes("50%", "a,50%"), "check,bet 50,allin 1000", "fold, call 950"},
      // Leading into aggression.
      {flop(dont_donk), "", "check"},
      {flop(dont_donk), "check", "check, bet 50"},
      {flop(dont_donk), "check,bet 50,call 50,*", "check"},
      {flop(dont_donk), "check,bet 50,call 50,*,check", "check, bet 100"},
      {flop(dont_donk), "check,bet 50,raise 150,call 100,*", "check, bet 200"},
      {flop(dont_donk), "check,check,*", "check, bet 50"},
      {flop(dont_donk), "check,bet 50,call 50,*,check,check,*", "check, bet 100"},
      {flop(dont_donk), "check,bet 50,call 50,*,check,bet 100,call 100,*", "check"},
      // The all-in that the threshold of a seat adds.
      {jam(120, 1.5, 0), "", "check, allin 120"},
      {jam(150, 1.5, 0), "", "check, allin 150"},
      {jam(151, 1.5, 0), "", "check"},
      {jam(120, 1.5, 0), "check", "check"},
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
      {{.bets = "50%,80%", .merge = 0.2}, "", "check, bet 80"},
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

TEST(BettingRules, AmountsThatSizesResolveAgainst) {
  const GameSettings settings = settings_of({.bets = "50%", .raises = "50%"});
  const CardContext cards = context_of("AhKd7c2s9h");
  const PlanPoint root = walk(settings, cards, "");
  SizingContext c = sizing_context(settings, root);
  EXPECT_EQ(c.pot_after_call, 100);
  EXPECT_EQ(c.all_in_to, 1000);
  EXPECT_EQ(c.min_raise_to, 1);
  EXPECT_EQ(c.to_call, 0);
  EXPECT_EQ(c.spr, 10);
  EXPECT_EQ(c.streets_left, 1);

  c = sizing_context(settings, walk(settings, cards, "bet 50"));
  EXPECT_EQ(c.to_call, 50);
  EXPECT_EQ(c.pot_after_call, 200);
  EXPECT_EQ(c.street_bet, 50);
  EXPECT_EQ(c.all_in_to, 1000);
  EXPECT_EQ(c.min_raise_to, 100);
  EXPECT_EQ(c.spr, 4.75);

  const PlanPoint raised = walk(settings, cards, "bet 50,raise 150");
  c = sizing_context(settings, raised);
  EXPECT_EQ(c.to_call, 100);
  EXPECT_EQ(c.pot_after_call, 400);
  EXPECT_EQ(c.min_raise_to, 250);
  EXPECT_EQ(raised.node.pot, 300);
  EXPECT_EQ(raised.node.commit, 50);

  GameSettings unknown = settings;
  unknown.street = 3;
  EXPECT_EQ(faults::of([&] { ActionPlan(unknown, cards); }), "other: Unknown street");
}

/// Compares every field of every node, in order.
void expect_equal_to_slow_tree(const ActionPlan& plan, const CardContext& cards) {
  const slow_tree::Tree slow(plan.settings(), cards);
  ASSERT_EQ(plan.node_count(), slow.nodes().size());
  PlanCounts counts;
  for (std::size_t i = 0; i < slow.nodes().size(); ++i) {
    const slow_tree::Node& expected = slow.nodes()[i];
    const PlanNode& node = plan.nodes()[i];
    ASSERT_EQ(text_of(node.actions), text_of(expected.actions)) << "node " << i;
    const std::vector<std::size_t> children(node.children.begin(), node.children.end());
    ASSERT_EQ(children, expected.children) << "node " << i;
    ASSERT_EQ(node.kind, expected.kind) << "node " << i;
    ASSERT_EQ(node.seat, expected.seat) << "node " << i;
    ASSERT_EQ(node.street, expected.street) << "node " << i;
    ASSERT_EQ(node.runout, expected.runout) << "node " << i;
    ASSERT_EQ(node.commit, std::min(expected.invested[0], expected.invested[1])) << "node " << i;
    ASSERT_EQ(node.pot, plan.settings().starting_pot + expected.invested[0] + expected.invested[1]);
    ASSERT_EQ(node.invested[0], expected.invested[0]) << "node " << i;
    ASSERT_EQ(node.invested[1], expected.invested[1]) << "node " << i;
    ASSERT_EQ(node.last_action, expected.last_action) << "node " << i;
    ASSERT_EQ(node.last_actor, expected.last_actor) << "node " << i;
    ASSERT_EQ(node.turn, expected.turn) << "node " << i;
    ASSERT_EQ(node.river, expected.river) << "node " << i;
    if (expected.kind == NodeKind::kDecision) {
      ++counts.decision_nodes;
      counts.action_rows[expected.seat] += expected.actions.size();
    }
  }
  EXPECT_EQ(plan.counts().nodes, slow.nodes().size());
  EXPECT_EQ(plan.counts().decision_nodes, counts.decision_nodes);
  EXPECT_EQ(plan.counts().action_rows, counts.action_rows);
}

TEST(ActionPlan, EqualsATreeBuiltFromHistories) {
  struct Case {
    Rules rules;
    std::string oop = "KK,QJs";
    std::string ip = "AA,87s:0.5";
  };
  const std::vector<Case> cases = {
      {{.board = "AhKd7c", .bets = "50%", .raises = "a", .dont_donk = true}},
      {{.board = "AhKh7h", .stack = 250, .bets = "50%", .raises = "60%", .jam = {0.8, 1.2}}},
      // After a turn card of a suit that the flop lacks, another number of rivers remains.
      {{.board = "AhAd7c", .stack = 90, .bets = "a", .raises = ""}},
      {{.board = "AhKd7c2s", .bets = "33%,2e,a", .raises = "100c2r,2.5x"}},
      {{.board = "7h5h2hTh", .stack = 333, .bets = "e,20%", .raises = "%70e,50%", .jam = {2, 0}}},
      {{.board = "AhKd7c2s9h",
        .bets = "25%,75%,150%,a",
        .raises = "50%,100%,a",
        .dont_donk = true}},
      {{.board = "AhKd7c", .stack = 40, .bets = "50%", .raises = "a"}, "KK,AsKs", "AA"},
      // The same chips by fewer raises, 70 or 10, 30, 70, leave more under a cap.
      {{.stack = 400, .bets = "10c,70c", .raises = "20c,40c,80c,100c3r"}},
      // A root that is not on the street of the board.
      {{.board = "AhKd7c2s", .stack = 300, .bets = "50%", .raises = "a", .street = kFlop}},
      {{.board = "AhKd7c2s9h", .stack = 300, .bets = "50%", .raises = "a", .street = kFlop}},
      {{.board = "AhKd7c2s9h", .stack = 300, .bets = "50%", .raises = "a", .street = kTurn}},
      {{.board = "AhKh7h", .stack = 60, .bets = "a", .street = kTurn}},
      {{.board = "AhKh7h", .stack = 300, .bets = "50%", .raises = "a", .street = kRiver}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.rules.board + " " + c.rules.bets + " / " + c.rules.raises);
    const CardContext cards = context_of(c.rules.board, c.oop, c.ip);
    expect_equal_to_slow_tree(ActionPlan(settings_of(c.rules), cards), cards);
    if (HasFatalFailure()) return;
  }
}

TEST(ActionPlan, EqualsATreeBuiltFromHistoriesForRandomRules) {
  std::mt19937 random(20);
  const auto pick = [&random](const auto& list) { return list[random() % std::size(list)]; };
  const char* const bet_tokens[] = {"33%", "50%",  "75%", "150%", "0.5%", "a",   "e",  "2e",
                                    "3e",  "%40e", "5c",  "60c",  "400c", "99%", "1%", "%1e"};
  const char* const raise_tokens[] = {"40%", "50%", "100%",   "2x",    "3.3x", "a",     "e",
                                      "2e",  "60c", "100c2r", "20c3r", "7c2r", "1.01x", "90%"};
  const auto text = [&](const auto& tokens) {
    std::string sizes;
    for (std::size_t count = random() % 4; count > 0; --count) {
      sizes += std::string(sizes.empty() ? "" : ",") + pick(tokens);
    }
    return sizes;
  };
  const double jams[] = {0, 0, 0.5, 1.5, 10};
  const double thresholds[] = {0, 0, 0, 0.1, 0.3, 1};
  const std::int32_t pots[] = {0, 1, 2, 7, 20, 100, 333, 1000};
  const std::int32_t stacks[] = {0, 1, 2, 5, 37, 100, 250, 999};
  const CardContext cards = context_of("AhKd7c2s9h");

  int compared = 0;
  for (int i = 0; i < 400; ++i) {
    GameSettings settings = settings_of({.pot = pick(pots), .stack = pick(stacks)});
    for (StreetSizing& street : settings.sizing) {
      for (SeatSizing& seat : street.seats) {
        seat = parse_seat_sizing(text(bet_tokens), text(raise_tokens));
      }
      if (random() % 3 == 0) {
        street.donk.reset();
      } else {
        street.donk = parse_bet_sizes(text(bet_tokens), false);
      }
    }
    settings.jam_threshold = {pick(jams), pick(jams)};
    settings.force_all_in_threshold = pick(thresholds);
    settings.merge_threshold = pick(thresholds);
    if (count_plan(settings, cards).nodes > 3000) continue;
    ++compared;
    expect_equal_to_slow_tree(ActionPlan(settings, cards), cards);
    if (HasFatalFailure()) FAIL() << "spot " << i;
  }
  EXPECT_GT(compared, 200);
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

/// Chips at the ends of what 32 bits hold: nothing overflows, no seat puts in what it has not. With
/// less than nothing behind, bets of no chips may follow each other without an end.
TEST(ActionPlan, ExtremeChipCounts) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  const CardContext cards = context_of("AhKd7c2s");
  for (const std::int32_t pot : {kLeast, -1, 0, 1, kMost}) {
    for (const std::int32_t stack : {kLeast, -1, 0, 1, kMost}) {
      const GameSettings settings = settings_of({.board = "AhKd7c2s",
                                                 .pot = pot,
                                                 .stack = stack,
                                                 .bets = "50%,2147483647c,a,e",
                                                 .raises = "100c2r,1e300x,a",
                                                 .jam = {1, 1e300},
                                                 .force = 0.5,
                                                 .merge = 0.1});
      std::unique_ptr<ActionPlan> plan;
      const std::string fault =
          faults::of([&] { plan = std::make_unique<ActionPlan>(settings, cards); });
      if (stack < 0 && fault == "other: Betting tree is too deep") continue;
      ASSERT_EQ(fault, "none");
      for (const PlanNode& node : plan->nodes()) {
        for (const Seat seat : {kOop, kIp}) {
          ASSERT_GE(node.invested[seat], 0);
          ASSERT_LE(node.invested[seat], std::max(0, stack));
        }
        for (const NodeIndex child : node.children) ASSERT_LT(child, plan->node_count());
      }
    }
  }
}

}  // namespace
}  // namespace velmora
