#include "solve_request.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include <QCoreApplication>
#include <QHash>
#include <QLatin1String>
#include <QStringList>

#include "spot_config.h"

using velmora_app::SpotFault;

namespace {

QString missingText(const QString& field) {
  if (field == "board")
    return QCoreApplication::translate("AppController", "Not ready: enter a valid board first");
  if (field.endsWith("_range")) {
    return QCoreApplication::translate("AppController",
                                       "Not ready: select at least one hand in both ranges");
  }
  return QCoreApplication::translate("AppController", "Not ready: fill out both OOP and IP sizing");
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

std::vector<SpotFault> spotFaults(const QVariantMap& map) {
  velmora_app::SolveConfig config = makeSolveConfig(map);
  config.board = map.value("board").toString().toStdString();
  return velmora_app::check_spot(config);
}

QString refusalOf(const std::vector<SpotFault>& faults) {
  if (faults.empty()) return {};
  const SpotFault& fault = mostUrgent(faults);
  const QString field = QString::fromStdString(fault.field);
  if (fault.missing) return missingText(field);
  const QString title = fieldTitle(field);
  const QString sentence = QString::fromStdString(fault.sentence);
  return title.isEmpty() ? sentence : title + ": " + sentence;
}

QString refusalOf(const QVariantMap& map) {
  return refusalOf(spotFaults(map));
}

QString fieldTitle(const QString& field) {
  static const QHash<QString, std::pair<const char*, const char*>> kTitles{
      {"board", {"BoardCard", "Board"}},
      {"oop_range", {"RangeCard", "OOP Range"}},
      {"ip_range", {"RangeCard", "IP Range"}},
      {"starting_pot", {"GameSettingsCard", "Starting Pot"}},
      {"effective_stack", {"GameSettingsCard", "Effective Stack"}},
      {"rake_percent", {"GameSettingsCard", "Rake (%)"}},
      {"rake_cap", {"GameSettingsCard", "Rake Cap"}},
      {"target_exploitability", {"GameSettingsCard", "Target Exploitability (%)"}},
      {"oop_weight", {"RangeCard", "Weight"}},
      {"ip_weight", {"RangeCard", "Weight"}},
  };
  if (const auto title = kTitles.find(field); title != kTitles.end()) {
    return QCoreApplication::translate(title->first, title->second);
  }
  // What is left stands in the cards of the bet sizes: a seat, maybe a street, and a row.
  static constexpr std::array kParts{
      std::pair{"oop_", "OOP"},
      std::pair{"ip_", "IP"},
      std::pair{"flop_", "Flop"},
      std::pair{"turn_", "Turn"},
      std::pair{"river_", "River"},
      std::pair{"bet_sizes", "Bet sizes (%)"},
      std::pair{"raise_sizes", "Raise sizes (%)"},
      std::pair{"add_all_in_jam_threshold_pct", "Add all-in if jam less than"}};
  QStringList words;
  QString rest = field;
  for (const auto& [part, word] : kParts) {
    if (!rest.startsWith(QLatin1String(part))) continue;
    words += QCoreApplication::translate("SizingCard", word);
    rest.remove(0, static_cast<int>(std::strlen(part)));
  }
  return words.join(QLatin1Char(' '));
}

const SpotFault& mostUrgent(const std::vector<SpotFault>& faults) {
  const auto wrong =
      std::find_if(faults.begin(), faults.end(), [](const SpotFault& f) { return !f.missing; });
  return wrong == faults.end() ? faults.front() : *wrong;
}
