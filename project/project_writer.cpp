#include "project_writer.h"

#include <cmath>
#include <exception>

#include <QCoreApplication>
#include <QDebug>
#include <QJsonArray>
#include <QJsonObject>
#include <QSaveFile>

#include "fault_scope.h"
#include "json_stream.h"

using velmora_app::ActionMeta;
using velmora_app::NodeMeta;

namespace {

/// Bytes of an answer over those of a tree node, roughly: what progress goes by.
constexpr double kAnswerWeight = 500;

QJsonValue jsonOf(const QVariantMap& map) {
  return QJsonObject::fromVariantMap(map);
}

QJsonValue jsonOf(const QVariantList& list) {
  return QJsonArray::fromVariantList(list);
}

/// Writes the document entry by entry, the members of each object in the order of their names.
class DocumentWriter {
 public:
  DocumentWriter(const Project& project, QIODevice& device,
                 const std::function<void(double)>& progress)
      : project_(project), out_(device), progress_(progress) {
    const ResultCaches& caches = project.caches;
    const auto answers = caches.handStrategyCache.size() + caches.actionStatsCache.size() +
                         caches.handCombosCache.size() + caches.handBucketsCache.size() +
                         caches.seatHandCombosOopCache.size() + caches.seatHandCombosIpCache.size();
    total_ = 2.0 * project.tree.nodeCount() + kAnswerWeight * static_cast<double>(answers);
  }

  /// False if the device refuses it.
  bool write() {
    out_.beginObject();
    member("format", "velmora_project");
    member("hasResults", project_.hasResults);
    member("lastUiCfg", jsonOf(project_.lastUiCfg));
    if (project_.hasResults) writeCaches();
    writeLocks("nodeLocks", project_.nodeLocks);
    member("project", jsonOf(project_.state));
    if (project_.hasResults) writeResults();
    member("version", 1);
    out_.endObject();
    return out_.finish();
  }

 private:
  void member(const char* name, const QJsonValue& value) {
    out_.key(name);
    out_.value(value);
  }

  void textMember(const char* name, const std::string& text) {
    out_.key(name);
    out_.text(text);
  }

  void advance(double weight) {
    done_ += weight;
    if (progress_) progress_(done_ / total_);
  }

  template <typename Answer>
  void writeEntries(const QMap<int, Answer>& cache, const char* seat = nullptr) {
    for (auto entry = cache.cbegin(); entry != cache.cend() && !out_.failed(); ++entry) {
      out_.beginObject();
      member("data", jsonOf(entry.value()));
      member("nodeIndex", entry.key());
      if (seat) member("seat", seat);
      out_.endObject();
      advance(kAnswerWeight);
    }
  }

  template <typename Answer>
  void writeCache(const char* name, const QMap<int, Answer>& cache) {
    out_.key(name);
    out_.beginArray();
    writeEntries(cache);
    out_.endArray();
  }

  void writeCaches() {
    const ResultCaches& caches = project_.caches;
    out_.key("nodeCaches");
    out_.beginObject();
    writeCache("actionStatsByNode", caches.actionStatsCache);
    writeCache("handBucketsByNode", caches.handBucketsCache);
    writeCache("handCombosByNode", caches.handCombosCache);
    writeCache("handStrategyByNode", caches.handStrategyCache);
    out_.key("seatHandCombosByNode");
    out_.beginArray();
    writeEntries(caches.seatHandCombosOopCache, "OOP");
    writeEntries(caches.seatHandCombosIpCache, "IP");
    out_.endArray();
    out_.endObject();
  }

  void writeLocks(const char* name, const NodeLockTable& locks) {
    out_.key(name);
    out_.beginArray();
    for (const int node : locks.nodes()) {
      if (node >= project_.tree.nodeCount()) break;
      for (const QVariant& entry : locks.locksAt(node)) {
        QJsonObject lock = QJsonObject::fromVariantMap(entry.toMap());
        lock["nodeIndex"] = node;
        out_.value(lock);
      }
    }
    out_.endArray();
  }

  void writeResults() {
    const SolveOutcome& outcome = project_.outcome;
    out_.key("results");
    out_.beginObject();
    writeLocks("locks", project_.solvedLocks);
    member("resultEvIp", outcome.evIp);
    member("resultEvOop", outcome.evOop);
    member("resultExploitability", outcome.exploitability);
    member("resultIterations", outcome.iterations);
    member("resultStartingPot", outcome.startingPot);
    member("resultsSummary", outcome.summary);
    member("rootActions", jsonOf(outcome.rootActions));
    member("spot", jsonOf(project_.resultCfg));
    member("stalled", outcome.stalled);
    const int nodes = project_.tree.nodeCount();
    out_.key("treeNodeActions");
    out_.beginArray();
    for (int node = 0; node < nodes && !out_.failed(); ++node) writeActions(node);
    out_.endArray();
    out_.key("treeNodeMeta");
    out_.beginArray();
    for (int node = 0; node < nodes && !out_.failed(); ++node) writeMeta(node);
    out_.endArray();
    out_.endObject();
  }

  void writeActions(int node) {
    out_.beginArray();
    for (const ActionMeta& action : project_.tree.record(node).actions) {
      out_.beginObject();
      textMember("actionType", action.action_type);
      member("childIndex", static_cast<int>(action.child_index));
      member("frequency", static_cast<double>(action.frequency));
      textMember("name", action.name);
      out_.endObject();
    }
    out_.endArray();
    advance(1);
  }

  void writeMeta(int node) {
    const NodeMeta record = project_.tree.record(node);
    out_.beginObject();
    textMember("chanceDeal", record.chance_deal);
    member("effectiveStack", project_.tree.effectiveStack());
    member("hasChildren", !record.actions.empty());
    member("investedIp", record.invested_ip);
    member("investedOop", record.invested_oop);
    textMember("nodeType", record.node_type);
    textMember("player", record.player);
    member("pot", record.pot);
    out_.endObject();
    advance(1);
  }

  const Project& project_;
  JsonWriter out_;
  const std::function<void(double)>& progress_;
  double total_ = 0;
  double done_ = 0;
};

}  // namespace

QString writeProject(const Project& project, const QString& path,
                     const std::function<void(double)>& progress) {
  const auto failed = [&](const char* logLine, const QString& text, const QString& why) {
    qWarning() << logLine << path << why;
    return text.arg(why);
  };
  const auto notSaved = [&](const QString& why) {
    return failed("saveProject: commit failed:",
                  QCoreApplication::translate("AppController", "Failed to save file: %1"), why);
  };
  QSaveFile file(path);
  // Unbuffered, so that each write reports what the disk has taken.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
    return failed("saveProject: failed to open:",
                  QCoreApplication::translate("AppController", "Failed to open file: %1"),
                  file.errorString());
  }
  try {
    const velmora_app::FaultScope scope;
    const bool written = DocumentWriter(project, file, progress).write();
    const QString reason = file.errorString();
    if (!written) file.cancelWriting();
    if (!file.commit()) return notSaved(written ? file.errorString() : reason);
  } catch (const std::exception& fault) {
    return notSaved(QString::fromUtf8(fault.what()));
  }
  qInfo() << "Saved project:" << path;
  return {};
}
