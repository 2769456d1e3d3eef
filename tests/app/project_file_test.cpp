// Project files, through the controller and its reader.
#include <chrono>
#include <cmath>
#include <random>
#include <thread>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "app_controller.h"
#include "app_test_support.h"

namespace {

const QVariantMap kState{{"board", "KsQd7h"},
                         {"note", "König \"x\""},
                         {"sizes", QVariantMap()},
                         {"pot", 100},
                         {"seats", QVariantList{true, 0.1F, QVariant()}}};

QVariantMap turnSpot() {
  QVariantMap map = riverSpot();
  map["board"] = "KsQd7h2c";
  map["starting_street"] = "turn";
  map["oop_range"] = "AA,QJs,T9s";
  map["max_iterations"] = 20;
  return map;
}

QByteArray jsonOf(const QVariant& value) {
  return QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson();
}

/// All that a page can ask, as text.
QByteArrayList answersOf(AppController& controller) {
  QByteArrayList answers;
  const auto add = [&](const QVariant& answer) { answers << jsonOf(answer); };
  add(controller.resultsSummary());
  add(QVariantList{controller.resultStartingPot(), controller.resultIterations(),
                   controller.resultExploitability(), controller.resultEvOop(),
                   controller.resultEvIp()});
  add(controller.rootActions());
  for (int node = -1; node <= controller.treeNodeCount(); ++node) {
    add(controller.nodeMeta(node));
    add(controller.nodeActions(node));
    add(controller.nodeLocks(node));
  }
  return answers;
}

/// What a page shows of one node, as text.
QByteArrayList viewsOf(AppController& controller, int node) {
  QByteArrayList views;
  views << jsonOf(controller.nodeHandStrategy(node)) << jsonOf(controller.nodeActionStats(node))
        << jsonOf(controller.nodeHandCombos(node)) << jsonOf(controller.nodeHandBuckets(node))
        << jsonOf(controller.nodeSeatHandCombos(node, "OOP"))
        << jsonOf(controller.nodeSeatHandCombos(node, "IP"))
        << jsonOf(controller.nodeHandStrategyReach169(node, "air"))
        << jsonOf(controller.nodeHandStrategyReach169(node, ""));
  for (const QVariant& combo : controller.nodeHandCombos(node)) {
    const QVariantMap hand = combo.toMap();
    views << jsonOf(
        controller.nodePocketActionEvs(node, controller.nodeMeta(node).value("player").toString(),
                                       hand["c1"].toString(), hand["c2"].toString()));
  }
  return views;
}

class ProjectFile : public ::testing::Test {
 protected:
  void solve(AppController& controller, const QVariantMap& map) {
    controller.startSolveWithConfig(map);
    ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
    ASSERT_GT(controller.treeNodeCount(), 0) << controller.statusText().toStdString();
  }
  QString path(const char* name) const { return dir_.filePath(name); }
  QUrl url(const char* name) const { return QUrl::fromLocalFile(path(name)); }
  QUrl written(const QByteArray& text) const {
    QFile file(path("written"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    EXPECT_EQ(file.write(text), text.size());
    return url("written");
  }

  QTemporaryDir dir_;
  LogCapture log_;
};

}  // namespace

TEST_F(ProjectFile, ASolvedSpotComesBackInEveryAnswer) {
  AppController before;
  solve(before, turnSpot());
  const int call = before.nodeActions(0).last().toMap()["childIndex"].toInt();
  QList<int> visited{0, call};
  for (int node = 0; node < before.treeNodeCount() && visited.size() < 4; ++node) {
    if (before.nodeMeta(node)["nodeType"] == "chance") {
      visited << node << before.nodeActions(node)[3].toMap()["childIndex"].toInt();
    }
  }
  QList<QByteArrayList> views;
  for (const int node : visited) views << viewsOf(before, node);
  before.setNodeLock(0, "AA", 1, 0.25);
  before.setNodeLock(call, "JJ", 0, 1);
  before.setNodeLock(before.treeNodeCount(), "KK", 0, 1);  // Of no node: it is not saved.
  ASSERT_TRUE(before.saveProject(url("a.velmoraproj"), kState));
  before.clearNodeLocks(before.treeNodeCount());

  AppController after;
  const QSignalSpy results(&after, &AppController::resultsChanged);
  const QVariantMap answer = after.loadProject(url("a.velmoraproj"));
  EXPECT_EQ(answer["ok"], true);
  EXPECT_EQ(answer["error"], "");
  EXPECT_EQ(answer["hasResults"], true);
  EXPECT_EQ(jsonOf(answer["project"]), jsonOf(kState));
  EXPECT_EQ(after.statusText(), "Loaded project (3 strategy nodes, 3 combo nodes)");
  EXPECT_EQ(results.count(), 1);
  EXPECT_EQ(answersOf(after), answersOf(before));
  for (qsizetype i = 0; i < visited.size(); ++i) EXPECT_EQ(viewsOf(after, visited[i]), views[i]);
  EXPECT_EQ(after.nodeHandStrategy(0), before.nodeHandStrategy(0));
  EXPECT_EQ(after.nodeHandStrategy(call + 1), QVariantMap());  // Never asked for.

  // A second generation is the same file, and the first is what Qt would have written.
  ASSERT_TRUE(after.saveProject(url("b.json"), answer["project"].toMap()));
  const QByteArray bytes = bytesOf(path("a.velmoraproj"));
  EXPECT_EQ(bytesOf(path("b.json")), bytes);
  EXPECT_EQ(QJsonDocument::fromJson(bytes).toJson(), bytes);

  // The settings came along, and the locks take effect.
  after.reSolveWithNodeLocks();
  ASSERT_TRUE(waitUntil([&] { return !after.running(); }));
  const QVariantList aces = after.nodeHandStrategy(0)["actionProbs"].toMap()["AA"].toList();
  ASSERT_EQ(aces.size(), 2);
  EXPECT_NEAR(aces[1].toDouble(), 0.25, 1e-6);
}

TEST_F(ProjectFile, ABlankProjectHasNoResults) {
  AppController controller;
  controller.setNodeLock(0, "AA", 0, 1);
  ASSERT_TRUE(controller.saveProject(url("a"), {}));
  const QJsonObject file = QJsonDocument::fromJson(bytesOf(path("a"))).object();
  EXPECT_EQ(file.keys(),
            (QStringList{"format", "hasResults", "lastUiCfg", "nodeLocks", "project", "version"}));
  EXPECT_EQ(file["nodeLocks"], QJsonArray());
  solve(controller, riverSpot());
  EXPECT_EQ(controller.loadProject(url("a"))["hasResults"], false);
  EXPECT_EQ(controller.treeNodeCount(), 0);
  EXPECT_EQ(controller.resultIterations(), 0);
  EXPECT_EQ(controller.progress(), 0);
  EXPECT_EQ(controller.nodeHandStrategy(0), QVariantMap());
}

TEST_F(ProjectFile, ReadsWhatIsThere) {
  AppController controller;
  const QVariantMap answer = controller.loadProject(written(R"({
    "version": 1, "junk": [{"a": [1, "x"]}], "nodeCaches": {
      "handStrategyByNode": [{"nodeIndex": 4, "data": {"a": 1}}, {"nodeIndex": 4, "data": {"a": 2}},
                             {"data": {"a": 3}}, {"nodeIndex": -1, "data": {}}, 7, null],
      "actionStatsByNode": [{"nodeIndex": 4, "data": [{"equity": null, "ev": null}]}],
      "handCombosByNode": {"nodeIndex": 4},
      "handBucketsByNode": [{"nodeIndex": 4, "data": "text"}],
      "seatHandCombosByNode": [{"nodeIndex": 4, "seat": " ip ", "data": [1]},
                               {"nodeIndex": 4, "seat": "BB", "data": [2]},
                               {"nodeIndex": 5, "seat": "oop", "data": [3]}]},
    "nodeLocks": [{"nodeIndex": 2, "hand": "AA", "actionIndex": 1},
                  {"nodeIndex": 2, "hand": "KK", "actionIndex": 0, "actionProb": 7},
                  {"nodeIndex": 2, "hand": "", "actionIndex": 0}, {"nodeIndex": 2, "hand": "QQ"},
                  {"hand": "JJ", "actionIndex": 0}, "x"],
    "results": {"resultsSummary": "not taken", "treeNodeActions": [[], []]},
    "lastUiCfg": 7, "hasResults": "yes", "project": {"a": 1}, "format": "velmora_project"})"));
  EXPECT_EQ(answer["ok"], true);
  EXPECT_EQ(answer["hasResults"], false);
  EXPECT_EQ(answer["project"], (QVariantMap{{"a", 1}}));
  EXPECT_EQ(controller.resultsSummary(), "");
  EXPECT_EQ(controller.treeNodeCount(), 0);
  EXPECT_EQ(controller.nodeHandStrategy(4), (QVariantMap{{"a", 2}}));
  const QVariantMap stats = controller.nodeActionStats(4).at(0).toMap();
  EXPECT_TRUE(std::isnan(stats["equity"].toDouble()));  // As before it was saved.
  EXPECT_TRUE(stats["ev"].isNull());
  EXPECT_EQ(controller.nodeHandCombos(4), QVariantList());
  EXPECT_EQ(controller.nodeSeatHandCombos(4, "IP"), QVariantList{1});
  EXPECT_EQ(controller.nodeSeatHandCombos(4, "OOP"), QVariantList());
  EXPECT_EQ(controller.nodeSeatHandCombos(5, "OOP"), QVariantList{3});
  EXPECT_EQ(controller.lockCount(), 0) << "locks without a tree";
  controller.reSolveWithNodeLocks();
  EXPECT_EQ(controller.statusText(), "No previous solve config (solve once first)");

  controller.loadProject(written(R"({"format": "velmora_project", "version": 1, "hasResults": true,
    "results": {"resultIterations": 1e300, "resultEvOop": "x", "resultStartingPot": 7,
      "treeNodeMeta": [{"pot": 1e20, "nodeType": 5, "effectiveStack": 70, "player": "IP"}, 3],
      "treeNodeActions": [[{"name": "Ü\n", "frequency": null, "childIndex": -1}, 4], {}, []]}})"));
  EXPECT_EQ(controller.resultIterations(), 0);
  EXPECT_EQ(controller.resultStartingPot(), 7);
  ASSERT_EQ(controller.treeNodeCount(), 3);
  EXPECT_EQ(controller.nodeMeta(0)["pot"], 0);
  EXPECT_EQ(controller.nodeMeta(0)["player"], "IP");
  EXPECT_EQ(controller.nodeMeta(2)["effectiveStack"], 70);
  ASSERT_EQ(controller.nodeActions(0).size(), 2);
  EXPECT_EQ(controller.nodeActions(0)[0].toMap()["name"], "Ü\n");
  EXPECT_EQ(controller.nodeActions(0)[0].toMap()["childIndex"], -1);
  EXPECT_EQ(controller.nodeLocks(2), QVariantList());
  EXPECT_EQ(controller.nodeHandStrategy(4), QVariantMap());
}

TEST_F(ProjectFile, ARefusedFileLeavesEverythingAsItWas) {
  AppController controller;
  solve(controller, riverSpot());
  controller.setNodeLock(0, "AA", 0, 1);
  const QByteArrayList answers = answersOf(controller);
  const QByteArrayList views = viewsOf(controller, 0);
  const QSignalSpy results(&controller, &AppController::resultsChanged);
  const auto refusalOf = [&](const QByteArray& text) {
    return controller.loadProject(written(text))["error"].toString();
  };
  const auto expectRefusal = [&](const QUrl& file, const QString& error) {
    EXPECT_EQ(
        controller.loadProject(file),
        (QVariantMap{
            {"ok", false}, {"error", error}, {"project", QVariantMap()}, {"hasResults", false}}));
  };
  expectRefusal(QUrl(), "Invalid/non-local file URL");
  expectRefusal(QUrl("http://example.org/a"), "Invalid/non-local file URL");
  expectRefusal(QUrl("file:"), "Empty file path");
  expectRefusal(url("none"), "Failed to open file");
  expectRefusal(QUrl::fromLocalFile(dir_.path()), "Failed to open file");
  const QString json = "Invalid JSON";
  const QString format = "Unrecognized project format";
  const QString version = "Unsupported project version";
  const QByteArray megabytes(32 << 20, '[');
  const std::pair<QByteArray, QString> files[] = {
      {"", json},
      {"velmora", json},
      {"{\"format\": \"velmora_project\", \"version\": 1, \"project\": {\"boardText\": "
       "\"AhAhAh\"}}",
       "The board of the project is impossible: Ah is there twice"},
      {"{\"format\": \"velmora_project\", \"version\": 1, \"project\": {\"boardText\": "
       "\"Ah__7x\"}}",
       "The board of the project is impossible: Ah__7x: Invalid suit character"},
      {megabytes, json},
      {QByteArray(megabytes).fill(' '), json},
      {QByteArray(megabytes).fill('\0'), json},
      {"{\"x\": " + QByteArray(megabytes).fill('7') + '}', format},
      {"[1]", format},
      {"{}", format},
      {"{\"version\": 1}", format},
      {"{\"format\": 1, \"version\": 1}", format},
      {"{\"format\": \"velmora_project\"}", version},
      {"{\"format\": \"velmora_project\", \"version\": 2}", version},
      {"{\"format\": \"velmora_project\", \"version\": \"1\"}", version},
  };
  for (const auto& [text, error] : files) expectRefusal(written(text), error);
  // A fault inside is named: by its byte, which is the one marked here, and by its entry.
  const std::pair<QByteArray, QString> damaged[] = {
      {"{\"project\": {\"a\": ~1}}", "project"},
      {"{\"nodeCaches\": {\"handCombosByNode\": [{}, {}, {\"nodeIndex\": 7, ~}]}}",
       "nodeCaches.handCombosByNode[2]"},
      {"{\"results\": {\"treeNodeActions\": [[], [~]]}}", "results.treeNodeActions[1]"},
  };
  for (const auto& [text, where] : damaged) {
    EXPECT_EQ(refusalOf(text).toStdString(), QStringLiteral("Invalid JSON at byte %1, in %2")
                                                 .arg(text.indexOf('~'))
                                                 .arg(where)
                                                 .toStdString());
  }
  for (const QByteArray& text :
       {QByteArray("{\"project\": {\"a\": 1e999}}"), "{\"x\": \"" + megabytes,
        "{\"project\": {\"x\": \"" + megabytes + megabytes + megabytes + "\"}}"}) {
    EXPECT_TRUE(refusalOf(text).startsWith(json + " at byte ")) << text.size();
  }

  // Cut off. (The stream of JSON is cut everywhere in its own test.)
  ASSERT_TRUE(controller.saveProject(url("a"), kState));
  const QByteArray whole = bytesOf(path("a")).trimmed();
  EXPECT_TRUE(refusalOf(whole.left(whole.size() / 2)).startsWith(json));
  EXPECT_TRUE(refusalOf(whole.chopped(1)).startsWith(json));
  EXPECT_EQ(answersOf(controller), answers);
  EXPECT_EQ(viewsOf(controller, 0), views);
  EXPECT_EQ(controller.statusText(), "Done");
  EXPECT_EQ(results.count(), 0);
  EXPECT_EQ(controller.loadProject(written(whole))["ok"], true);
}

TEST_F(ProjectFile, AFailedSaveTellsWhyAndLeavesTheOldFile) {
  AppController controller;
  solve(controller, riverSpot());
  written("old");
  QSignalSpy saved(&controller, &AppController::projectSaved);
  const auto save = [&](const QUrl& file) {
    EXPECT_FALSE(controller.saveProject(file, kState));
    controller.saveProjectInBackground(file, kState);
    EXPECT_TRUE(waitUntil([&] { return !saved.isEmpty(); }));
    const QVariantList arguments = saved.takeFirst();
    EXPECT_FALSE(arguments[0].toBool());
    EXPECT_TRUE(controller.resultUnsaved());
    return arguments[1].toString();
  };
  EXPECT_EQ(save(QUrl("http://example.org/a")), "Invalid/non-local file URL");
  const QString reason = save(url("no/such/folder"));
  EXPECT_TRUE(reason.startsWith("Failed to open file: ")) << reason.toStdString();
  for (const rlim_t bytes : {0, 5000}) {
    const FullDisk disk(bytes);
    const QString why = save(url("written"));
    EXPECT_TRUE(why.startsWith("Failed to save file: "));
    EXPECT_GT(why.size(), 21);
  }
  EXPECT_EQ(bytesOf(path("written")), "old");
  EXPECT_EQ(QDir(dir_.path()).entryList(QDir::Files), QStringList("written"));
}

TEST_F(ProjectFile, ASaveThatIsKilledLeavesTheOldFileOrTheNew) {
  AppController controller;
  solve(controller, turnSpot());
  ASSERT_TRUE(controller.saveProject(url("first"), kState));
  ASSERT_TRUE(controller.saveProject(url("second"), {{"board", "another"}}));
  const QByteArray first = bytesOf(path("first"));
  const QByteArray second = bytesOf(path("second"));
  ASSERT_NE(first, second);
  ASSERT_TRUE(controller.saveProject(url("target"), kState));
  std::mt19937 random(1);
  int firsts = 0;
  constexpr int kKills = 100;
  for (int kill = 0; kill < kKills; ++kill) {
    QProcess helper;
    helper.start(SAVE_HELPER_PROGRAM, {path("first"), path("second"), path("target")});
    ASSERT_TRUE(helper.waitForReadyRead()) << helper.errorString().toStdString();
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 100'000));
    helper.kill();
    ASSERT_TRUE(helper.waitForFinished());
    ASSERT_EQ(helper.exitStatus(), QProcess::CrashExit);  // It was still saving.
    const QByteArray bytes = bytesOf(path("target"));
    ASSERT_TRUE(bytes == first || bytes == second) << "kill " << kill << ": " << bytes.size();
    firsts += bytes == first ? 1 : 0;
  }
  EXPECT_TRUE(firsts > 0 && firsts < kKills) << firsts;  // Files were replaced.
  EXPECT_EQ(controller.loadProject(url("target"))["ok"], true);
}

TEST_F(ProjectFile, TheWindowNeedNotWait) {
  AppController controller;
  solve(controller, turnSpot());
  ASSERT_TRUE(controller.saveProject(url("direct"), kState));
  QSignalSpy saved(&controller, &AppController::projectSaved);
  QSignalSpy loaded(&controller, &AppController::projectLoaded);
  QList<double> steps;
  QObject::connect(&controller, &AppController::fileProgressChanged, &controller,
                   [&] { steps << controller.fileProgress(); });
  EXPECT_EQ(controller.fileProgress(), -1);

  controller.saveProjectInBackground(url("a"), kState);
  EXPECT_EQ(controller.fileProgress(), 0);
  const QString busy = "Another file is still being saved or opened";
  controller.saveProjectInBackground(url("b"), kState);
  EXPECT_EQ(saved.takeFirst(), (QVariantList{false, busy}));
  controller.loadProjectInBackground(url("direct"));
  EXPECT_EQ(loaded.takeFirst()[0].toMap()["error"], busy);
  controller.clearResults();  // The file gets what was there when it was asked for.
  ASSERT_TRUE(waitUntil([&] { return !saved.isEmpty(); }));
  EXPECT_EQ(saved.takeFirst(), (QVariantList{true, QString()}));
  EXPECT_EQ(bytesOf(path("a")), bytesOf(path("direct")));
  EXPECT_FALSE(QFile::exists(path("b")));

  controller.loadProjectInBackground(url("a"));
  EXPECT_EQ(controller.treeNodeCount(), 0);
  ASSERT_TRUE(waitUntil([&] { return !loaded.isEmpty(); }));
  const QVariantMap answer = loaded.takeFirst()[0].toMap();
  EXPECT_EQ(answer["ok"], true);
  EXPECT_EQ(jsonOf(answer["project"]), jsonOf(kState));
  EXPECT_EQ(controller.resultIterations(), 20);
  EXPECT_GT(controller.nodeHandCombos(0).size(), 0);
  EXPECT_GE(steps.size(), 6);
  EXPECT_EQ(steps.first(), 0);
  EXPECT_EQ(steps.last(), -1);
  EXPECT_EQ(controller.fileProgress(), -1);
  controller.loadProjectInBackground(url("none"));
  ASSERT_TRUE(waitUntil([&] { return !loaded.isEmpty(); }));
  EXPECT_EQ(loaded.takeFirst()[0].toMap()["error"], "Failed to open file");

  // A program that ends finishes its file.
  {
    AppController other;
    other.loadProject(url("a"));
    other.saveProjectInBackground(url("late"), kState);
  }
  EXPECT_EQ(bytesOf(path("late")), bytesOf(path("a")));
}
