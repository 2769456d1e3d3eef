#include "results/node_answers.h"

#include <atomic>
#include <cmath>
#include <memory>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>
#include <QUrl>

#include <gtest/gtest.h>

#include "app_controller.h"
#include "app_test_support.h"
#include "discounted_cfr.h"
#include "results/reach_grid.h"
#include "spot_config.h"

namespace {

/// Every text in capitals.
class Shouting : public QTranslator {
 public:
  QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                    int /*n*/) const override {
    return qstrcmp(context, "HandBuckets") == 0 ? QString(text).toUpper() : QString();
  }
  bool isEmpty() const override { return false; }
};

/// All answers about one node.
QVariantList answersAt(AppController& controller, int node) {
  return {controller.nodeHandStrategy(node),
          controller.nodeHandStrategyReach169(node, ""),
          controller.nodeHandStrategyReach169(node, "top pair"),
          controller.nodeHandCombos(node),
          controller.nodeSeatHandCombos(node, "OOP"),
          controller.nodeSeatHandCombos(node, "IP"),
          controller.nodeHandBuckets(node),
          controller.nodeActionStats(node),
          controller.nodePocketActionEvs(node, "OOP", "Ad", "Ac")};
}

void solve(AppController& controller) {
  controller.startSolveWithConfig(riverSpot());
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
}

int childOf(AppController& controller, int node, int action) {
  return controller.nodeActions(node).at(action).toMap().value("childIndex").toInt();
}

class NodeAnswersTest : public ::testing::Test {
 protected:
  const LogCapture log_;
};

QVariantMap combo(const char* c1, const char* c2, double weight, const QVariantList& probabilities,
                  const QVariantList& buckets = {}) {
  return {{"c1", c1},
          {"c2", c2},
          {"weight", weight},
          {"buckets", buckets},
          {"actionProbs", probabilities},
          {"actionEvs", QVariantList{1.5, 2.5}}};
}

}  // namespace

TEST_F(NodeAnswersTest, AnswersInTheShapesOfThePages) {
  AppController controller;
  for (const QVariant& nothing : answersAt(controller, 0)) {
    EXPECT_TRUE(nothing.toMap().isEmpty() && nothing.toList().isEmpty());
  }
  solve(controller);
  const QVariantMap grid = controller.nodeHandStrategy(0);
  EXPECT_EQ(grid.keys(), (QStringList{"actionNames", "actionProbs", "actionTypeList",
                                      "dominantActionTypes", "weights"}));
  EXPECT_EQ(grid["actionTypeList"], (QVariantList{"check", "bet 50%"}));
  EXPECT_EQ(grid["weights"].toMap().size(), 169);
  EXPECT_EQ(grid["weights"].toMap()["AA"], 6.0);
  EXPECT_EQ(grid["actionProbs"].toMap()["22"], (QVariantList{0.0, 0.0}));
  EXPECT_EQ(grid["dominantActionTypes"].toMap()["22"], "");

  const QVariantList combos = controller.nodeHandCombos(0);
  ASSERT_EQ(combos.size(), 6);
  const QVariantMap first = combos[0].toMap();
  EXPECT_EQ(first.keys(),
            (QStringList{"actionEvs", "actionProbs", "buckets", "c1", "c2", "ev", "weight"}));
  EXPECT_EQ(first["buckets"], (QVariantList{"overpair"}));
  EXPECT_EQ(
      controller.nodePocketActionEvs(0, " oop ", first["c2"].toString(), first["c1"].toString()),
      first["actionEvs"]);
  EXPECT_EQ(controller.nodePocketActionEvs(0, "IP", "Kc", "Kd"), QVariantList());
  EXPECT_EQ(controller.nodePocketActionEvs(0, "OOP", "Zz", "Ac"), QVariantList());
  EXPECT_EQ(controller.nodeSeatHandCombos(0, "anybody"), controller.nodeSeatHandCombos(0, "OOP"));
  EXPECT_EQ(controller.nodeSeatHandCombos(0, " ip").size(), 3 + 6 + 3);

  const QVariantMap check = controller.nodeActionStats(0).at(0).toMap();
  EXPECT_EQ(check.keys(),
            (QStringList{"actionType", "combos", "equity", "ev", "frequency", "name"}));
  EXPECT_EQ(check["name"], "Check");
  const QVariantMap reach = controller.nodeHandStrategyReach169(0, "");
  EXPECT_EQ(reach["weights"], (QVariantMap{{"AA", 1.0}}));
  EXPECT_EQ(controller.nodeHandStrategyReach169(0, " Overpair "), reach);
  EXPECT_EQ(controller.nodeHandStrategyReach169(0, "air")["weights"], QVariantMap());

  for (const int outside : {-1, controller.treeNodeCount()}) {
    for (const QVariant& nothing : answersAt(controller, outside)) {
      EXPECT_TRUE(nothing.toMap().isEmpty() && nothing.toList().isEmpty());
    }
  }
  EXPECT_EQ(controller.showdownWinner("Ks Qd 7h 2c 3s", "KdKh", "AcAd")["winner"], "OOP");
  EXPECT_EQ(controller.showdownWinner("Ks Qd 7h 2c 3♠", "KdKh", "AcAd"),
            (QVariantMap{{"winner", "UNKNOWN"}, {"oopStrength", 0}, {"ipStrength", 0}}));
}

TEST_F(NodeAnswersTest, TheSameSpotGivesTheSameFiguresAgain) {
  AppController controller;
  // As a text, in which what is not a number equals itself.
  const auto textAt = [&](int node) {
    return QJsonDocument::fromVariant(answersAt(controller, node)).toJson();
  };
  solve(controller);
  const int afterBet = childOf(controller, 0, 1);
  const QByteArray root = textAt(0);
  const QByteArray facing = textAt(afterBet);
  EXPECT_EQ(textAt(0), root);
  solve(controller);
  EXPECT_EQ(textAt(afterBet), facing);
  EXPECT_EQ(textAt(0), root);
  controller.clearResults();
  EXPECT_EQ(controller.nodeHandCombos(0), QVariantList());
}

TEST_F(NodeAnswersTest, DisplayNamesFollowTheLanguageAndAreNotKept) {
  AppController controller;
  solve(controller);
  EXPECT_EQ(controller.nodeHandBuckets(0).at(0).toMap()["displayName"], "overpair");
  Shouting shouting;
  QCoreApplication::installTranslator(&shouting);
  const QVariantMap bucket = controller.nodeHandBuckets(0).at(0).toMap();
  QCoreApplication::removeTranslator(&shouting);
  EXPECT_EQ(bucket["displayName"], "OVERPAIR");
  EXPECT_EQ(bucket["name"], "overpair");
  EXPECT_EQ(bucket["combos"], 6.0);
}

/// As after a project was loaded: no game, no solver, only what the caches hold.
TEST_F(NodeAnswersTest, AnswersFromTheCachesWithoutASolver) {
  Project project;
  NodeAnswers answers(project);
  const QVariantList combos{combo("Ac", "Kc", 0.5, {0.25, 0.75}, {"top pair", "flush draw"}),
                            combo("Ad", "Kd", 0, {1.0, 0.0}, {"top pair"})};
  const QVariantMap grid{{"actionTypeList", QVariantList{"check", "bet 50%"}}};
  project.caches.handCombosCache[3] = combos;
  project.caches.handStrategyCache[4] = grid;
  project.caches.actionStatsCache[3] = {QVariantMap{{"name", "Check"}}};
  project.caches.handBucketsCache[3] = {QVariantMap{{"name", "air"}}};
  project.caches.seatHandCombosIpCache[3] = combos;

  EXPECT_EQ(answers.nodeHandCombos(3), combos);
  EXPECT_EQ(answers.nodeActionStats(3).size(), 1);
  EXPECT_EQ(answers.nodeHandBuckets(3).at(0).toMap()["displayName"], "air");
  EXPECT_FALSE(project.caches.handBucketsCache[3].at(0).toMap().contains("displayName"));
  EXPECT_EQ(answers.nodeSeatHandCombos(3, "IP"), combos);
  EXPECT_EQ(answers.nodeSeatHandCombos(3, "OOP"), QVariantList());
  EXPECT_EQ(answers.nodePocketActionEvs(3, "IP", " kc", "AC"), (QVariantList{1.5, 2.5}));
  EXPECT_EQ(answers.nodePocketActionEvs(3, "IP", "Kc", "Ad"), QVariantList());
  // The node's own strategy is not there, its combos are; and the other way round.
  EXPECT_EQ(answers.nodeHandStrategyReach169(3, "").keys(),
            (QStringList{"actionProbs", "weights"}));
  EXPECT_EQ(answers.nodeHandStrategyReach169(4, "air"), grid);
  EXPECT_EQ(answers.nodeHandStrategy(3), QVariantMap());
  EXPECT_FALSE(project.caches.handStrategyCache.contains(3));
  EXPECT_FALSE(project.caches.handCombosCache.contains(4));
  project.caches.clear();
  EXPECT_EQ(answers.nodeHandCombos(3), QVariantList());
}

TEST(ReachGrid, WeighsTheHandsOfALabelByTheirReach) {
  const QVariantList both{"top pair", " Flush Draw "};
  const QVariantList combos{
      combo("Ac", "Kc", 0.5, {0.25, 0.75}, both), combo("Kd", "ad", 0.25, {1.0, 0.0}, {"top pair"}),
      combo("As", "Ks", 0, {1.0, 0.0}, both),     combo("2c", "2d", 7, {0.5, 0.5}),
      combo("3c", "3d", NAN, {0.5, 0.5}),         combo("x", "3d", 1, {0.5, 0.5}),
      combo("4c", "5d", 1, {-1.0, 0.0}),          QVariant("nonsense").toMap()};
  const QVariantMap base{{"actionTypeList", QVariantList{"check", "bet"}}, {"weights", "old"}};
  const QVariantMap all = reachGrid(base, combos, "");
  EXPECT_EQ(all["weights"], (QVariantMap{{"22", 1.0}, {"54o", 1.0}, {"AKs", 0.375}}));
  EXPECT_EQ(all["actionProbs"], (QVariantMap{{"22", QVariantList{0.5, 0.5}},
                                             {"54o", QVariantList{0.0, 0.0}},
                                             {"AKs", QVariantList{0.5, 0.5}}}));
  EXPECT_EQ(all["actionTypeList"], base["actionTypeList"]);
  const QVariantMap draws = reachGrid(base, combos, "flush draw");
  EXPECT_EQ(draws["weights"], (QVariantMap{{"AKs", 0.5}}));
  EXPECT_EQ(draws["actionProbs"], (QVariantMap{{"AKs", QVariantList{0.25, 0.75}}}));
  EXPECT_EQ(reachGrid(base, combos, "air")["weights"], QVariantMap());
  EXPECT_EQ(reachGrid(base, {}, ""), base);
  EXPECT_EQ(reachGrid({}, combos, "")["weights"], all["weights"]);
}

TEST_F(NodeAnswersTest, OnlyTheNewestAnswersAreKeptWhileTheSolverCanAnswerAgain) {
  AppController controller;
  QVariantMap turn = riverSpot();
  turn["board"] = "KsQd7h2c";
  turn["starting_street"] = "turn";
  turn["max_iterations"] = 1;
  controller.startSolveWithConfig(turn);
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  QList<int> asked;
  for (int node = 0; node < controller.treeNodeCount() && asked.size() < 150; ++node) {
    if (!controller.nodeHandBuckets(node).isEmpty()) asked << node;
  }
  ASSERT_EQ(asked.size(), 150);
  const QTemporaryDir dir;
  ASSERT_TRUE(controller.saveProject(QUrl::fromLocalFile(dir.filePath("saved")), {}));
  const QJsonArray stored = QJsonDocument::fromJson(bytesOf(dir.filePath("saved")))
                                .object()
                                .value("nodeCaches")
                                .toObject()
                                .value("handBucketsByNode")
                                .toArray();
  QList<int> kept;
  for (const auto& entry : stored) kept << entry.toObject().value("nodeIndex").toInt();
  EXPECT_EQ(kept, QList<int>{0} + asked.last(100));
}

TEST_F(NodeAnswersTest, AnswersUnderWayKeepNoDroppedSolverAlive) {
  velmora_app::SolveSession session;
  std::atomic<bool> ended = false;
  QVariantMap turn = riverSpot();
  turn["board"] = "KsQd7h2c";
  session.start(makeSolveConfig(turn), [&](const velmora_app::SolveProgress& report) {
    if (report.result) ended = true;
  });
  ASSERT_TRUE(waitUntil([&] { return ended && session.solved_spot().solver; }));
  const std::weak_ptr<const velmora::DiscountedCfr> solver = session.solved_spot().solver;
  Project project;
  NodeAnswers answers(project);
  answers.setSpot(session.solved_spot());
  const QSignalSpy ready(&answers, &NodeAnswers::ready);
  answers.prepare(0);
  answers.setSpot({});
  session.clear();
  EXPECT_TRUE(waitUntil([&] { return solver.expired(); }));
  answers.prepare(1);
  EXPECT_TRUE(waitUntil([&] { return ready.count() == 1; }));
  EXPECT_EQ(ready.first().first(), 1);
}
