// The small classes behind the controller.
#include <gtest/gtest.h>

#include "app_test_support.h"
#include "node_lock_table.h"
#include "report_inbox.h"
#include "solve_outcome.h"
#include "system/developer_mode.h"
#include "system/processor_count.h"

using velmora::NodeLockEntry;
using velmora_app::SolveProgress;
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

TEST(ReportInbox, KeepsTheNewestReportAndWakesItsReaderOnce) {
  SolveProgress first, second, last;
  first.status = "first";
  second.status = "second";
  last.status = "last";
  last.result.emplace();

  ReportInbox inbox;
  EXPECT_TRUE(inbox.put(first));
  EXPECT_FALSE(inbox.put(second));
  EXPECT_EQ(inbox.take()->status, "second");
  EXPECT_FALSE(inbox.put(first));  // The reader looks again by itself,
  EXPECT_TRUE(inbox.put(last));    // but a result doesn't wait for that.
  EXPECT_TRUE(inbox.take()->result);
  EXPECT_FALSE(inbox.take());
  EXPECT_TRUE(inbox.put(second));  // It found nothing and sleeps.
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

TEST(DeveloperMode, TheFirstVariableThatIsSetDecides) {
  const struct {
    const char *velmora, *dunmarrow, *solver;
    bool enabled;
  } cases[] = {{"", "", "", false},        {"1", "", "", true},    {"", "TRUE", "", true},
               {"", "", " yes\n", true},   {"on", "0", "0", true}, {"0", "1", "1", false},
               {"", "no", "1", false},     {"2", "", "", false},   {" ", "1", "", false},
               {"enabled", "", "1", false}};
  for (const auto& c : cases) {
    qputenv("VELMORA_DEV_MODE", c.velmora);
    qputenv("DUNMARROW_DEV_MODE", c.dunmarrow);
    qputenv("CPP_SOLVER_DEV_MODE", c.solver);
    const LogCapture log;
    EXPECT_EQ(developerModeOfEnvironment(), c.enabled) << c.velmora << c.dunmarrow << c.solver;
  }
  for (const char* name : {"VELMORA_DEV_MODE", "DUNMARROW_DEV_MODE", "CPP_SOLVER_DEV_MODE"}) {
    qunsetenv(name);
  }
}

TEST(ProcessorCount, FallsBackWhereTheSystemDoesNotSay) {
  EXPECT_EQ(chooseProcessorCount(96, 64, 64), 96);
  EXPECT_EQ(chooseProcessorCount(1, 8, 8), 1);
  EXPECT_EQ(chooseProcessorCount(0, 6, 8), 6);
  EXPECT_EQ(chooseProcessorCount(0, -1, 8), 8);
  EXPECT_EQ(chooseProcessorCount(0, 0, 0), 1);
  EXPECT_GE(usableProcessorCount(), 1);
}
