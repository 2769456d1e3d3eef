// Computes the two range libraries: preflop_charts FOLDER writes standard_ranges.json and
// exploit_ranges.json into the folder, and a table of the figures to standard output.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <future>
#include <stdexcept>
#include <thread>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QTextStream>

#include "charts.h"
#include "population.h"
#include "range_writer.h"

namespace preflop_charts {
namespace {

constexpr int kIterations = 8000;
/// The files are the same on every run.
constexpr const char* kGeneratedAt = "2026-11-23T00:00:00Z";

/// Figures that are well known, in percent, to two decimals.
void check_equities(const ClassTable& equity) {
  const auto against_random = [&](std::size_t hand) {
    double sum = 0;
    double met = 0;
    for (std::size_t other = 0; other < kNumClasses; ++other) {
      sum += matchups()[hand][other] * equity[hand][other];
      met += matchups()[hand][other];
    }
    return sum / met;
  };
  struct Known {
    std::size_t hand;
    double percent;
  };
  for (const Known& known :
       {Known{class_of(12, 12, false), 85.20}, Known{class_of(11, 11, false), 82.40},
        Known{class_of(0, 0, false), 50.33}, Known{class_of(12, 11, true), 67.04},
        Known{class_of(12, 11, false), 65.32}, Known{class_of(5, 0, false), 34.58},
        Known{class_of(1, 0, false), 32.30}}) {
    const double percent = 100 * against_random(known.hand);
    if (std::abs(percent - known.percent) > 0.006) {
      throw std::runtime_error("The equity of " + label_of(known.hand) +
                               " against a random hand is " + std::to_string(percent) + " %");
    }
  }
}

struct LevelSolutions {
  PreflopSolution six_max;
  PreflopSolution heads_up;
};

std::vector<LevelSolutions> solve_levels(const HandTables& tables) {
  std::vector<std::future<LevelSolutions>> runs;
  std::vector<LevelSolutions> solutions;
  const std::size_t at_once = std::max(1U, std::thread::hardware_concurrency());
  for (std::size_t next = 0; solutions.size() < kRakeLevels.size();) {
    for (; next < kRakeLevels.size() && next < solutions.size() + at_once; ++next) {
      runs.push_back(std::async(std::launch::async, [&tables, next] {
        const RakeLevel& rake = kRakeLevels.at(next);
        return LevelSolutions{solve(six_max(), rake, tables, kIterations),
                              solve(heads_up(), rake, tables, kIterations)};
      }));
    }
    solutions.push_back(runs[solutions.size()].get());
    const LevelSolutions& done = solutions.back();
    std::fprintf(
        stderr,
        "%-10s  what one change of a decision could gain: 6-max %.5f bb, heads up %.5f bb\n",
        kRakeLevels.at(solutions.size() - 1).name.data(), done.six_max.regret,
        done.heads_up.regret);
  }
  return solutions;
}

QString text_of(const std::string& text) {
  return QString::fromStdString(text);
}

QJsonArray standard_rows(const std::vector<LevelSolutions>& solutions, velmora::Seat seat) {
  QJsonArray rows;
  const auto add = [&](const Table& table, const std::string& game,
                       PreflopSolution LevelSolutions::*solution) {
    for (std::size_t level = 0; level < kRakeLevels.size(); ++level) {
      const std::string prefix = game + std::string(kRakeLevels.at(level).name) + " / ";
      for (const ChartRow& row : chart_rows(table, solutions[level].*solution, seat)) {
        const std::string value = explicit_text(row.range);
        if (value.empty()) throw std::runtime_error("Nobody plays " + prefix + row.scenario);
        rows.append(
            QJsonObject{{"name", text_of(prefix + row.scenario)}, {"value", text_of(value)}});
      }
    }
  };
  add(six_max(), "", &LevelSolutions::six_max);
  add(heads_up(), "Heads up / ", &LevelSolutions::heads_up);
  return rows;
}

QJsonArray json_tree(const std::vector<LibraryNode>& nodes) {
  QJsonArray list;
  for (const LibraryNode& node : nodes) {
    QJsonObject entry{{"name", text_of(node.name)}};
    if (node.children.empty()) {
      if (node.value.empty()) throw std::runtime_error("Nobody plays " + node.name);
      entry["value"] = text_of(node.value);
    } else {
      entry["type"] = "folder";
      entry["children"] = json_tree(node.children);
    }
    list.append(entry);
  }
  return list;
}

void write(const QString& path, const QJsonObject& document) {
  // Indented by two spaces a level, as the window exports the libraries.
  QByteArray text;
  for (const QByteArray& line : QJsonDocument(document).toJson().split('\n')) {
    if (line.isEmpty()) continue;
    const auto spaces = std::ranges::find_if(line, [](char c) { return c != ' '; }) - line.begin();
    text += line.mid(spaces / 2) + '\n';
  }
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
    throw std::runtime_error("Can't write " + path.toStdString() + ": " +
                             file.errorString().toStdString());
  }
}

/// Percent of hands of each row: the rake levels are the columns.
void print_table(const std::vector<LevelSolutions>& solutions) {
  QTextStream out(stdout);
  const auto print = [&](const Table& table, PreflopSolution LevelSolutions::*solution) {
    for (const velmora::Seat seat : {velmora::kOop, velmora::kIp}) {
      std::vector<std::vector<ChartRow>> columns;
      for (const LevelSolutions& level : solutions) {
        columns.push_back(chart_rows(table, level.*solution, seat));
      }
      for (std::size_t row = 0; row < columns.front().size(); ++row) {
        out << "| " << text_of(std::string(table.name)) << " | "
            << text_of(columns.front()[row].scenario);
        for (const auto& column : columns) {
          out << " | " << QString::number(percent_of_hands(column[row].range), 'f', 1);
        }
        out << " |\n";
      }
    }
  };
  out << "| Game | Row";
  for (const RakeLevel& level : kRakeLevels) out << " | " << QString::fromLatin1(level.name.data());
  out << " |\n|---|---|---|---|---|---|---|\n";
  print(six_max(), &LevelSolutions::six_max);
  print(heads_up(), &LevelSolutions::heads_up);
}

void run(const QString& folder) {
  const unsigned threads = std::max(1U, std::thread::hardware_concurrency());
  std::fprintf(stderr, "Equities and playabilities of the hand classes ...\n");
  const HandTables tables = hand_tables(threads);
  check_equities(tables.equity);
  std::fprintf(stderr, "Solving ...\n");
  const std::vector<LevelSolutions> solutions = solve_levels(tables);

  QJsonObject standard;
  QJsonObject population{
      {"format", "velmora_ranges_export"}, {"version", 1}, {"generatedAt", kGeneratedAt}};
  for (const velmora::Seat seat : {velmora::kOop, velmora::kIp}) {
    const QString key = seat == velmora::kOop ? "oop" : "ip";
    standard[key] = QJsonObject{{"standard", standard_rows(solutions, seat)}};
    population[key] = QJsonObject{
        {"standard", QJsonArray{}},
        {"exploit", json_tree(population_tree(tables, solutions.front().six_max, seat))}};
  }
  write(folder + "/standard_ranges.json", standard);
  write(folder + "/exploit_ranges.json", population);
  print_table(solutions);
}

}  // namespace
}  // namespace preflop_charts

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "Usage: preflop_charts FOLDER\n");
    return 2;
  }
  try {
    preflop_charts::run(application.arguments().at(1));
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
  return 0;
}
