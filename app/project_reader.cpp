#include "project_reader.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <memory>
#include <string>
#include <utility>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

#include "fault_scope.h"
#include "json_stream.h"

using velmora_app::ActionMeta;
using velmora_app::NodeMeta;
using velmora_app::TreeSnapshot;

namespace {

std::string textIn(JsonReader& in) {
  return in.value().toString().toStdString();
}

QVariantMap mapIn(const QJsonValue& value) {
  return value.toObject().toVariantMap();
}

QVariantList listIn(const QJsonValue& value) {
  return value.toArray().toVariantList();
}

/// An equity that can't be told is not a number for the pages, for which a file has no word.
QVariantList statsIn(const QJsonValue& value) {
  QVariantList list = listIn(value);
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
      if (name == "format") format_ = in_.value().toString();
      if (name == "version") version_ = in_.value().toInt();
      if (name == "hasResults") project_.hasResults = in_.value().toBool();
      if (name == "project") project_.state = mapIn(in_.value());
      if (name == "lastUiCfg") project_.lastUiCfg = mapIn(in_.value());
      if (name == "nodeLocks") readLocks();
      if (name == "nodeCaches") readCaches();
      if (name == "results") readResults();
    });
    in_.finish();
  }

  const QString& format() const { return format_; }
  int version() const { return version_; }
  Project takeProject() {
    if (!project_.hasResults) {
      project_.outcome = {};
      project_.tree.clear();
    }
    return std::move(project_);
  }

 private:
  /// Reads the elements of an array and tells how far the file has been read.
  template <typename Read>
  void entries(const Read& read) {
    in_.elements([&] {
      read();
      if (progress_) progress_(std::min(1.0, static_cast<double>(in_.bytesRead()) / size_));
    });
  }

  void readLocks() {
    project_.nodeLocks.clear();
    entries([this] {
      const QJsonObject lock = in_.value().toObject();
      const int action = lock["actionIndex"].toInt(-1);
      if (action < 0) return;
      project_.nodeLocks.set(lock["nodeIndex"].toInt(-1), lock["hand"].toString(), action,
                             lock["actionProb"].toDouble(lock.contains("actionProb") ? 0 : 1));
    });
  }

  template <typename Answer>
  void readCache(QMap<int, Answer>& cache, Answer (*answerIn)(const QJsonValue&)) {
    cache.clear();
    entries([&] {
      const QJsonObject entry = in_.value().toObject();
      const int node = entry["nodeIndex"].toInt(-1);
      if (node >= 0) cache.insert(node, answerIn(entry["data"]));
    });
  }

  void readSeatCaches() {
    ResultCaches& caches = project_.caches;
    caches.seatHandCombosOopCache.clear();
    caches.seatHandCombosIpCache.clear();
    entries([&] {
      const QJsonObject entry = in_.value().toObject();
      const int node = entry["nodeIndex"].toInt(-1);
      const QString seat = entry["seat"].toString().trimmed().toUpper();
      if (node < 0 || (seat != "OOP" && seat != "IP")) return;
      auto& cache = seat == "OOP" ? caches.seatHandCombosOopCache : caches.seatHandCombosIpCache;
      cache.insert(node, listIn(entry["data"]));
    });
  }

  void readCaches() {
    ResultCaches& caches = project_.caches;
    caches.clear();
    in_.members([&](const std::string& name) {
      if (name == "handStrategyByNode") readCache(caches.handStrategyCache, &mapIn);
      if (name == "actionStatsByNode") readCache(caches.actionStatsCache, &statsIn);
      if (name == "handCombosByNode") readCache(caches.handCombosCache, &listIn);
      if (name == "handBucketsByNode") readCache(caches.handBucketsCache, &listIn);
      if (name == "seatHandCombosByNode") readSeatCaches();
    });
  }

  void readResults() {
    SolveOutcome& outcome = project_.outcome;
    outcome = {};
    project_.tree.clear();
    const auto tree = std::make_shared<TreeSnapshot>();
    int effectiveStack = 0;
    in_.members([&](const std::string& name) {
      if (name == "resultsSummary") outcome.summary = in_.value().toString();
      if (name == "resultStartingPot") outcome.startingPot = in_.value().toInt();
      if (name == "resultIterations") outcome.iterations = in_.value().toInt();
      if (name == "resultExploitability") outcome.exploitability = in_.value().toDouble();
      if (name == "resultEvOop") outcome.evOop = in_.value().toDouble();
      if (name == "resultEvIp") outcome.evIp = in_.value().toDouble();
      if (name == "rootActions") readRootActions();
      if (name == "treeNodeMeta") readTreeMeta(*tree, effectiveStack);
      if (name == "treeNodeActions") readTreeActions(*tree);
    });
    tree->shrink_to_fit();
    project_.tree.set(tree, effectiveStack);
  }

  void readRootActions() {
    QVariantList& actions = project_.outcome.rootActions;
    actions.clear();
    entries([&] { actions.append(mapIn(in_.value())); });
  }

  void readTreeMeta(TreeSnapshot& tree, int& effectiveStack) {
    tree.clear_facts();
    bool first = true;
    entries([&] {
      NodeMeta node;
      int stack = 0;
      in_.members([&](const std::string& name) {
        if (name == "nodeType") node.node_type = textIn(in_);
        if (name == "chanceDeal") node.chance_deal = textIn(in_);
        if (name == "player") node.player = textIn(in_);
        if (name == "pot") node.pot = in_.value().toInt();
        if (name == "effectiveStack") stack = in_.value().toInt();
        if (name == "investedOop") node.invested_oop = in_.value().toInt();
        if (name == "investedIp") node.invested_ip = in_.value().toInt();
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
          if (name == "name") action.name = textIn(in_);
          if (name == "actionType") action.action_type = textIn(in_);
          if (name == "frequency") action.frequency = static_cast<float>(in_.value().toDouble());
          if (name == "childIndex")
            action.child_index = static_cast<std::uint32_t>(in_.value().toInt());
        });
      });
      tree.append_actions(actions);
    });
  }

  JsonReader in_;
  const double size_;
  const std::function<void(double)>& progress_;
  QString format_;
  int version_ = 0;
  Project project_;
};

ProjectReading refused(const QString& error) {
  return {error, {}};
}

}  // namespace

ProjectReading readProject(const QString& path, const std::function<void(double)>& progress) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
    return refused(QCoreApplication::translate("AppController", "Failed to open file"));
  }
  try {
    const velmora_app::FaultScope scope;
    DocumentReader reader(file, progress);
    reader.read();
    if (reader.format() != "velmora_project") {
      return refused(QCoreApplication::translate("AppController", "Unrecognized project format"));
    }
    if (reader.version() != 1) {
      return refused(QCoreApplication::translate("AppController", "Unsupported project version"));
    }
    return {{}, reader.takeProject()};
  } catch (const JsonFault&) {
    return refused(QCoreApplication::translate("AppController", "Invalid JSON"));
  } catch (const std::exception& fault) {
    return refused(QString::fromUtf8(fault.what()));
  }
}
