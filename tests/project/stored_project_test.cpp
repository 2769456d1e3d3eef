// A project file as version 1 of the format has it, kept for good: a turn with two solved nodes'
// answers, written by this program. What reader and writer change alike shows here.
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "project_reader.h"
#include "project_writer.h"

namespace {

const QString kStored = TEST_DATA_FOLDER "/turn_v1.velmoraproj";

QJsonObject documentIn(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return QJsonDocument::fromJson(file.readAll()).object();
}

TEST(StoredProject, EveryFigureIsReadIntoItsPlace) {
  const auto [error, project] = readProject(kStored);
  ASSERT_EQ(error, "");
  EXPECT_EQ(project.state["boardText"], "Kh Qh 7h 2h");
  EXPECT_TRUE(project.hasResults);
  EXPECT_EQ(project.outcome.startingPot, 100);
  EXPECT_EQ(project.outcome.iterations, 20);
  EXPECT_EQ(project.outcome.exploitability, 3.223250389099121);
  EXPECT_EQ(project.outcome.evOop, -2.5102243423461914);
  EXPECT_EQ(project.outcome.evIp, -0.33535176515579224);
  EXPECT_TRUE(project.outcome.summary.startsWith("Board KhQh7h2h | iters 20 |"));
  EXPECT_EQ(project.outcome.rootActions.value(1).toMap()["name"], "All-In");
  EXPECT_EQ(project.resultCfg["rake_cap"], 3);
  EXPECT_EQ(project.lastUiCfg["ip_range"], "KK,99:0.25");
  EXPECT_EQ(project.nodeLocks.locksAt(1).value(0).toMap(),
            (QVariantMap{{"hand", "KK"}, {"actionIndex", 0}, {"actionProb", 0.25}}));
  EXPECT_EQ(project.solvedLocks.nodes(), QList<int>{0});

  ASSERT_EQ(project.tree.nodeCount(), 251);
  EXPECT_EQ(project.tree.effectiveStack(), 60);
  const QVariantMap deal = project.tree.meta(2);
  EXPECT_EQ(deal["nodeType"], "chance");
  EXPECT_EQ(deal["chanceDeal"], "river");
  const QVariantMap facing = project.tree.meta(105);  // OOP has checked a river, IP is all-in.
  EXPECT_EQ(facing["player"], "OOP");
  EXPECT_EQ(facing["pot"], 160);
  EXPECT_EQ(facing["investedOop"], 0);
  EXPECT_EQ(facing["investedIp"], 60);
  const QVariantMap call = project.tree.actions(105).value(1).toMap();
  EXPECT_EQ(call["actionType"], "call");
  EXPECT_EQ(call["childIndex"], 107);
  EXPECT_NEAR(call["frequency"].toDouble(), 0.7807876467704773, 1e-7);

  const ResultCaches& caches = project.caches;
  EXPECT_EQ(caches.handStrategyCache.keys(), (QList<int>{0, 1}));
  EXPECT_EQ(caches.actionStatsCache[0].value(1).toMap()["ev"], 43.75288804372152);
  EXPECT_EQ(caches.handCombosCache[0].value(0).toMap()["ev"], 110.32696533203125);
  EXPECT_EQ(caches.handBucketsCache[0].value(0).toMap()["name"], "flush");
  EXPECT_EQ(caches.seatHandCombosOopCache[0].size(), 10);
  EXPECT_EQ(caches.seatHandCombosIpCache[0].value(0).toMap()["c1"], "9c");
}

TEST(StoredProject, IsWrittenAsItWasRead) {
  const QTemporaryDir dir;
  const QString path = dir.filePath("again.velmoraproj");
  ASSERT_EQ(writeProject(readProject(kStored).project, path), "");
  const QJsonObject stored = documentIn(kStored);
  const QJsonObject again = documentIn(path);
  ASSERT_EQ(stored.size(), 8);
  EXPECT_EQ(again.keys(), stored.keys());
  for (const QString& key : stored.keys()) {
    EXPECT_EQ(again[key].toObject().keys(), stored[key].toObject().keys());
    EXPECT_TRUE(again[key] == stored[key]) << key.toStdString();
  }
}

}  // namespace
