// The small classes behind the controller.
#include <gtest/gtest.h>

#include "app_test_support.h"
#include "report_inbox.h"
#include "system/developer_mode.h"
#include "system/processor_count.h"

using velmora_app::SolveProgress;

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
