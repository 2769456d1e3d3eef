#include "project_reader.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include <QCoreApplication>
#include <QFile>

#include "cards.h"
#include "fault_scope.h"
#include "json_stream.h"
#include "spot_config.h"

using velmora_app::ActionMeta;
using velmora_app::NodeMeta;
using velmora_app::TreeSnapshot;

namespace {

QVariantMap mapIn(JsonReader& in) {
  return in.object().toVariantMap();
}

QVariantList listIn(JsonReader& in) {
  return in.array().toVariantList();
}

/// The pages expect NaN for an unknown equity; JSON has no NaN, so a file holds null.
QVariantList statsIn(JsonReader& in) {
  QVariantList list = listIn(in);
  for (QVariant& entry : list) {
    QVariantMap stats = entry.toMap();
    if (!stats.contains("equity") || !stats.value("equity").isNull()) continue;
    stats["equity"] = std::numeric_limits<double>::quiet_NaN();
    entry = stats;
  }
  return list;
}

/// The members may stand in any order, and of two of the same name the later one counts.
class DocumentReader {
 public:
  DocumentReader(QFile& file, const std::function<void(double)>& progress)
      : in_(file),
        size_(static_cast<double>(std::max<qint64>(file.size(), 1))),
        progress_(progress) {}

  void read() {
    in_.members([this](const std::string& name) {
      where_ = name;
      if (name == "format") format_ = in_.scalar().toString();
      if (name == "version") version_ = in_.scalar().toInt();
      if (name == "hasResults") project_.hasResults = in_.scalar().toBool();
      if (name == "project") project_.state = mapIn(in_);
      if (name == "lastUiCfg") project_.lastUiCfg = mapIn(in_);
      if (name == "nodeLocks") project_.nodeLocks = readLocks();
      if (name == "nodeCaches") readCaches();
      if (name == "results") readResults();
    });
    in_.finish();
  }

  /// Where the file is at fault, once a step has thrown, such as "nodeCaches.handCombosByNode[12]";
  /// empty before the first member.
  QString where() const {
    const QString member = QString::fromStdString(where_ + (part_.empty() ? "" : "." + part_));
    return entry_ > 0 ? member + '[' + QString::number(entry_ - 1) + ']' : member;
  }
  qint64 position() const { return in_.position(); }
  const QString& format() const { return format_; }
  int version() const { return version_; }
  Project takeProject() {
    if (!project_.hasResults) {
      project_.outcome = {};
      project_.tree.clear();
    } else if (project_.resultCfg.isEmpty()) {
      inferResultSpot();
    }
    keepLocksOfTheTree(project_.nodeLocks);
    keepLocksOfTheTree(project_.solvedLocks);
    return std::move(project_);
  }

 private:
  /// Reads the elements of an array and reports how far the file has been read.
  template <typename Read>
  void entries(const Read& read) {
    entry_ = 0;
    in_.elements([&] {
      ++entry_;
      read();
      if (progress_) progress_(std::min(1.0, static_cast<double>(in_.bytesRead()) / size_));
    });
    entry_ = 0;
  }

  NodeLockTable readLocks() {
    NodeLockTable locks;
    entries([this, &locks] {
      int node = -1;
      QString hand;
      int action = -1;
      double probability = 1;
      in_.members([&](const std::string& name) {
        if (name == "nodeIndex") node = in_.scalar().toInt(-1);
        if (name == "hand") hand = in_.scalar().toString();
        if (name == "actionIndex") action = in_.scalar().toInt(-1);
        if (name == "actionProb") probability = in_.scalar().toDouble();
      });
      if (action >= 0) locks.set(node, hand, action, probability);
    });
    return locks;
  }

  /// A lock elsewhere than at an action of a decision node could never apply.
  void keepLocksOfTheTree(NodeLockTable& locks) const {
    for (const int node : locks.nodes()) {
      const bool decides = project_.tree.meta(node).value("nodeType") == "decision";
      const qsizetype actions = decides ? project_.tree.actions(node).size() : 0;
      const QVariantList entries = locks.locksAt(node);
      locks.clear(node);
      for (const QVariant& entry : entries) {
        const QVariantMap lock = entry.toMap();
        if (lock.value("actionIndex").toInt() >= actions) continue;
        locks.set(node, lock.value("hand").toString(), lock.value("actionIndex").toInt(),
                  lock.value("actionProb").toDouble());
      }
    }
  }

  /// Older files don't hold the spot of the result. It is that of the latest start, unless that one
  /// was refused: then the summary names another board.
  void inferResultSpot() {
    const QVariantMap edited = solveConfigMapOfProject(project_.state);
    const auto isOfSummary = [this](const QVariantMap& cfg) {
      const QString board = normalizedBoard(cfg.value("board").toString());
      return !board.isEmpty() && project_.outcome.summary.contains(board);
    };
    const bool takesEdited =
        project_.lastUiCfg.isEmpty() || (!isOfSummary(project_.lastUiCfg) && isOfSummary(edited));
    project_.resultCfg = takesEdited ? edited : project_.lastUiCfg;
    if (project_.lastUiCfg.value("apply_node_locks").toBool()) {
      project_.solvedLocks = project_.nodeLocks;
    }
  }

  /// Calls `store` with the node, the seat and the answer of each entry.
  template <typename Read, typename Store>
  void readAnswers(const Read& read, const Store& store) {
    entries([&] {
      int node = -1;
      QString seat;
      decltype(read(in_)) data;
      in_.members([&](const std::string& name) {
        if (name == "nodeIndex") node = in_.scalar().toInt(-1);
        if (name == "seat") seat = in_.scalar().toString().trimmed().toUpper();
        if (name == "data") data = read(in_);
      });
      if (node >= 0) store(node, seat, data);
    });
  }

  template <typename Answer, typename Read>
  void readCache(QMap<int, Answer>& cache, const Read& read) {
    cache.clear();
    readAnswers(read, [&](int node, const QString& /*seat*/, const Answer& answer) {
      cache.insert(node, answer);
    });
  }

  void readSeatCaches() {
    ResultCaches& caches = project_.caches;
    caches.seatHandCombosOopCache.clear();
    caches.seatHandCombosIpCache.clear();
    readAnswers(listIn, [&](int node, const QString& seat, const QVariantList& answer) {
      if (seat == "OOP") caches.seatHandCombosOopCache.insert(node, answer);
      if (seat == "IP") caches.seatHandCombosIpCache.insert(node, answer);
    });
  }

  void readCaches() {
    ResultCaches& caches = project_.caches;
    caches.clear();
    in_.members([&](const std::string& name) {
      part_ = name;
      if (name == "handStrategyByNode") readCache(caches.handStrategyCache, mapIn);
      if (name == "actionStatsByNode") readCache(caches.actionStatsCache, statsIn);
      if (name == "handCombosByNode") readCache(caches.handCombosCache, listIn);
      if (name == "handBucketsByNode") readCache(caches.handBucketsCache, listIn);
      if (name == "seatHandCombosByNode") readSeatCaches();
    });
    part_.clear();
  }

  void readResults() {
    SolveOutcome& outcome = project_.outcome;
    outcome = {};
    project_.tree.clear();
    const auto tree = std::make_shared<TreeSnapshot>();
    int effectiveStack = 0;
    in_.members([&](const std::string& name) {
      part_ = name;
      if (name == "resultsSummary") outcome.summary = in_.scalar().toString();
      if (name == "resultStartingPot") outcome.startingPot = in_.scalar().toInt();
      if (name == "resultIterations") outcome.iterations = in_.scalar().toInt();
      if (name == "resultExploitability") outcome.exploitability = in_.scalar().toDouble();
      if (name == "resultEvOop") outcome.evOop = in_.scalar().toDouble();
      if (name == "resultEvIp") outcome.evIp = in_.scalar().toDouble();
      if (name == "spot") project_.resultCfg = mapIn(in_);
      if (name == "stalled") outcome.stalled = in_.scalar().toBool();
      if (name == "locks") project_.solvedLocks = readLocks();
      if (name == "rootActions") readRootActions();
      if (name == "treeNodeMeta") readTreeMeta(*tree, effectiveStack);
      if (name == "treeNodeActions") readTreeActions(*tree);
    });
    part_.clear();
    tree->shrink_to_fit();
    project_.tree.set(tree, effectiveStack);
  }

  void readRootActions() {
    QVariantList& actions = project_.outcome.rootActions;
    actions.clear();
    entries([&] { actions.append(mapIn(in_)); });
  }

  void readTreeMeta(TreeSnapshot& tree, int& effectiveStack) {
    tree.clear_facts();
    bool first = true;
    entries([&] {
      NodeMeta node;
      int stack = 0;
      in_.members([&](const std::string& name) {
        if (name == "nodeType") node.node_type = in_.text();
        if (name == "chanceDeal") node.chance_deal = in_.text();
        if (name == "player") node.player = in_.text();
        if (name == "pot") node.pot = in_.scalar().toInt();
        if (name == "effectiveStack") stack = in_.scalar().toInt();
        if (name == "investedOop") node.invested_oop = in_.scalar().toInt();
        if (name == "investedIp") node.invested_ip = in_.scalar().toInt();
      });
      if (std::exchange(first, false)) effectiveStack = stack;  // The same at all nodes.
      tree.append_facts(node);
    });
  }

  void readTreeActions(TreeSnapshot& tree) {
    tree.clear_actions();
    std::vector<ActionMeta> actions;
    entries([&] {
      actions.clear();
      in_.elements([&] {
        ActionMeta& action = actions.emplace_back();
        in_.members([&](const std::string& name) {
          if (name == "name") action.name = in_.text();
          if (name == "actionType") action.action_type = in_.text();
          if (name == "frequency") action.frequency = static_cast<float>(in_.scalar().toDouble());
          if (name == "childIndex")
            action.child_index = static_cast<std::uint32_t>(in_.scalar().toInt());
        });
      });
      tree.append_actions(actions);
    });
  }

  JsonReader in_;
  const double size_;
  const std::function<void(double)>& progress_;
  std::string where_;  ///< Member of the document, and
  std::string part_;   ///< of that, that is being read.
  qint64 entry_ = 0;   ///< Elements of its list that were begun.
  QString format_;
  int version_ = 0;
  Project project_;
};

/// Why no deck gives one of the boards of a project, in the board parser's words; empty if one
/// does. Slots of the board under edit may still be open.
QString boardFault(const Project& project) {
  const QStringList boards{project.state.value("boardText").toString(),
                           project.resultCfg.value("board").toString()};
  for (const QString& text : boards) {
    velmora::CardMask seen = 0;
    const std::string cards = QString(text).remove(' ').remove('_').toStdString();
    for (std::size_t at = 0; at < cards.size(); at += 2) {
      try {
        const std::string name = cards.substr(at, 2);
        const velmora::CardMask card = velmora::mask_of(velmora::parse_card(name));
        if (seen & card) return QString::fromStdString(name + " is there twice");
        seen |= card;
      } catch (const std::logic_error& fault) {
        return text + QStringLiteral(": ") + QString::fromUtf8(fault.what());
      }
    }
  }
  return {};
}

ProjectReading refused(const QString& error) {
  return {error, {}};
}

}  // namespace

ProjectReading readProject(const QString& path, const std::function<void(double)>& progress) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
    return refused(QCoreApplication::translate("AppController", "Failed to open file"));
  }
  std::optional<DocumentReader> reader;
  try {
    const velmora_app::FaultScope scope;
    reader.emplace(file, progress);
    reader->read();
    if (reader->format() != "velmora_project") {
      return refused(QCoreApplication::translate("AppController", "Unrecognized project format"));
    }
    if (reader->version() != 1) {
      return refused(QCoreApplication::translate("AppController", "Unsupported project version"));
    }
    Project project = reader->takeProject();
    if (const QString fault = boardFault(project); !fault.isEmpty()) {
      return refused(
          QCoreApplication::translate("AppController", "The board of the project is impossible: %1")
              .arg(fault));
    }
    return {{}, std::move(project)};
  } catch (const JsonFault&) {
    if (!reader || reader->where().isEmpty()) {
      return refused(QCoreApplication::translate("AppController", "Invalid JSON"));
    }
    return refused(QCoreApplication::translate("AppController", "Invalid JSON at byte %1, in %2")
                       .arg(QString::number(reader->position()), reader->where()));
  } catch (const std::exception& fault) {
    return refused(QString::fromUtf8(fault.what()));
  }
}
