#include "spot_file.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include <QFile>
#include <QJsonObject>
#include <QLatin1String>
#include <QVariantMap>

#include "json_stream.h"
#include "range.h"
#include "spot_config.h"

using velmora_app::NodeLockEntry;
using velmora_app::SolveConfig;

namespace {

constexpr double kMaxChips = std::numeric_limits<std::int32_t>::max();
constexpr double kMaxCount = std::numeric_limits<std::uint32_t>::max();
constexpr double kMaxExact = 9007199254740992;  // 2^53: whole numbers up to here are exact.

enum class Type { kText, kSwitch, kNumber, kWhole };

/// What the value of a key must be.
struct Rule {
  QString key;
  Type type;
  double least = 0;
  double most = 0;
};

/// Empty if the value obeys the rule, else how it should be.
QString violation(const QJsonValue& value, const Rule& rule) {
  const double number = value.toDouble();
  switch (rule.type) {
    case Type::kText: return value.isString() ? QString() : "must be a text";
    case Type::kSwitch: return value.isBool() ? QString() : "must be true or false";
    case Type::kNumber:
      if (value.isDouble() && number >= rule.least && number <= rule.most) return {};
      if (rule.most >= kMaxExact) return "must be a number of 0 or more";
      return QString("must be a number from %1 to %2").arg(rule.least).arg(rule.most);
    case Type::kWhole:
      if (value.isDouble() && number == std::floor(number) && number >= rule.least &&
          number <= rule.most) {
        return {};
      }
      return QString("must be a whole number from %1 to %2")
          .arg(rule.least, 0, 'f', 0)
          .arg(rule.most, 0, 'f', 0);
  }
  return {};
}

const std::vector<Rule>& spot_rules() {
  static const std::vector<Rule> kRules = [] {
    std::vector<Rule> rules{{"board", Type::kText},
                            {"starting_street", Type::kText},
                            {"oop_range", Type::kText},
                            {"ip_range", Type::kText},
                            {"starting_pot", Type::kWhole, 1, kMaxChips},
                            {"effective_stack", Type::kWhole, 1, kMaxChips},
                            {"max_iterations", Type::kWhole, 0, kMaxCount},
                            {"thread_count", Type::kWhole, 0, kMaxCount},
                            {"rake_percent", Type::kNumber, 0, 100},
                            {"rake_cap", Type::kNumber, 0, kMaxExact},
                            {"target_exploitability", Type::kNumber, 0, kMaxExact}};
    for (const QString seat : {"oop", "ip"}) {
      for (const QString street : {"_flop", "_turn", "_river"}) {
        rules.push_back({seat + street + "_bet_sizes", Type::kText});
        rules.push_back({seat + street + "_raise_sizes", Type::kText});
        rules.push_back({seat + street + "_add_all_in", Type::kSwitch});
        rules.push_back({seat + street + "_dont_donk", Type::kSwitch});
      }
      rules.push_back({seat + "_add_all_in_jam_threshold_enabled", Type::kSwitch});
      rules.push_back({seat + "_add_all_in_jam_threshold_pct", Type::kNumber, 0, kMaxExact});
    }
    return rules;
  }();
  return kRules;
}

[[noreturn]] void refuse(const QString& path, const QString& why) {
  throw InputFault(path + ": " + why);
}

/// Lines of a file up to a position, counted from 1.
qint64 line_at(QFile& file, qint64 position) {
  qint64 line = 1;
  file.seek(0);
  while (file.pos() < position) {
    const QByteArray part = file.read(std::min<qint64>(position - file.pos(), 1 << 20));
    if (part.isEmpty()) break;
    line += part.count('\n');
  }
  return line;
}

/// Opens a file and reads its JSON step by step, so that a project with all its results takes no
/// more memory than a spot.
template <typename Read>
void read_json(const QString& path, const Read& read) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) refuse(path, file.errorString());
  std::optional<JsonReader> reader;
  try {
    reader.emplace(file);
    read(*reader);
    reader->finish();
  } catch (const JsonFault& fault) {
    if (file.error() != QFileDevice::NoError) refuse(path, file.errorString());
    const qint64 line = reader ? line_at(file, reader->position()) : 1;
    refuse(path, QString("Invalid JSON in line %1: %2").arg(line).arg(fault.what()));
  }
}

/// True for a member of a file that describes the spot. What else a project holds is its results.
bool is_of_spot(const QString& member) {
  const std::vector<Rule>& rules = spot_rules();
  return member == "format" || member == "version" || member == "project" ||
         std::any_of(rules.begin(), rules.end(),
                     [&](const Rule& rule) { return rule.key == member; });
}

/// The solve configuration map of the file, whatever its form.
QVariantMap read_map(const QString& path) {
  QJsonObject object;
  read_json(path, [&](JsonReader& reader) {
    if (!reader.atObject()) refuse(path, "A spot must be a JSON object");
    reader.members([&](const std::string& utf8) {
      const QString name = QString::fromStdString(utf8);
      if (is_of_spot(name)) object[name] = reader.value();
    });
  });
  if (!object.contains("format")) return object.toVariantMap();
  if (object["format"].toString() != QLatin1String("velmora_project")) {
    refuse(path, "Unrecognized project format");
  }
  if (object["version"].toInt() != 1) refuse(path, "Unsupported project version");
  const QJsonObject project = object["project"].toObject();
  // A percentage of the pot there, so it becomes another number before it is looked at.
  const Rule target{"targetExploitability", Type::kNumber, 0, kMaxExact};
  const QJsonValue percent = project[target.key];
  if (!percent.isUndefined() && !percent.isNull()) {
    const QString fault = violation(percent, target);
    if (!fault.isEmpty()) refuse(path, "\"" + target.key + "\" " + fault);
  }
  return solveConfigMapOfProject(project.toVariantMap());
}

/// The cards of the text, refused at the first fault instead of read around it.
void check_board(const QString& path, const QString& text) {
  const QString cards = text.simplified().remove(' ');
  try {
    velmora::parse_board(cards.toStdString());
  } catch (const std::logic_error& fault) {
    refuse(path, QString::fromUtf8(fault.what()));
  }
  if (cards.size() != 6 && cards.size() != 8 && cards.size() != 10) {
    refuse(path, "The board must have 3, 4 or 5 cards, not \"" + text + "\"");
  }
}

/// Which street a board of so many cards is on.
QString street_of_board(qsizetype cards) {
  return cards == 3 ? "flop" : cards == 4 ? "turn" : "river";
}

bool is_hand_class(const std::string& label) {
  try {
    const velmora::ComboPattern pattern = velmora::parse_combo_pattern(label);
    if (pattern.suitedness == velmora::Suitedness::kExact) return false;
    const auto [a, b] = velmora::pocket_cards(velmora::expand_pattern(pattern).front());
    return velmora::hand_class_label(velmora::make_pocket(a, b)) == label;
  } catch (const std::logic_error&) {
    return false;
  }
}

}  // namespace

SolveConfig read_spot(const QString& path) {
  QVariantMap map = read_map(path);
  for (const Rule& rule : spot_rules()) {
    const QJsonValue value = QJsonValue::fromVariant(map.value(rule.key));
    if (value.isUndefined() || value.isNull()) continue;
    if (const QString fault = violation(value, rule); !fault.isEmpty()) {
      refuse(path, "\"" + rule.key + "\" " + fault);
    }
  }
  check_board(path, map.value("board").toString());
  SolveConfig config = makeSolveConfig(map);
  const auto cards = static_cast<qsizetype>(config.board.size() / 2);
  const QString stated = map.value("starting_street").toString();
  const QString street = street_of_board(cards);
  if (!stated.isEmpty() && stated != street) {
    refuse(path, QString("\"starting_street\" is \"%1\", but a board of %2 cards is a %3")
                     .arg(stated)
                     .arg(cards)
                     .arg(street));
  }
  config.starting_street = street.toStdString();
  return config;
}

std::vector<NodeLockEntry> read_locks(const QString& path) {
  static const std::vector<Rule> kRules{{"node", Type::kWhole, 0, kMaxExact},
                                        {"hand", Type::kText},
                                        {"action", Type::kWhole, 0, kMaxExact},
                                        {"frequency", Type::kNumber, 0, 1}};
  std::vector<NodeLockEntry> locks;
  const auto read_lock = [&](JsonReader& reader) {
    const QString where = QString("Lock %1: ").arg(locks.size() + 1);
    if (!reader.atObject()) refuse(path, where + "must be an object");
    const QJsonObject entry = reader.object();
    for (const Rule& rule : kRules) {
      const QString fault = violation(entry[rule.key], rule);
      if (!fault.isEmpty()) refuse(path, where + "\"" + rule.key + "\" " + fault);
    }
    const std::string hand = entry["hand"].toString().toStdString();
    if (!is_hand_class(hand)) {
      refuse(path, where + "\"hand\" must be a class such as \"AA\", \"AKs\" or \"AKo\"");
    }
    locks.push_back({static_cast<std::uint64_t>(entry["node"].toDouble()), hand,
                     static_cast<std::uint64_t>(entry["action"].toDouble()),
                     static_cast<float>(entry["frequency"].toDouble())});
  };
  read_json(path, [&](JsonReader& reader) {
    if (!reader.atArray()) refuse(path, "Node locks must be a JSON list");
    reader.elements([&] { read_lock(reader); });
  });
  return locks;
}
