// The commands, their exit statuses and what they write where.

#include <csignal>
#include <vector>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include "cli_runner.h"

namespace {

/// What all results of one spot have in common; the seconds differ from run to run.
QJsonObject without_seconds(QJsonObject result) {
  result.remove("seconds");
  return result;
}

TEST(Solve, ResultOfTheRiverExample) {
  const CliRun run = run_cli({"solve", example("river.json")});
  ASSERT_EQ(run.status, 0) << run.error.toStdString();
  const QJsonObject result = run.json();
  EXPECT_TRUE(result["success"].toBool());
  EXPECT_EQ(result["error"], "");
  EXPECT_EQ(result["board"], "Kh9d4s7c2h");
  EXPECT_GT(result["iterations"].toInt(), 0);
  // Without rake what one seat wins the other loses.
  EXPECT_NEAR(result["ev_oop"].toDouble() + result["ev_ip"].toDouble(), 0, 1e-3);
  EXPECT_LE(result["exploitability"].toDouble(), 0.1);
  EXPECT_NEAR(result["exploitability_pct"].toDouble(), result["exploitability"].toDouble(), 1e-6);
  EXPECT_GT(result["decision_node_count"].toInt(), 0);
  EXPECT_GT(result["node_count"].toInt(), result["decision_node_count"].toInt());
  EXPECT_GT(result["oop_hands"].toInt(), 0);
  EXPECT_GT(result["ip_hands"].toInt(), 0);
  EXPECT_GT(result["state_bytes"].toInt(), 0);
  EXPECT_GT(result["seconds"].toObject()["solve"].toDouble(), 0);

  const QJsonArray actions = result["root_actions"].toArray();
  ASSERT_EQ(actions.size(), 4);
  EXPECT_EQ(actions[0].toObject()["type"], "check");
  EXPECT_EQ(actions[1].toObject()["name"], "Bet 33%");
  double sum = 0;
  for (const QJsonValue& action : actions) sum += action.toObject()["frequency"].toDouble();
  EXPECT_NEAR(sum, 1, 1e-5);

  // A measure each 50 iterations, each with a line of progress; the last is the result's.
  const QJsonArray history = result["history"].toArray();
  ASSERT_FALSE(history.isEmpty());
  for (qsizetype i = 0; i < history.size(); ++i) {
    EXPECT_EQ(history[i].toArray()[0].toInt(), 50 * (i + 1));
  }
  EXPECT_EQ(history.last().toArray()[0], result["iterations"]);
  EXPECT_EQ(history.last().toArray()[1], result["exploitability"]);
  EXPECT_EQ(run.error.count('\n'), history.size());
  EXPECT_FALSE(run.error.contains('\r'));
}

TEST(Solve, OptionsAndThreads) {
  const QStringList command{"solve", example("turn.json"), "--iterations", "70", "--quiet"};
  const CliRun one = run_cli(command + QStringList{"--threads", "1"});
  const CliRun two = run_cli(command + QStringList{"--threads", "2"});
  ASSERT_EQ(one.status, 0) << one.error.toStdString();
  EXPECT_EQ(one.error, "");
  EXPECT_EQ(without_seconds(one.json()), without_seconds(two.json()));
  EXPECT_EQ(one.json()["iterations"], 70);
  const QJsonArray history = one.json()["history"].toArray();
  ASSERT_EQ(history.size(), 2);
  EXPECT_EQ(history[1].toArray()[0], 70);
  // The rake is lost to both.
  EXPECT_LT(one.json()["ev_oop"].toDouble() + one.json()["ev_ip"].toDouble(), -1);
}

TEST(Solve, ProjectFileGivesTheSameSpot) {
  const Files files;
  const QJsonObject spot = example_spot("river.json");
  QJsonObject project{{"boardText", "Kh 9d 4s 7c 2h"},
                      {"startingStreet", "river"},
                      {"startingPot", spot["starting_pot"]},
                      {"effectiveStack", spot["effective_stack"]},
                      {"maxIterations", 100},
                      {"targetExploitability", 0.1},
                      {"oopRangeText", spot["oop_range"]},
                      {"ipRangeText", spot["ip_range"]}};
  for (const QString seat : {"oop", "ip"}) {
    project[seat + "RiverBetSizesText"] = spot[seat + "_river_bet_sizes"];
    project[seat + "RiverRaiseSizesText"] = spot[seat + "_river_raise_sizes"];
  }
  const QString path =
      files.write("spot.velmoraproj",
                  QJsonObject{{"format", "velmora_project"}, {"version", 1}, {"project", project}});
  const CliRun from_project = run_cli({"solve", path, "--quiet"});
  const CliRun from_map =
      run_cli({"solve", example("river.json"), "--iterations", "100", "--quiet"});
  ASSERT_EQ(from_project.status, 0) << from_project.error.toStdString();
  EXPECT_EQ(without_seconds(from_project.json()), without_seconds(from_map.json()));
}

TEST(Solve, BadInputIsOneClearLine) {
  const Files files;
  const auto changed = [](const QString& key, const QJsonValue& value) {
    QJsonObject spot = example_spot("river.json");
    spot[key] = value;
    return spot;
  };
  struct Case {
    QJsonObject spot;
    const char* text;
  };
  const std::vector<Case> cases{
      {{}, "Board must include at least a flop (6 chars, e.g. AhKsQd)"},
      {changed("board", "AhKsQdT"), "3, 4 or 5 cards"},
      {changed("starting_street", "turn"), "a board of 5 cards is a river"},
      {changed("oop_range", "AKx"), "Invalid suitedness suffix"},
      {changed("oop_range", ""), "Player range empty after filtering board cards"},
      {changed("ip_river_bet_sizes", "2x"), "IP river sizing (bet='2x'"},
      {changed("starting_pot", 0), "\"starting_pot\" must be a whole number from 1 to"},
      {changed("target_exploitability", "0.1"), "\"target_exploitability\" must be a number"},
      {{{"format", "velmora_project"},
        {"version", 1},
        {"project", QJsonObject{{"boardText", "AhKsQd"}, {"targetExploitability", "low"}}}},
       "\"targetExploitability\" must be a number of 0 or more"},
      {changed("rake_percent", -1), "\"rake_percent\" must be a number from 0 to 100"},
      {changed("oop_river_add_all_in", 1), "\"oop_river_add_all_in\" must be true or false"},
      {{{"format", "other"}}, "Unrecognized project format"},
      {{{"format", "velmora_project"}, {"version", 2}}, "Unsupported project version"}};
  for (const Case& c : cases) {
    const CliRun run = run_cli({"solve", files.write("spot.json", c.spot), "--quiet"});
    EXPECT_EQ(run.status, 1) << c.text;
    EXPECT_TRUE(run.error.contains(c.text)) << run.error.toStdString();
    EXPECT_EQ(run.error.count('\n'), 1) << run.error.toStdString();
    EXPECT_FALSE(run.json()["success"].toBool());
  }

  EXPECT_EQ(run_cli({"solve", files.path("none.json")}).status, 1);
  const CliRun broken = run_cli({"estimate", files.write("broken.json", "{\n\"board\": }")});
  EXPECT_EQ(broken.status, 1);
  EXPECT_TRUE(broken.error.contains("Invalid JSON in line 2")) << broken.error.toStdString();
  EXPECT_EQ(run_cli({"solve", files.write("list.json", "[1]")}).status, 1);
}

TEST(Solve, RefusesWhatTheMachineCannotHold) {
  const Files files;
  QJsonObject spot{{"board", "QsJh2h"},
                   {"oop_range", "100%"},
                   {"ip_range", "100%"},
                   {"starting_pot", 10},
                   {"effective_stack", 2000}};
  for (const QString seat : {"oop", "ip"}) {
    for (const QString street : {"_flop", "_turn", "_river"}) {
      spot[seat + street + "_bet_sizes"] = "25,50,75,100,150";
      spot[seat + street + "_raise_sizes"] = "25,50,100";
    }
  }
  const QString path = files.write("huge.json", spot);
  const CliRun estimate = run_cli({"estimate", path});
  ASSERT_EQ(estimate.status, 0) << estimate.error.toStdString();
  EXPECT_GT(estimate.json()["total_bytes"].toDouble(), 1e12);
  EXPECT_EQ(estimate.json()["complete"], true);
  const CliRun run = run_cli({"solve", path});
  EXPECT_EQ(run.status, 1);
  const QString text = run.json()["error"].toString();
  EXPECT_TRUE(text.startsWith("Not enough memory: this solve needs ")) << text.toStdString();
  EXPECT_EQ(run.error, "dunmarrow-cli: " + text.toUtf8() + "\n");
}

QJsonObject endless_turn() {
  QJsonObject spot = example_spot("turn.json");
  spot["target_exploitability"] = 0;
  return spot;
}

/// A run that was stopped gives all that it had.
void expect_stopped(const CliRun& run, int status, const Files& files) {
  EXPECT_EQ(run.status, status);
  EXPECT_TRUE(run.error.contains("Stopped before the target was reached"))
      << run.error.toStdString();
  const QJsonObject result = run.json();
  EXPECT_EQ(result["success"], false);
  EXPECT_EQ(result["stopped"], true);
  EXPECT_EQ(result["error"], "Stopped before the target was reached");
  EXPECT_GT(result["iterations"].toInt(), 0);
  EXPECT_GT(result["exploitability"].toDouble(), 0);
  EXPECT_LT(result["ev_oop"].toDouble() + result["ev_ip"].toDouble(), -1);  // Less the rake.
  EXPECT_FALSE(result["root_actions"].toArray().isEmpty());
  // The last measure is that of the end.
  const QJsonArray last = result["history"].toArray().last().toArray();
  EXPECT_EQ(last[0], result["iterations"]);
  EXPECT_EQ(last[1], result["exploitability"]);
  QFile solution(files.path("solution.jsonl"));
  ASSERT_TRUE(solution.open(QIODevice::ReadOnly));
  EXPECT_EQ(solution.readAll().count('\n'), result["decision_node_count"].toInt() + 1);
}

TEST(Solve, SignalsStopAndKeep) {
  for (const int signal : {SIGINT, SIGTERM}) {
    const Files files;
    QProcess process;
    start_cli(process, {"solve", files.write("spot.json", endless_turn()), "--iterations",
                        "1000000", "--export", files.path("solution.jsonl")});
    // The first line of progress says that the run is under way.
    process.setReadChannel(QProcess::StandardError);
    while (!process.canReadLine() && process.waitForReadyRead(60'000)) {
    }
    ASSERT_GT(process.processId(), 0);
    ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    expect_stopped(finish_cli(process), 130, files);
  }
}

TEST(Solve, TimeLimitStopsAndKeeps) {
  const Files files;
  expect_stopped(
      run_cli({"solve", files.write("spot.json", endless_turn()), "--iterations", "1000000",
               "--time-limit", "2", "--export", files.path("solution.jsonl")}),
      3, files);
}

TEST(Solve, OutputGoesToAFile) {
  const Files files;
  const QString path = files.write("result.json", "older");
  const QStringList command{"solve", example("river.json"), "--quiet", "--iterations", "50"};
  const CliRun run = run_cli(command + QStringList{"--output", path});
  EXPECT_EQ(run.status, 0) << run.error.toStdString();
  EXPECT_EQ(run.out, "");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(without_seconds(QJsonDocument::fromJson(file.readAll()).object()),
            without_seconds(run_cli(command).json()));
  // A path that can't be written ends the command before the solve, which would take long.
  const CliRun refused = run_cli({"solve", files.write("spot.json", endless_turn()), "--iterations",
                                  "1000000", "--output", files.path("none/result.json")});
  EXPECT_EQ(refused.status, 1);
  EXPECT_TRUE(refused.error.contains("none/result.json")) << refused.error.toStdString();
  EXPECT_EQ(files.names(), (QStringList{"result.json", "spot.json"}));
}

TEST(Solve, SaysWhenLocksHoldItUp) {
  const Files files;
  QJsonObject spot = example_spot("locked_river.json");
  spot["target_exploitability"] = 0;
  const CliRun run = run_cli(
      {"solve", files.write("spot.json", spot), "--iterations", "100000", "--quiet", "--locks",
       files.write("locks.json", R"([{"node": 0, "hand": "AA", "action": 0, "frequency": 1}])")});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.json()["success"], true);
  EXPECT_EQ(run.json()["stalled"], true);
  EXPECT_LT(run.json()["iterations"].toInt(), 5000);
  EXPECT_TRUE(run.error.contains("falls no further")) << run.error.toStdString();
}

TEST(CommandLine, WrongUseGivesHelp) {
  const std::vector<QStringList> uses{{},
                                      {"improve"},
                                      {"solve"},
                                      {"solve", "a.json", "b.json"},
                                      {"solve", "a.json", "--speed"},
                                      {"solve", "a.json", "--threads", "0"},
                                      {"solve", "a.json", "--iterations", "-1"},
                                      {"solve", "a.json", "--time-limit", "0"},
                                      {"estimate"},
                                      {"bench", "a.json"}};
  for (const QStringList& arguments : uses) {
    const CliRun run = run_cli(arguments);
    EXPECT_EQ(run.status, 2) << arguments.join(' ').toStdString();
    EXPECT_TRUE(run.error.contains("Usage:")) << run.error.toStdString();
    EXPECT_EQ(run.out, "");
  }
  for (const QStringList& arguments :
       std::vector<QStringList>{{"--help"}, {"--version"}, {"solve", "--help"}}) {
    const CliRun run = run_cli(arguments);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.error, "");
    EXPECT_FALSE(run.out.isEmpty());
  }
}

/// The bits of all results of the fixed spots: rivers with and without rake, with one size and
/// three, a turn in both storages, flops with and without folded suits, one of them raked. A change
/// that means to change results puts its own signature here; every other one keeps this.
TEST(Bench, SignatureStaysOnAllThreadsAndInstructions) {
  for (const QStringList& options : std::vector<QStringList>{
           {"--threads", "1"}, {"--threads", "2"}, {"--threads", "3", "--isa", "baseline"}}) {
    const CliRun run = run_cli(QStringList{"bench"} + options);
    ASSERT_EQ(run.status, 0) << run.error.toStdString();
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.out.trimmed().split('\n').last(), "signature e0257462a9e68ee6")
        << options.join(' ').toStdString();
  }
  const CliRun unknown = run_cli({"bench", "--isa", "abacus"});
  EXPECT_EQ(unknown.status, 1);
  EXPECT_TRUE(unknown.error.contains("baseline")) << unknown.error.toStdString();
}

}  // namespace
