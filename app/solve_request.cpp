#include "solve_request.h"

#include <algorithm>
#include <array>

#include <QCoreApplication>
#include <QLatin1String>

#include "solve_config_map.h"

namespace {

QString translated(const char* text) {
  return QCoreApplication::translate("AppController", text);
}

bool isRank(QChar c) {
  static const QLatin1String kRanks("AKQJT98765432");
  return kRanks.contains(c.toUpper());
}

bool hasAllSizings(const QVariantMap& map) {
  static constexpr std::array kKeys{
      "oop_flop_bet_sizes",  "oop_flop_raise_sizes",  "oop_turn_bet_sizes", "oop_turn_raise_sizes",
      "oop_river_bet_sizes", "oop_river_raise_sizes", "ip_flop_bet_sizes",  "ip_flop_raise_sizes",
      "ip_turn_bet_sizes",   "ip_turn_raise_sizes",   "ip_river_bet_sizes", "ip_river_raise_sizes"};
  return std::all_of(kKeys.begin(), kKeys.end(), [&](const char* key) {
    return !map.value(key).toString().trimmed().isEmpty();
  });
}

}  // namespace

QString describeSolveRequest(const QVariantMap& map) {
  const auto text = [&](const char* key) { return map.value(key).toString(); };
  const auto length = [&](const char* key) { return QString::number(text(key).size()); };
  return "UI startSolveWithConfig: board=" + text("board") +
         " oop_range.len=" + length("oop_range") + " ip_range.len=" + length("ip_range") +
         " pot=" + text("starting_pot") + " stack=" + text("effective_stack") +
         " rake%=" + text("rake_percent") + " rake_cap=" + text("rake_cap") +
         " iters=" + text("max_iterations") + " target_expl=" + text("target_exploitability") +
         " oop_flop_bets=" + text("oop_flop_bet_sizes") +
         " oop_flop_raises=" + text("oop_flop_raise_sizes") +
         " ip_flop_bets=" + text("ip_flop_bet_sizes") +
         " ip_flop_raises=" + text("ip_flop_raise_sizes") +
         " oop_jam_thr_en=" + text("oop_add_all_in_jam_threshold_enabled") +
         " oop_jam_thr_pct=" + text("oop_add_all_in_jam_threshold_pct") +
         " ip_jam_thr_en=" + text("ip_add_all_in_jam_threshold_enabled") +
         " ip_jam_thr_pct=" + text("ip_add_all_in_jam_threshold_pct");
}

bool namesAnyHand(const QString& rangeText) {
  return std::adjacent_find(rangeText.begin(), rangeText.end(), [](QChar a, QChar b) {
           return isRank(a) && isRank(b);
         }) != rangeText.end();
}

QString refusalOf(const QVariantMap& map) {
  const qsizetype boardLength = normalizedBoard(map.value("board").toString()).size();
  if (boardLength != 6 && boardLength != 8 && boardLength != 10) {
    return translated("Not ready: enter a valid board first");
  }
  if (!namesAnyHand(map.value("oop_range").toString()) ||
      !namesAnyHand(map.value("ip_range").toString())) {
    return translated("Not ready: select at least one hand in both ranges");
  }
  if (!hasAllSizings(map)) return translated("Not ready: fill out both OOP and IP sizing");
  return {};
}
