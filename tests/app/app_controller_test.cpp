#include "app_controller.h"

#include <cmath>
#include <functional>
#include <memory>
#include <utility>

#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QUrl>

#include <gtest/gtest.h>

#include "app_test_support.h"
#include "memory_estimate.h"
#include "spot_config.h"

namespace {

QVariantMap with(QVariantMap map, const QString& key, const QVariant& value) {
  map[key] = value;
  return map;
}

/// A spot that no machine has the memory for.
QVariantMap tooLarge() {
  QStringList sizes;
  for (int size = 10; size <= 400; size += 10) sizes << QString::number(size);
  QVariantMap map = riverSpot();
  map["board"] = "KsQd7h";
  map["starting_street"] = "flop";
  map["effective_stack"] = 100000;
  for (const QString& key : map.keys()) {
    if (key.endsWith("_sizes")) map[key] = sizes.join(',');
  }
  return map;
}

/// Starts a solve and waits for its end.
void solve(AppController& controller, const QVariantMap& map) {
  controller.startSolveWithConfig(map);
  ASSERT_TRUE(controller.running()) << controller.statusText().toStdString();
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
}

void startEndless(AppController& controller) {
  controller.startSolveWithConfig(endlessSpot());
  ASSERT_TRUE(controller.running()) << controller.statusText().toStdString();
  ASSERT_TRUE(waitUntil([&] { return controller.statusText().startsWith("Iter "); }));
}

double rootFrequency(const AppController& controller, int action) {
  return controller.rootActions().at(action).toMap().value("frequency").toDouble();
}

class AppControllerTest : public ::testing::Test {
 protected:
  const LogCapture log_;
};

}  // namespace

TEST_F(AppControllerTest, RefusesWhatCannotBeSolvedAndKeepsTheResult) {
  const QString board = "Not ready: enter a valid board first";
  const QString range = "Not ready: select at least one hand in both ranges";
  const QString sizing = "Not ready: fill out both OOP and IP sizing";
  const QVariantMap good = riverSpot();
  const struct {
    QVariantMap map;
    QString status;
  } cases[] = {
      {{}, board},
      {with(good, "board", "AsKd"), board},
      {with(good, "board", "AsKd7h2c3s4s"), board},
      {with(good, "board", "AsK__d7h"), board},
      {with(with(good, "board", "As"), "oop_range", ""), board},  // The board is looked at first,
      {with(good, "oop_range", ""), range},
      {with(good, "oop_range", " \t"), range},
      {with(good, "ip_range", "AA:0"), range},
      {with(with(good, "ip_range", ","), "ip_turn_bet_sizes", ""), range},  // then the ranges,
      {with(with(good, "ip_range", "50%"), "ip_turn_bet_sizes", ""), sizing},
      // A fault in a text is told by the parser, before anything that is only missing.
      {with(good, "board", "AhAhAh"), "Board: Flop cards must be unique"},
      {with(good, "board", "AsKdXx2c9s"), "Board: 'Xx': Invalid rank character"},
      {with(good, "ip_range", "AA,KKs"), "IP Range: 'KKs': Pair cannot have suitedness suffix"},
      {with(with(good, "board", ""), "oop_turn_raise_sizes", "33 75"),
       "OOP Turn Raise sizes (%): Sizing: separate sizes by commas, as in '33, 75', not '33 75'"},
      {with(good, "starting_pot", 0), "Starting Pot: The starting pot must be 1 chip or more"},
      {with(good, "oop_flop_bet_sizes", ""), sizing},
      {with(good, "ip_river_raise_sizes", "  "), sizing},
      {with(good, "ip_turn_raise_sizes", QVariant()), sizing},
  };
  AppController controller;
  solve(controller, good);
  const QString summary = controller.resultsSummary();
  const QSignalSpy running(&controller, &AppController::runningChanged);
  for (const auto& c : cases) {
    controller.startSolveWithConfig(c.map);
    EXPECT_EQ(controller.statusText().toStdString(), c.status.toStdString());
    EXPECT_FALSE(controller.running());
  }
  controller.startSolve();
  EXPECT_EQ(controller.statusText(), board);
  EXPECT_EQ(running.count(), 0);
  EXPECT_EQ(controller.progress(), 1.0);
  EXPECT_EQ(controller.resultsSummary(), summary);
  EXPECT_EQ(controller.resultIterations(), 60);
}

TEST_F(AppControllerTest, SolvesASpotAndShowsItsResult) {
  AppController controller;
  const QSignalSpy results(&controller, &AppController::resultsChanged);
  controller.startSolveWithConfig(riverSpot());
  EXPECT_TRUE(controller.running());
  EXPECT_EQ(controller.statusText(), "Starting...");
  controller.startSolveWithConfig({});  // One at a time: not even the status changes.
  EXPECT_EQ(controller.statusText(), "Starting...");
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));

  EXPECT_EQ(controller.statusText(), "Done");
  EXPECT_EQ(controller.progress(), 1.0);
  EXPECT_EQ(controller.resultIterations(), 60);
  EXPECT_EQ(controller.resultStartingPot(), 100);
  EXPECT_GE(controller.resultExploitability(), 0);
  EXPECT_NEAR(controller.resultEvOop() + controller.resultEvIp(), 0, 1e-3);
  EXPECT_EQ(controller.resultsSummary(),
            QStringLiteral("Board KsQd7h2c3s | iters 60 | expl≈%1 | EV(oop)=%2 EV(ip)=%3")
                .arg(QString::number(controller.resultExploitability(), 'f', 4),
                     QString::number(controller.resultEvOop(), 'f', 3),
                     QString::number(controller.resultEvIp(), 'f', 3)));

  ASSERT_EQ(controller.rootActions().size(), 2);
  EXPECT_EQ(controller.rootActions().at(1).toMap().value("name"), "Bet 50%");
  EXPECT_EQ(controller.rootActions().at(1).toMap().value("actionType"), "bet 50%");
  EXPECT_NEAR(rootFrequency(controller, 0) + rootFrequency(controller, 1), 1, 1e-6);
  EXPECT_EQ(controller.nodeMeta(0).value("player"), "OOP");
  EXPECT_EQ(controller.nodeMeta(0).value("effectiveStack"), 200);
  EXPECT_EQ(controller.nodeActions(0).size(), 2);
  for (int node = 0; node < controller.treeNodeCount(); ++node) {
    for (const QVariant& action : controller.nodeActions(node)) {
      EXPECT_GT(action.toMap().value("childIndex").toInt(), node);
      EXPECT_LT(action.toMap().value("childIndex").toInt(), controller.treeNodeCount());
    }
  }

  EXPECT_EQ(results.count(), 1);
  controller.clearResults();
  EXPECT_EQ(controller.statusText(), "Ready");
  EXPECT_EQ(controller.progress(), 0);
  EXPECT_EQ(controller.resultsSummary(), "");
  EXPECT_EQ(controller.resultIterations(), 0);
  EXPECT_EQ(controller.treeNodeCount(), 0);
  EXPECT_EQ(results.count(), 2);
}

TEST_F(AppControllerTest, TheFiguresOfARunAreThoseOfItsStatus) {
  AppController controller;
  int reports = 0;
  int unmeasured = 0;
  QObject::connect(&controller, &AppController::statusTextChanged, &controller, [&] {
    const QString text = controller.statusText();
    const int iteration = controller.iteration();
    const bool iterates = text.startsWith("Iter ");
    reports += iterates ? 1 : 0;
    EXPECT_EQ(iteration > 0, iterates) << text.toStdString();
    EXPECT_EQ(std::isnan(controller.exploitability()), iteration < 50) << text.toStdString();
    if (!iterates) return;
    unmeasured += iteration < 50 ? 1 : 0;
    const double shown = iteration < 50 ? 0 : controller.exploitability();
    EXPECT_EQ(text, QStringLiteral("Iter %1 | exploitability≈%2")
                        .arg(QString::number(iteration), QString::number(shown, 'f', 4)));
  });
  // Wide enough for its iterations to be seen one by one.
  QVariantMap spot = endlessSpot();
  spot["oop_range"] = spot["ip_range"] = "100%";
  spot["board"] = "KsQd7h2c";
  spot["starting_street"] = "turn";
  controller.startSolveWithConfig(spot);
  ASSERT_TRUE(waitUntil([&] { return reports > unmeasured; }));
  EXPECT_GT(unmeasured, 0);
  controller.cancelSolve();
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
}

TEST_F(AppControllerTest, ACancelledSolveEnds) {
  AppController controller;
  startEndless(controller);
  controller.cancelSolve();
  EXPECT_EQ(controller.statusText(), "Cancelling...");
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  EXPECT_EQ(controller.statusText(), "Cancelled");
  EXPECT_EQ(controller.resultsSummary(), "Solve failed: Cancelled");
  EXPECT_EQ(controller.progress(), 0);
}

TEST_F(AppControllerTest, ANewSolveMayStartAsSoonAsOneHasEnded) {
  AppController controller;
  const QStringList boards{"KsQd7h2c3s", "KsQd7h2c4s", "KsQd7h2c5s"};
  QStringList ended;
  QObject::connect(&controller, &AppController::runningChanged, &controller, [&] {
    if (controller.running()) return;
    ended << controller.resultsSummary().mid(6, 10);
    if (ended.size() < 60) {
      controller.startSolveWithConfig(
          with(riverSpot(), "board", boards[ended.size() % boards.size()]));
      EXPECT_TRUE(controller.running()) << controller.statusText().toStdString();
    }
  });
  controller.startSolveWithConfig(with(riverSpot(), "board", boards[0]));
  ASSERT_TRUE(waitUntil([&] { return ended.size() == 60; }));
  for (qsizetype i = 0; i < ended.size(); ++i) EXPECT_EQ(ended[i], boards[i % boards.size()]);
}

TEST_F(AppControllerTest, AnAbandonedRunNeverOverwritesWhatCameAfterIt) {
  QTemporaryDir dir;
  const QUrl file = QUrl::fromLocalFile(dir.filePath("saved"));
  AppController saver;
  solve(saver, with(riverSpot(), "board", "KsQd7h2c4s"));
  ASSERT_TRUE(saver.saveProject(file, {}));

  const struct {
    const char* name;
    std::function<void(AppController&)> overtake;
    QString board;  // Of the result afterwards.
  } cases[] = {
      {"clear", [](AppController& c) { c.clearResults(); }, ""},
      {"load", [&](AppController& c) { c.loadProject(file); }, "KsQd7h2c4s"},
      {"load aside",
       [&](AppController& c) {
         c.loadProjectInBackground(file);
         ASSERT_TRUE(waitUntil([&] { return c.fileProgress() < 0; }));
       },
       "KsQd7h2c4s"},
      {"profile", [](AppController& c) { c.abandonRun(); }, "KsQd7h2c3s"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    AppController controller;
    solve(controller, riverSpot());
    QVariantMap next = with(endlessSpot(), "board", "KsQd7h2c5s");
    controller.requestSolveMemoryEstimate(next);  // So that it starts at once.
    ASSERT_TRUE(waitUntil([&] { return !controller.estimatePending(); }));
    for (const bool finishes : {false, true, true}) {
      const bool settles = next["max_iterations"] == 1;  // The last time.
      if (finishes) next["max_iterations"] = 1;
      controller.startSolveWithConfig(next);
      QThread::msleep(50);  // A run that ends by itself has its result waiting then.
      c.overtake(controller);
      EXPECT_FALSE(controller.running());
      if (settles) QTest::qWait(30);
      EXPECT_EQ(controller.resultBoard().toStdString(), c.board.toStdString());
      // The next run waits for the old one to stop, and is the one that counts.
      controller.startSolveWithConfig(with(endlessSpot(), "board", "KsQd7h2c6s"));
      EXPECT_TRUE(controller.running());
      QTest::qWait(30);
      controller.cancelSolve();
      ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
      EXPECT_EQ(controller.resultBoard().toStdString(), c.board.toStdString());
      EXPECT_EQ(controller.treeNodeCount() > 0, !c.board.isEmpty());
    }
    solve(controller, with(riverSpot(), "board", "KsQd7h2c7s"));
    EXPECT_EQ(controller.resultBoard(), "KsQd7h2c7s");
  }
}

TEST_F(AppControllerTest, TheLatestOfLoadsAndStartsCounts) {
  QTemporaryDir dir;
  const auto file = [&](const char* name) { return QUrl::fromLocalFile(dir.filePath(name)); };
  AppController controller;
  for (const char* board : {"KsQd7h2c4s", "KsQd7h2c5s"}) {
    solve(controller, with(riverSpot(), "board", board));
    ASSERT_TRUE(controller.saveProject(file(board), {}));
  }
  const QSignalSpy loaded(&controller, &AppController::projectLoaded);
  controller.loadProjectInBackground(file("KsQd7h2c5s"));
  controller.loadProjectInBackground(file("KsQd7h2c4s"));
  ASSERT_TRUE(waitUntil([&] { return controller.fileProgress() < 0; }));
  EXPECT_EQ(loaded.count(), 1);
  EXPECT_EQ(controller.resultBoard(), "KsQd7h2c4s");

  controller.loadProjectInBackground(file("KsQd7h2c5s"));
  solve(controller, riverSpot());
  EXPECT_EQ(loaded.count(), 1);
  EXPECT_EQ(controller.resultBoard(), "KsQd7h2c3s");
  EXPECT_LT(controller.fileProgress(), 0);
}

TEST_F(AppControllerTest, ARunThatFailsCostsNothingAndSaysHowItEnded) {
  // Without an estimate nothing is in the way of a start.
  AppController controller({[] { return 0U; }, [] { return 0U; }, [](const auto&) { return 0U; }});
  const QSignalSpy results(&controller, &AppController::resultsChanged);
  const QSignalSpy started(&controller, &AppController::runStarted);
  const QSignalSpy ended(&controller, &AppController::runEnded);
  solve(controller, riverSpot());
  const QVariantList before = controller.nodeHandCombos(0);
  const QVariantMap other = with(riverSpot(), "starting_pot", 50);

  startEndless(controller);
  EXPECT_TRUE(controller.isResultSpot(riverSpot()));
  EXPECT_EQ(controller.resultIterations(), 60);
  controller.cancelSolve();
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  solve(controller, tooLarge());
  controller.startSolveWithConfig(with(other, "board", ""));

  EXPECT_EQ(results.count(), 1);
  EXPECT_EQ(controller.resultStartingPot(), 100);
  EXPECT_TRUE(controller.resultHasTables());
  EXPECT_EQ(controller.nodeHandCombos(0), before);
  EXPECT_FALSE(controller.nodeHandCombos(1).isEmpty());  // Not asked before.
  EXPECT_FALSE(controller.isResultSpot(other));
  EXPECT_FALSE(controller.isResultSpot(with(riverSpot(), "rake_cap", 5)));
  EXPECT_TRUE(controller.isResultSpot(with(riverSpot(), "thread_count", 7)));

  QStringList outcomes;
  for (const QVariantList& end : ended) {
    outcomes << end.at(0).toString() + (end.at(1).toString().isEmpty() ? "" : ": why");
  }
  EXPECT_EQ(outcomes, QStringList({"Completed", "Cancelled", "Failed: why", "Refused: why"}));
  EXPECT_EQ(started.count(), ended.count());
  EXPECT_EQ(ended.first().at(2).toInt(), 60);
}

TEST_F(AppControllerTest, AFileHoldsTheSpotOfItsResultAndNotTheOneUnderEdit) {
  QTemporaryDir dir;
  const QUrl file = QUrl::fromLocalFile(dir.filePath("saved"));
  AppController controller;
  solve(controller, with(with(riverSpot(), "rake_percent", 5.0), "rake_cap", 30));
  controller.setNodeLock(0, "AA", 1, 0.5);
  controller.reSolveWithNodeLocks();
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  controller.setNodeLock(1, "KK", 0, 0.25);
  EXPECT_TRUE(controller.nodeLocksPending(1));
  EXPECT_TRUE(controller.resultUnsaved());
  // A start that is refused, and one that still runs while it is saved.
  controller.startSolveWithConfig(with(riverSpot(), "board", "AsAd"));
  startEndless(controller);
  controller.saveProjectInBackground(file, {{"boardText", "2c2d2h"}});
  ASSERT_TRUE(waitUntil([&] { return controller.fileProgress() < 0; }));
  EXPECT_FALSE(controller.resultUnsaved());
  const QJsonDocument stored = QJsonDocument::fromJson(bytesOf(dir.filePath("saved")));
  EXPECT_EQ(stored["lastUiCfg"]["max_iterations"], riverSpot().value("max_iterations").toInt());

  AppController loaded;
  const QVariantMap answer = loaded.loadProject(file);
  EXPECT_EQ(answer.value("project").toMap().value("boardText"), "2c2d2h");
  EXPECT_EQ(loaded.resultBoard(), "KsQd7h2c3s");
  EXPECT_EQ(loaded.resultRakePercent(), 5);
  EXPECT_EQ(loaded.resultRakeCap(), 30);
  EXPECT_EQ(loaded.resultProjectState().value("oopRangeText"), riverSpot().value("oop_range"));
  EXPECT_EQ(loaded.nodeLocks(0), controller.nodeLocks(0));
  EXPECT_FALSE(loaded.nodeLocksPending(0));
  EXPECT_TRUE(loaded.nodeLocksPending(1));
  EXPECT_EQ(loaded.resultsReclaimableMemoryBytes(), 0U);
  EXPECT_FALSE(loaded.resultHasTables());
  // The trainer can deal although nobody had looked at anything.
  for (const char* seat : {"OOP", "IP"}) {
    EXPECT_FALSE(loaded.nodeSeatHandCombos(0, seat).isEmpty()) << seat;
  }
}

TEST_F(AppControllerTest, EndingDuringARunIsSafe) {
  for (const bool runsAlready : {true, false}) {
    auto controller = std::make_unique<AppController>();
    if (runsAlready) {
      startEndless(*controller);
    } else {
      controller->startSolveWithConfig(endlessSpot());
      controller->requestSolveMemoryEstimate(endlessSpot());
    }
    controller.reset();
    QCoreApplication::processEvents();
  }
}

TEST_F(AppControllerTest, LocksApplyToAReSolveOnly) {
  AppController controller;
  controller.reSolveWithNodeLocks();
  EXPECT_EQ(controller.statusText(), "No previous solve config (solve once first)");

  solve(controller, riverSpot());
  const double unlocked = rootFrequency(controller, 1);
  const double locked = unlocked > 0.5 ? 0.125 : 0.875;
  controller.setNodeLock(0, "AA", 1, locked);
  EXPECT_EQ(controller.nodeLocks(0).size(), 1);
  solve(controller, riverSpot());
  EXPECT_EQ(rootFrequency(controller, 1), unlocked);

  controller.reSolveWithNodeLocks();
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  EXPECT_NEAR(rootFrequency(controller, 1), locked, 1e-6);

  // The flag stays in the settings of the latest solve, and without a lock it changes nothing.
  controller.clearNodeLocks(0);
  controller.reSolveWithNodeLocks();
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  EXPECT_EQ(rootFrequency(controller, 1), unlocked);

  controller.setNodeLock(0, "AA", 1, locked);
  controller.clearResults();
  EXPECT_EQ(controller.nodeLocks(0), QVariantList());
  controller.reSolveWithNodeLocks();
  EXPECT_EQ(controller.statusText(), "No previous solve config (solve once first)");
}

TEST_F(AppControllerTest, LocksBelongToTheTreeTheyWereSetOn) {
  AppController controller;
  controller.setNodeLock(0, "AA", 0, 1);
  EXPECT_EQ(controller.lockCount(), 0) << "a lock without a tree";
  solve(controller, riverSpot());
  int terminal = 0;
  while (controller.nodeMeta(terminal).value("nodeType") != "terminal") ++terminal;
  for (const auto& [node, action] : {std::pair{0, -1}, {0, 2}, {terminal, 0}, {100000, 0}}) {
    controller.setNodeLock(node, "AA", action, 1);
    EXPECT_EQ(controller.lockCount(), 0) << node << ' ' << action;
  }
  controller.setNodeLock(0, "AA", 1, 1);
  EXPECT_TRUE(controller.locksFit(with(riverSpot(), "max_iterations", 7)));
  for (const auto& [key, value] : {std::pair<const char*, QVariant>{"board", "KsQd7h2c4s"},
                                   {"oop_river_bet_sizes", "75"},
                                   {"ip_range", "KK"},
                                   {"effective_stack", 90}}) {
    EXPECT_FALSE(controller.locksFit(with(riverSpot(), key, value))) << key;
  }
  // A category of hands plays the locks of its node before they are solved.
  const auto aces = [&] {
    for (const QVariant& bucket : controller.nodeHandBuckets(0)) {
      if (bucket.toMap().value("name") == "overpair") {
        return bucket.toMap().value("actionProbs").toList().at(1).toDouble();
      }
    }
    return -1.0;
  };
  EXPECT_EQ(aces(), 1);
  solve(controller, with(riverSpot(), "max_iterations", 7));
  EXPECT_EQ(controller.lockCount(), 1);
  EXPECT_TRUE(controller.locksPending());
  solve(controller, with(riverSpot(), "oop_river_bet_sizes", "75"));
  EXPECT_EQ(controller.lockCount(), 0);
  EXPECT_FALSE(controller.locksPending());
}

TEST_F(AppControllerTest, ASolveThatNeedsTheMemoryOfTheResultAsksFirst) {
  constexpr quint64 kMegabyte = 1ULL << 20;
  quint64 available = 5 * kMegabyte;
  AppController controller({[] { return 100 * kMegabyte; }, [&] { return available; },
                            [](const auto&) { return 4 * kMegabyte; }});
  const QSignalSpy wanted(&controller, &AppController::memoryWanted);
  controller.requestSolveMemoryEstimate(riverSpot());
  ASSERT_TRUE(waitUntil([&] { return !controller.estimatePending(); }));
  solve(controller, riverSpot());
  EXPECT_EQ(controller.resultsReclaimableMemoryBytes(), 4 * kMegabyte);
  EXPECT_EQ(controller.effectiveAvailableMemoryBytes(), 9 * kMegabyte);
  solve(controller, riverSpot());  // Both fit.
  EXPECT_EQ(wanted.count(), 0);

  // As much as required is not enough. Another spot is estimated first.
  available = 4 * kMegabyte;
  const QVariantMap other = with(riverSpot(), "starting_pot", 50);
  controller.nodeHandCombos(0);
  controller.startSolveWithConfig(other);
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  ASSERT_EQ(wanted.count(), 1);
  EXPECT_EQ(wanted.first().at(1), "4 MB");
  EXPECT_TRUE(controller.resultHasTables());
  EXPECT_EQ(controller.resultStartingPot(), 100);

  // In its memory: what was answered stays, also after a cancel.
  controller.startSolveInFreedMemory(with(endlessSpot(), "starting_pot", 50));
  EXPECT_TRUE(controller.running());
  EXPECT_FALSE(controller.resultHasTables());
  EXPECT_EQ(controller.resultsReclaimableMemoryBytes(), 0U);
  controller.cancelSolve();
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  EXPECT_EQ(controller.resultIterations(), 60);
  EXPECT_FALSE(controller.nodeHandCombos(0).isEmpty());

  controller.startSolveWithConfig(other);
  EXPECT_EQ(controller.statusText(), "Not enough RAM to solve: 4 MB needed, 4 MB available");
  EXPECT_FALSE(controller.running());
  EXPECT_EQ(controller.resultIterations(), 60);

  available = 0;  // Unknown.
  solve(controller, other);
  EXPECT_EQ(controller.resultStartingPot(), 50);
}

TEST_F(AppControllerTest, EstimatesTheSpotOnScreen) {
  AppController controller;
  controller.requestSolveMemoryEstimate(riverSpot());
  ASSERT_TRUE(waitUntil([&] { return controller.solveRequiredMemoryBytes() != 0; }));
  std::string error;
  const auto estimate = velmora_app::estimate_memory(makeSolveConfig(riverSpot()), error);
  ASSERT_TRUE(estimate) << error;
  EXPECT_EQ(controller.solveRequiredMemoryBytes(), estimate->peak_bytes);
  controller.requestSolveMemoryEstimate({});
  ASSERT_TRUE(waitUntil([&] { return controller.solveRequiredMemoryBytes() == 0; }));
  EXPECT_EQ(controller.solveRequiredMemoryText(), "—");
}

// The pool may be done with an answer before the window's thread takes it: that counts as outdated
// too.
TEST_F(AppControllerTest, DeliversOnlyTheNewestAnswersAndNoneOfADroppedResult) {
  AppController controller;
  solve(controller, riverSpot());
  const QSignalSpy ready(&controller, &AppController::nodeAnswersReady);
  const auto prepareWithoutTaking = [&](int node) {
    controller.prepareNodeAnswers(node);
    QThread::msleep(300);
  };
  prepareWithoutTaking(0);
  controller.prepareNodeAnswers(1);
  ASSERT_TRUE(waitUntil([&] { return !ready.isEmpty(); }));
  QTest::qWait(50);
  ASSERT_EQ(ready.count(), 1);
  EXPECT_EQ(ready.first().first(), 1);

  prepareWithoutTaking(0);
  controller.clearResults();
  QTest::qWait(50);
  EXPECT_EQ(ready.count(), 1);
}
