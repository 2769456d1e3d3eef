// The estimated peak of a solve against what the process takes.
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include "cli_runner.h"

namespace {

/// Peak resident bytes of a run of the tool, or -1 if it fails.
double peak_of(const QStringList& arguments) {
  std::vector<std::string> words{CLI_PROGRAM};
  for (const QString& argument : arguments) words.push_back(argument.toStdString());
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t process = 0;
  const int refused =
      posix_spawn(&process, CLI_PROGRAM, &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = -1;
  rusage usage{};
  if (refused != 0 || wait4(process, &status, 0, &usage) != process || status != 0) return -1;
  return static_cast<double>(usage.ru_maxrss) * 1024;
}

QJsonObject spot_of(const QString& board, const QString& ranges, int stack, const QString& bets,
                    const QString& raises) {
  QJsonObject spot{{"board", board},
                   {"oop_range", ranges},
                   {"ip_range", ranges},
                   {"effective_stack", stack},
                   {"max_iterations", 1}};
  for (const QString seat : {"oop", "ip"}) {
    for (const QString street : {"_flop", "_turn", "_river"}) {
      spot[seat + street + "_bet_sizes"] = bets;
      spot[seat + street + "_raise_sizes"] = raises;
    }
  }
  return spot;
}

/// A lock at each of the first decision nodes of a spot, which its export lists.
QJsonArray first_locks(const Files& files, const QString& spot, int count) {
  QJsonArray locks;
  const QString path = files.path("solution.jsonl");
  if (count > 0) run_cli({"solve", spot, "--iterations", "0", "--quiet", "--export", path});
  QFile solution(path);
  if (!solution.open(QIODevice::ReadOnly)) return locks;
  solution.readLine();  // The spot.
  while (locks.size() < count && !solution.atEnd()) {
    const QJsonValue node = QJsonDocument::fromJson(solution.readLine())["node"];
    locks.append(QJsonObject{{"node", node}, {"hand", "AA"}, {"action", 0}, {"frequency", 1}});
  }
  return locks;
}

TEST(PeakMemory, EstimateIsWithinATenth) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "The sanitizer's own memory is no part of the estimate";
#endif
  QJsonObject raked = spot_of("Kh9d4s7c2h", "100%", 2000, "20,33,50,75,100,150", "2x,3x,4x");
  raked["rake_percent"] = 5;
  raked["rake_cap"] = 30;
  const struct {
    QJsonObject spot;
    const char* threads;
    int locks;
  } cases[] = {{raked, "2", 0},
               {spot_of("Kh9d4s7c2h", "100%", 1500, "20,33,50,75,100,150", "2x,3x,4x"), "1", 400},
               {spot_of("Kh9d4s7c", "22+,A2s+,KTs+,ATo+", 1000, "33,75", "3x"), "2", 0},
               {spot_of("Kh9d4s", "AsAc,QsQc", 500, "50", "3x"), "1", 0}};
  const Files files;
  for (const auto& c : cases) {
    const QString path = files.write("spot.json", c.spot);
    const QJsonArray locks = first_locks(files, path, c.locks);
    ASSERT_EQ(locks.size(), c.locks);
    const QStringList options{path, "--threads", c.threads, "--locks",
                              files.write("locks.json", QJsonDocument(locks).toJson())};
    const double estimate =
        run_cli(QStringList{"estimate"} + options).json()["peak_bytes"].toDouble();
    const double peak = peak_of(QStringList{"solve"} + options);
    EXPECT_GT(peak, 5e7);
    EXPECT_NEAR(estimate, peak, 0.1 * peak) << c.spot["board"].toString().toStdString();
  }
}

}  // namespace
