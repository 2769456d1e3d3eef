// The exported solution, and what node locks do to it.

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include "cli_runner.h"

namespace {

struct Solution {
  QJsonObject spot;
  std::map<std::string, QJsonObject> nodes;  ///< By path.
};

Solution read_solution(const QString& path) {
  Solution solution;
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  while (!file.atEnd()) {
    QJsonParseError error;
    const QJsonDocument line = QJsonDocument::fromJson(file.readLine(), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    if (solution.spot.isEmpty()) {
      solution.spot = line.object();
    } else {
      const std::string key = line.object()["path"].toString().toStdString();
      EXPECT_TRUE(solution.nodes.emplace(key, line.object()).second) << key;
    }
  }
  return solution;
}

/// How often the hands of a class take an action, weighted by their weight in the range.
double frequency(const Solution& solution, const std::string& path, qsizetype action,
                 const std::vector<QString>& hands) {
  const QJsonObject& node = solution.nodes.at(path);
  const QJsonArray list =
      solution.spot[node["player"] == "OOP" ? "oop_hands" : "ip_hands"].toArray();
  const QJsonArray strategy = node["strategy"].toArray()[action].toArray();
  double taken = 0;
  double all = 0;
  for (qsizetype i = 0; i < list.size(); ++i) {
    const QString hand = list[i].toArray()[0].toString();
    const QString ranks = QString(hand[0]) + hand[2];
    if (std::find(hands.begin(), hands.end(), ranks) == hands.end()) continue;
    taken += list[i].toArray()[1].toDouble() * strategy[i].toDouble();
    all += list[i].toArray()[1].toDouble();
  }
  return taken / all;
}

TEST(Export, HoldsAStrategyForEveryDecisionNode) {
  const Files files;
  QJsonObject spot = example_spot("turn.json");
  spot["oop_range"] = "AA,KK,AsKs:0.5,T9s";
  spot["ip_range"] = "TT,99,AQ";
  const QString path = files.path("solution.jsonl");
  const CliRun run = run_cli(
      {"solve", files.write("spot.json", spot), "--iterations", "20", "--quiet", "--export", path});
  ASSERT_EQ(run.status, 0) << run.error.toStdString();
  const Solution solution = read_solution(path);
  EXPECT_EQ(solution.spot["board"], "QsJh2h8d");
  EXPECT_EQ(solution.spot["starting_pot"], 180);
  EXPECT_EQ(solution.spot["effective_stack"], 410);
  const QJsonArray oop_hands = solution.spot["oop_hands"].toArray();
  EXPECT_EQ(oop_hands.size(), run.json()["oop_hands"].toInt());
  EXPECT_EQ(solution.spot["ip_hands"].toArray().size(), run.json()["ip_hands"].toInt());
  EXPECT_TRUE(oop_hands.contains(QJsonArray{"AsKs", 0.5}));
  EXPECT_TRUE(oop_hands.contains(QJsonArray{"AsAc", 1}));
  EXPECT_EQ(static_cast<int>(solution.nodes.size()), run.json()["decision_node_count"].toInt());

  for (const auto& [key, node] : solution.nodes) {
    const QJsonArray strategy = node["strategy"].toArray();
    const bool oop = node["player"] == "OOP";
    ASSERT_EQ(strategy.size(), node["actions"].toArray().size());
    for (qsizetype hand = 0; hand < solution.spot[oop ? "oop_hands" : "ip_hands"].toArray().size();
         ++hand) {
      double sum = 0;
      for (const QJsonValue& row : strategy) sum += row.toArray()[hand].toDouble();
      ASSERT_NEAR(sum, 1, 1e-5) << key;
    }
  }
  const QJsonObject& root = solution.nodes.at("");
  EXPECT_EQ(root["node"], 0);
  EXPECT_EQ(root["street"], "turn");
  EXPECT_EQ(root["pot"], 180);
  EXPECT_EQ(root["actions"], (QJsonArray{"check", "bet 108"}));
  EXPECT_EQ(solution.nodes.at("bet 108")["player"], "IP");
  EXPECT_EQ(solution.nodes.at("check/check/Kd")["street"], "river");
  EXPECT_EQ(solution.nodes.at("check/check/Kd")["player"], "OOP");
  EXPECT_EQ(solution.nodes.at("bet 108/call/3c")["pot"], 396);
  EXPECT_EQ(solution.nodes.count("check/check/Qs"), 0U);
}

// OOP holds aces or nothing and bets the pot: it bluffs once for two bets for value, and IP calls
// half of the time. When it is made to check all that misses, IP has nothing to catch.
TEST(Export, LocksChangeTheSolution) {
  const Files files;
  const QString free_path = files.path("free.jsonl");
  const QString locked_path = files.path("locked.jsonl");
  const QStringList command{"solve", example("locked_river.json"), "--quiet", "--export"};
  ASSERT_EQ(run_cli(command + QStringList{free_path}).status, 0);
  const CliRun run =
      run_cli(command + QStringList{locked_path, "--locks", example("locked_river.locks.json")});
  ASSERT_EQ(run.status, 0) << run.error.toStdString();
  EXPECT_EQ(run.error, "");
  const Solution free = read_solution(free_path);
  const Solution locked = read_solution(locked_path);

  ASSERT_EQ(free.nodes.at("")["actions"], (QJsonArray{"check", "allin 100"}));
  ASSERT_EQ(free.nodes.at("allin 100")["actions"], (QJsonArray{"fold", "call"}));
  const std::vector<QString> value{"AA"};
  const std::vector<QString> bluffs{"QJ", "JT", "T9"};
  const std::vector<QString> catchers{"KQ", "KJ", "KT", "QQ", "JJ"};
  EXPECT_GT(frequency(free, "", 1, value), 0.99);
  EXPECT_NEAR(frequency(free, "", 1, bluffs) * 12, 1.5, 0.2);
  EXPECT_NEAR(frequency(free, "allin 100", 1, catchers), 0.5, 0.1);
  EXPECT_EQ(frequency(locked, "", 0, bluffs), 1);
  EXPECT_LT(frequency(locked, "allin 100", 1, catchers), 0.01);
}

TEST(Export, BadLocksAndPaths) {
  const Files files;
  const std::vector<std::pair<const char*, const char*>> cases{
      {"{}", "must be a JSON list"},
      {"[1]", "Lock 1: must be an object"},
      {R"([{"node": -1, "hand": "AA", "action": 0, "frequency": 1}])", "\"node\" must be"},
      {R"([{"node": 0, "hand": "AA", "action": 0, "frequency": 1},
           {"node": 0, "hand": "AK", "action": 0, "frequency": 1}])",
       "Lock 2: \"hand\" must be a class"},
      {R"([{"node": 0, "hand": "AA", "frequency": 1}])", "\"action\" must be"},
      {R"([{"node": 0, "hand": "AA", "action": 0, "frequency": 2}])",
       "\"frequency\" must be a number from 0 to 1"}};
  for (const auto& [locks, text] : cases) {
    const CliRun run = run_cli({"solve", example("locked_river.json"), "--quiet", "--locks",
                                files.write("locks.json", locks)});
    EXPECT_EQ(run.status, 1) << locks;
    EXPECT_TRUE(run.error.contains(text)) << run.error.toStdString();
  }

  // A lock that meets nothing is no fault, but the user is warned.
  const CliRun idle = run_cli(
      {"solve", example("locked_river.json"), "--quiet", "--locks",
       files.write("locks.json", R"([{"node": 0, "hand": "72o", "action": 0, "frequency": 1}])")});
  EXPECT_EQ(idle.status, 0);
  EXPECT_TRUE(idle.error.contains("Lock 1 has no effect")) << idle.error.toStdString();

  const CliRun nowhere = run_cli({"solve", example("locked_river.json"), "--quiet", "--export",
                                  files.path("missing/solution.jsonl")});
  EXPECT_EQ(nowhere.status, 1);
  EXPECT_EQ(nowhere.out, "");
}

}  // namespace
