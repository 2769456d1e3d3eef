// A user who does everything at every moment. Short as it stands; the variable VELMORA_STRESS_RUNS
// asks for another number of steps, and VELMORA_STRESS_SEED for other ones.
#include <memory>
#include <random>

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include "app_controller.h"
#include "app_test_support.h"

namespace {

int numberIn(const char* variable, int fallback) {
  return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariableIntValue(variable) : fallback;
}

class StressTest : public ::testing::Test {
 protected:
  int pick(int below) { return std::uniform_int_distribution(0, below - 1)(random_); }

  QVariantMap spot() {
    QVariantMap map = pick(2) == 0 ? riverSpot() : endlessSpot();
    if (pick(3) == 0) {
      map["board"] = "KsQd7h2c";
      map["starting_street"] = "turn";
    }
    map["thread_count"] = 1 + pick(3);
    if (pick(10) == 0) map["oop_range"] = "AKx";
    return map;
  }

  void step() {
    const int node = pick(30) - 1;
    switch (pick(16)) {
      case 0:
      case 1:
      case 2: controller_->startSolveWithConfig(spot()); break;
      case 3:
      case 4: controller_->cancelSolve(); break;
      case 5: controller_->clearResults(); break;
      case 6: controller_->reSolveWithNodeLocks(); break;
      case 7: controller_->loadProject(file("saved")); break;
      case 8: controller_->loadProjectInBackground(file("saved")); break;
      case 9: controller_->saveProject(file("saved"), {{"step", node}}); break;
      case 10: controller_->saveProjectInBackground(file("saved"), {{"step", node}}); break;
      case 11: controller_->requestSolveMemoryEstimate(spot()); break;
      case 12: controller_->setNodeLock(node, "AA", pick(3) - 1, 0.5); break;
      case 13: controller_->prepareNodeAnswers(node); break;
      case 14:
        controller_->nodeHandCombos(node);
        controller_->nodeActionStats(node);
        controller_->nodeHandStrategyReach169(node, "air");
        controller_->nodeSeatHandCombos(node, "IP");
        break;
      default: controller_ = std::make_unique<AppController>();  // The window closes at any stage.
    }
    if (pick(3) == 0) QTest::qWait(pick(2) == 0 ? 0 : pick(20));
  }

  QUrl file(const char* name) const { return QUrl::fromLocalFile(dir_.filePath(name)); }

  QTemporaryDir dir_;
  const LogCapture log_;
  std::unique_ptr<AppController> controller_ = std::make_unique<AppController>();

 private:
  std::mt19937 random_{static_cast<unsigned>(numberIn("VELMORA_STRESS_SEED", 1))};
};

}  // namespace

TEST_F(StressTest, NothingThatAUserDoesIsTooEarlyOrTooLate) {
  const int steps = numberIn("VELMORA_STRESS_RUNS", 300);
  for (int i = 0; i < steps; ++i) step();

  // Whatever has happened, it comes to rest, and the next solve is one like any other.
  controller_->cancelSolve();
  ASSERT_TRUE(waitUntil([&] { return controller_->fileProgress() < 0; }));
  ASSERT_TRUE(waitUntil([&] {
    if (controller_->running()) return false;
    controller_->clearResults();
    controller_->startSolveWithConfig(riverSpot());
    const bool refused = controller_->statusText() == "Already running";
    return waitUntil([&] { return !controller_->running(); }) && !refused;
  }));
  EXPECT_EQ(controller_->statusText(), "Done");
  EXPECT_EQ(controller_->resultIterations(), 60);
  EXPECT_GT(controller_->treeNodeCount(), 1);
}
