// The locks and the figures of a project.
#include <gtest/gtest.h>

#include "node_lock_table.h"
#include "solve_outcome.h"

using velmora::NodeLockEntry;
using velmora_app::SolveResult;

TEST(NodeLockTable, KeepsOneLockForEachHandOfANode) {
  NodeLockTable table;
  table.set(3, "AKs", 1, 1.5);
  table.set(3, "AA", 0, -0.2);
  table.set(3, "AKs", 2, 0.25);  // Replaces the first.
  table.set(3, "KK", 1, 7);
  table.set(5, "QQ", -1, 0.5);  // Shown, but no solve takes it.
  table.set(-1, "AA", 0, 1);
  table.set(4, "", 0, 1);

  const QVariantMap aces{{"hand", "AA"}, {"actionIndex", 0}, {"actionProb", 0.0}};
  const QVariantMap suited{{"hand", "AKs"}, {"actionIndex", 2}, {"actionProb", 0.25}};
  const QVariantMap kings{{"hand", "KK"}, {"actionIndex", 1}, {"actionProb", 1.0}};
  EXPECT_EQ(table.locksAt(3), (QVariantList{aces, suited, kings}));
  EXPECT_EQ(table.locksAt(5).size(), 1);
  EXPECT_EQ(table.locksAt(-1), QVariantList());
  EXPECT_EQ(table.locksAt(4), QVariantList());
  EXPECT_EQ(table.entries(), (std::vector<NodeLockEntry>{
                                 {3, "AA", 0, 0.0F}, {3, "AKs", 2, 0.25F}, {3, "KK", 1, 1.0F}}));

  table.clear(7);
  table.clear(-1);
  EXPECT_EQ(table.locksAt(3).size(), 3);
  table.clear(3);
  EXPECT_EQ(table.locksAt(3), QVariantList());
  EXPECT_EQ(table.locksAt(5).size(), 1);
}

TEST(SolveOutcome, SumsUpAResultInOneLine) {
  SolveResult result;
  result.board = "AsKd7h";
  result.iterations = 400;
  result.exploitability = 0.81254F;
  result.ev_oop = -12.3456F;
  result.ev_ip = 12.0F;
  result.error = "Bad range: 100% %1";
  EXPECT_EQ(outcomeOf(result).summary.toStdString(), "Solve failed: Bad range: 100% %1");
  EXPECT_EQ(outcomeOf(result).iterations, 0);
  result.success = true;
  EXPECT_EQ(outcomeOf(result).summary.toStdString(),
            "Board AsKd7h | iters 400 | expl≈0.8125 | EV(oop)=-12.346 EV(ip)=12.000");
}
