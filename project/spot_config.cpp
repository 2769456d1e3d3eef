#include "spot_config.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include <QLatin1String>

using velmora_app::SolveConfig;
using velmora_app::StreetSizingText;

namespace {

QVariant valueOr(const QVariantMap& map, const QString& key, const QVariant& fallback) {
  const QVariant value = map.value(key);
  // A null is what QML makes of undefined and JSON of null: nothing was said.
  return value.isValid() && !value.isNull() ? value : fallback;
}

std::string textOf(const QVariantMap& map, const QString& key, const std::string& fallback = {}) {
  return valueOr(map, key, QString::fromStdString(fallback)).toString().toStdString();
}

std::uint32_t countOf(const QVariantMap& map, const QString& key, std::uint64_t fallback) {
  const qlonglong count = valueOr(map, key, static_cast<qulonglong>(fallback)).toLongLong();
  return static_cast<std::uint32_t>(
      std::clamp<qlonglong>(count, 0, std::numeric_limits<std::uint32_t>::max()));
}

StreetSizingText sizingOf(const QVariantMap& map, const QString& stem) {
  StreetSizingText sizing;
  sizing.bet_sizes = textOf(map, stem + QLatin1String("_bet_sizes"));
  sizing.raise_sizes = textOf(map, stem + QLatin1String("_raise_sizes"));
  sizing.add_all_in = map.value(stem + QLatin1String("_add_all_in"), false).toBool();
  sizing.dont_donk = map.value(stem + QLatin1String("_dont_donk"), false).toBool();
  return sizing;
}

std::optional<double> jamThresholdOf(const QVariantMap& map, const QString& seat) {
  const QString stem = seat + QLatin1String("_add_all_in_jam_threshold_");
  if (!map.value(stem + QLatin1String("enabled"), false).toBool()) return std::nullopt;
  return map.value(stem + QLatin1String("pct"), 0.0).toDouble();
}

/// Chips from a percentage of the pot; 0 if there is no sensible answer.
double targetAmount(double startingPot, double percentOfPot) {
  if (!std::isfinite(startingPot) || !std::isfinite(percentOfPot) || startingPot <= 0) return 0;
  return startingPot * percentOfPot / 100;
}

}  // namespace

QString normalizedBoard(const QString& text) {
  static const QLatin1String kRanks("AKQJT98765432");
  static const QLatin1String kSuits("shdc");
  const QString packed = text.simplified().remove(QLatin1Char(' '));
  QString board;
  for (qsizetype i = 0; i + 1 < packed.size(); i += 2) {
    const QChar rank = packed[i].toUpper();
    const QChar suit = packed[i + 1].toLower();
    if (kRanks.contains(rank) && kSuits.contains(suit)) board += QString(rank) + suit;
  }
  return board;
}

SolveConfig makeSolveConfig(const QVariantMap& map) {
  const SolveConfig defaults;
  SolveConfig config;
  config.board = normalizedBoard(map.value("board").toString()).toStdString();
  config.starting_pot = valueOr(map, "starting_pot", defaults.starting_pot).toInt();
  config.effective_stack = valueOr(map, "effective_stack", defaults.effective_stack).toInt();
  config.rake_percent = valueOr(map, "rake_percent", defaults.rake_percent).toDouble();
  config.rake_cap = valueOr(map, "rake_cap", defaults.rake_cap).toDouble();
  config.starting_street = textOf(map, "starting_street", defaults.starting_street);
  config.max_iterations = countOf(map, "max_iterations", defaults.max_iterations);
  config.target_exploitability = static_cast<float>(
      valueOr(map, "target_exploitability", defaults.target_exploitability).toDouble());
  config.thread_count = countOf(map, "thread_count", defaults.thread_count);
  config.oop_range = textOf(map, "oop_range");
  config.ip_range = textOf(map, "ip_range");
  config.oop_flop = sizingOf(map, "oop_flop");
  config.oop_turn = sizingOf(map, "oop_turn");
  config.oop_river = sizingOf(map, "oop_river");
  config.ip_flop = sizingOf(map, "ip_flop");
  config.ip_turn = sizingOf(map, "ip_turn");
  config.ip_river = sizingOf(map, "ip_river");
  config.oop_add_all_in_jam_threshold_pct = jamThresholdOf(map, "oop");
  config.ip_add_all_in_jam_threshold_pct = jamThresholdOf(map, "ip");
  return config;
}

namespace {

/// Calls `pair` with each key of a solve configuration map whose value a project state holds as it
/// is, and the key that it has there.
template <typename Pair>
void forEachSharedKey(const Pair& pair) {
  pair("board", "boardText");
  pair("oop_range", "oopRangeText");
  pair("ip_range", "ipRangeText");
  pair("max_iterations", "maxIterations");
  pair("starting_pot", "startingPot");
  pair("effective_stack", "effectiveStack");
  pair("rake_percent", "rakePercent");
  pair("rake_cap", "rakeCap");
  pair("starting_street", "startingStreet");
  pair("thread_count", "threadCount");

  using StreetNames = std::pair<const char*, const char*>;
  constexpr std::array streets{StreetNames{"flop", "Flop"}, StreetNames{"turn", "Turn"},
                               StreetNames{"river", "River"}};
  for (const QString seat : {"oop", "ip"}) {
    for (const auto& [street, projectStreet] : streets) {
      const QString stem = seat + QLatin1Char('_') + QLatin1String(street);
      const QString projectStem = seat + QLatin1String(projectStreet);
      pair(stem + "_bet_sizes", projectStem + "BetSizesText");
      pair(stem + "_raise_sizes", projectStem + "RaiseSizesText");
      pair(stem + "_add_all_in", projectStem + "AddAllIn");
      if (seat == QLatin1String("oop")) pair(stem + "_dont_donk", projectStem + "DontDonk");
    }
    pair(seat + "_add_all_in_jam_threshold_enabled", seat + "AddAllInIfJamLtEnabled");
    pair(seat + "_add_all_in_jam_threshold_pct", seat + "AddAllInIfJamLtPct");
  }
}

}  // namespace

QVariantMap solveConfigMapOfProject(const QVariantMap& projectState) {
  QVariantMap map;
  forEachSharedKey([&](const QString& key, const QString& projectKey) {
    if (const auto it = projectState.find(projectKey); it != projectState.end()) map[key] = *it;
  });
  if (projectState.contains("targetExploitability")) {
    const double pot = valueOr(projectState, "startingPot", SolveConfig{}.starting_pot).toDouble();
    map["target_exploitability"] =
        targetAmount(pot, projectState.value("targetExploitability").toDouble());
  }
  return map;
}

QVariantMap projectStateOfSolveConfigMap(const QVariantMap& map) {
  QVariantMap state;
  forEachSharedKey([&](const QString& key, const QString& projectKey) {
    if (const auto it = map.find(key); it != map.end()) state[projectKey] = *it;
  });
  state.remove("threadCount");
  const double pot = map.value("starting_pot").toDouble();
  if (map.contains("target_exploitability") && pot > 0) {
    // Targets have at most six decimals.
    const double percent = map.value("target_exploitability").toDouble() / pot * 100;
    state["targetExploitability"] = std::round(percent * 1e6) / 1e6;
  }
  return state;
}
