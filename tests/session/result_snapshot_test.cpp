#include <limits>

#include <gtest/gtest.h>

#include "results/actions.h"
#include "results/snapshot.h"
#include "runs.h"

namespace session_test {
namespace {

using velmora::kNoCard;
using velmora::NodeKind;
using velmora::PlanNode;
using velmora_app::ActionMeta;
using velmora_app::NodeMeta;
using velmora_app::SolvedSpot;
using velmora_app::TreeSnapshot;

TEST(ResultSnapshot, MirrorsEveryNode) {
  SolveSession session;
  SolveConfig config = flop_request();
  config.max_iterations = 4;
  const SolveResult result = result_of(session, config);
  ASSERT_TRUE(result.success) << result.error;
  const SolvedSpot spot = session.solved_spot();
  ASSERT_EQ(result.nodes->size(), spot.game->nodes().size());

  int runouts = 0;
  for (std::size_t i = 0; i < result.nodes->size(); ++i) {
    const PlanNode& node = spot.game->nodes()[i];
    const NodeMeta meta = result.nodes->node(i);
    const bool decides = node.kind == NodeKind::kDecision;
    ASSERT_EQ(meta.node_type, decides                          ? "decision"
                              : node.kind == NodeKind::kChance ? "chance"
                                                               : "terminal");
    ASSERT_EQ(meta.player, !decides ? "" : node.seat == velmora::kOop ? "OOP" : "IP");
    ASSERT_EQ(meta.chance_deal, node.kind != NodeKind::kChance ? ""
                                : node.turn == kNoCard         ? "turn"
                                                               : "river");
    ASSERT_EQ(meta.pot, node.pot);
    ASSERT_EQ(meta.invested_oop, node.invested[0]);
    ASSERT_EQ(meta.invested_ip, node.invested[1]);
    ASSERT_EQ(meta.actions.size(), node.actions.size());
    ASSERT_EQ(result.nodes->has_children(i), !node.children.empty());
    if (node.actions.empty()) continue;
    if (node.runout) ++runouts;

    // The plain mean over the hands of the seat, each counting the same.
    std::vector<double> means(node.actions.size(), 1.0 / static_cast<double>(node.actions.size()));
    if (decides) {
      const std::vector<float> strategy = spot.solver->average_strategy(i);
      const std::size_t hands = spot.game->num_hands(node.seat);
      ASSERT_EQ(strategy.size(), hands * means.size());
      for (std::size_t a = 0; a < means.size(); ++a) {
        means[a] = 0;
        for (std::size_t h = 0; h < hands; ++h) {
          means[a] += static_cast<double>(strategy[a * hands + h]) / static_cast<double>(hands);
        }
      }
    }
    for (std::size_t a = 0; a < means.size(); ++a) {
      const ActionMeta& action = meta.actions[a];
      ASSERT_NEAR(action.frequency, means[a], 1e-6) << "node " << i;
      ASSERT_EQ(action.child_index, node.children[a]);
      ASSERT_EQ(action.name, velmora_app::action_label(node.actions[a], node.pot));
      ASSERT_EQ(action.action_type, velmora_app::action_key(node.actions[a], node.pot));
    }
  }
  EXPECT_GT(runouts, 0);
}

NodeMeta node_of(std::vector<ActionMeta> actions) {
  NodeMeta node;
  node.node_type = "decision";
  node.player = "IP";
  node.pot = 5;
  node.actions = std::move(actions);
  return node;
}

TEST(TreeSnapshot, GivesBackWhatItWasGiven) {
  TreeSnapshot snapshot;
  EXPECT_EQ(snapshot.size(), 0U);
  EXPECT_THROW(snapshot.node(0), std::out_of_range);
  // More actions than 16 bits count.
  std::vector<ActionMeta> many(70000, {"Bet 33%", "bet 33%", 0.25F, 7});
  many.back() = {"Fold", "fold", 1, 9};
  snapshot.append(node_of({}));
  snapshot.append(node_of(many));
  snapshot.append(node_of({{"Call", "call", 0.5F, std::numeric_limits<std::uint32_t>::max()}}));
  snapshot.append(node_of({}));

  EXPECT_FALSE(snapshot.has_children(0));
  EXPECT_TRUE(snapshot.has_children(1));
  EXPECT_THROW(static_cast<void>(snapshot.has_children(4)), std::out_of_range);
  const NodeMeta wide = snapshot.node(1);
  ASSERT_EQ(wide.actions.size(), many.size());
  EXPECT_EQ(wide.actions[69999].action_type, "fold");
  EXPECT_EQ(wide.actions[69999].child_index, 9U);
  const NodeMeta narrow = snapshot.node(2);
  ASSERT_EQ(narrow.actions.size(), 1U);
  EXPECT_EQ(narrow.actions[0].child_index, std::numeric_limits<std::uint32_t>::max());
  EXPECT_EQ(narrow.actions[0].frequency, 0.5F);
}

TEST(TreeSnapshot, RefusesMoreTextsThanItCanTellApart) {
  TreeSnapshot snapshot;
  const auto append_all = [&snapshot] {
    for (int i = 0; i < 40000; ++i) {
      const std::string number = std::to_string(i);
      snapshot.append(node_of({{"Bet " + number + "%", "bet " + number + "%", 1, 0}}));
    }
  };
  EXPECT_THROW(append_all(), std::length_error);
  // What went in before that can still be read.
  EXPECT_EQ(snapshot.node(30000).actions[0].name, "Bet 30000%");
}

}  // namespace
}  // namespace session_test
