// The one object through which the pages reach the solver.
#pragma once

#include <memory>

#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariantList>
#include <QVariantMap>

#include "file_worker.h"
#include "memory_monitor.h"
#include "node_lock_table.h"
#include "node_preparer.h"
#include "project_reader.h"
#include "report_inbox.h"
#include "result_queries.h"
#include "solve_outcome.h"
#include "solve_session.h"
#include "tree_mirror.h"

/// A facade: it leads a solve from the pages' settings map to the finished result and passes
/// everything else on to the classes that know. All of it is of the user-interface thread, and
/// no call throws.
class AppController : public QObject {
  Q_OBJECT
  Q_PROPERTY(QString appDir READ appDir CONSTANT)
  Q_PROPERTY(bool useTbb READ useTbb CONSTANT)
  Q_PROPERTY(int systemThreadCount READ systemThreadCount CONSTANT)
  Q_PROPERTY(QString systemMemoryText READ systemMemoryText CONSTANT)
  Q_PROPERTY(
      QString systemAvailableMemoryText READ systemAvailableMemoryText NOTIFY systemMemoryChanged)
  Q_PROPERTY(qulonglong systemMemoryBytes READ systemMemoryBytes CONSTANT)
  Q_PROPERTY(qulonglong systemAvailableMemoryBytes READ systemAvailableMemoryBytes NOTIFY
                 systemMemoryChanged)
  Q_PROPERTY(QString effectiveAvailableMemoryText READ effectiveAvailableMemoryText NOTIFY
                 systemMemoryChanged)
  Q_PROPERTY(qulonglong effectiveAvailableMemoryBytes READ effectiveAvailableMemoryBytes NOTIFY
                 systemMemoryChanged)
  Q_PROPERTY(QString solveRequiredMemoryText READ solveRequiredMemoryText NOTIFY
                 solveRequiredMemoryChanged)
  Q_PROPERTY(qulonglong solveRequiredMemoryBytes READ solveRequiredMemoryBytes NOTIFY
                 solveRequiredMemoryChanged)
  Q_PROPERTY(bool running READ running NOTIFY runningChanged)
  Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
  Q_PROPERTY(QString statusText READ statusText NOTIFY statusTextChanged)
  Q_PROPERTY(QString resultsSummary READ resultsSummary NOTIFY resultsChanged)
  Q_PROPERTY(int resultStartingPot READ resultStartingPot NOTIFY resultsChanged)
  Q_PROPERTY(int resultIterations READ resultIterations NOTIFY resultsChanged)
  Q_PROPERTY(double resultExploitability READ resultExploitability NOTIFY resultsChanged)
  Q_PROPERTY(double resultEvOop READ resultEvOop NOTIFY resultsChanged)
  Q_PROPERTY(double resultEvIp READ resultEvIp NOTIFY resultsChanged)
  Q_PROPERTY(QVariantList rootActions READ rootActions NOTIFY resultsChanged)
  Q_PROPERTY(qulonglong resultsReclaimableMemoryBytes READ resultsReclaimableMemoryBytes NOTIFY
                 resultsChanged)
  Q_PROPERTY(bool developerMode READ developerMode CONSTANT)
  Q_PROPERTY(double fileProgress READ fileProgress NOTIFY fileProgressChanged)

 public:
  explicit AppController(QObject* parent = nullptr);
  /// With memory figures of the caller's.
  explicit AppController(MemoryMonitor::Sources memorySources, QObject* parent = nullptr);

  QString appDir() const;
  bool useTbb() const { return false; }
  int systemThreadCount() const { return systemThreadCount_; }
  QString systemMemoryText() const { return memory_.systemText(); }
  QString systemAvailableMemoryText() const { return memory_.availableText(); }
  qulonglong systemMemoryBytes() const { return memory_.systemBytes(); }
  qulonglong systemAvailableMemoryBytes() const { return memory_.availableBytes(); }
  QString effectiveAvailableMemoryText() const { return memoryText(memory_.effectiveAvailable()); }
  qulonglong effectiveAvailableMemoryBytes() const { return memory_.effectiveAvailable(); }
  QString solveRequiredMemoryText() const { return memory_.requiredText(); }
  qulonglong solveRequiredMemoryBytes() const { return memory_.requiredBytes(); }
  bool running() const { return running_; }
  double progress() const { return progress_; }
  QString statusText() const { return statusText_; }
  QString resultsSummary() const { return outcome_.summary; }
  int resultStartingPot() const { return outcome_.startingPot; }
  int resultIterations() const { return outcome_.iterations; }
  double resultExploitability() const { return outcome_.exploitability; }
  double resultEvOop() const { return outcome_.evOop; }
  double resultEvIp() const { return outcome_.evIp; }
  QVariantList rootActions() const { return outcome_.rootActions; }
  qulonglong resultsReclaimableMemoryBytes() const { return memory_.reclaimableBytes(); }
  bool developerMode() const { return developerMode_; }
  /// 0..1 while a file is worked on in the background, else -1.
  double fileProgress() const { return fileWorker_.progress(); }

  /// A solve of nothing, which is refused for its board.
  Q_INVOKABLE void startSolve();
  /// Starts the solve that a solve configuration map describes. A refusal is told by `statusText`.
  Q_INVOKABLE void startSolveWithConfig(const QVariantMap& cfg);
  /// Solves the latest spot again with the node locks in force.
  Q_INVOKABLE void reSolveWithNodeLocks();
  Q_INVOKABLE void cancelSolve();
  /// Drops the result, the node locks and the settings of the latest solve.
  Q_INVOKABLE void clearResults();
  /// Answers by `solveRequiredMemoryChanged`.
  Q_INVOKABLE void requestSolveMemoryEstimate(const QVariantMap& cfg);
  /// The solves of the last 52 weeks as the cells of a calendar, a week after the other from Monday
  /// to Sunday: "isPadding", "date" (ISO), "isFuture", "solves", "avgIterations" and
  /// "avgExploitability" (chips).
  Q_INVOKABLE QVariantList solveActivityGridLastYear();
  Q_INVOKABLE int solvesToday();
  /// Counts a trainer hand. `evLoss` is in chips, not a number for a hand without a mistake.
  Q_INVOKABLE void recordPlayVsSolutionHand(bool isMistake, double evLoss);
  /// "totalHands", "totalMistakes", "totalAccuracyPct" (0..100), "totalAvgEvLoss" (chips a hand),
  /// and the same of this day under "today...".
  Q_INVOKABLE QVariantMap playVsSolutionStats();
  Q_INVOKABLE void clearPlayVsSolutionStats();
  Q_INVOKABLE void openLicensesFolder();
  Q_INVOKABLE void openThirdPartyNotices();
  Q_INVOKABLE QString readTextResource(const QString& path);
  /// Writes the spot, its result and the answers that were given about it to a project file. True
  /// when the file stands on disk.
  Q_INVOKABLE bool saveProject(const QUrl& fileUrl, const QVariantMap& projectState);
  /// Takes result, answers, locks and settings from a project file, or leaves everything as it was.
  /// "ok", "error", "project" (what `saveProject` was given) and "hasResults".
  Q_INVOKABLE QVariantMap loadProject(const QUrl& fileUrl);
  /// The same without keeping the window waiting for the file. They answer by `projectSaved` and
  /// `projectLoaded`. One file is worked on at a time; a second is refused.
  Q_INVOKABLE void saveProjectInBackground(const QUrl& fileUrl, const QVariantMap& projectState);
  Q_INVOKABLE void loadProjectInBackground(const QUrl& fileUrl);
  Q_INVOKABLE QVariantMap saveTextFile(const QUrl& fileUrl, const QString& text);
  Q_INVOKABLE QVariantMap readTextFile(const QUrl& fileUrl);
  Q_INVOKABLE void setNodeLock(int nodeIndex, const QString& handLabel169, int actionIndex,
                               double actionProb);
  Q_INVOKABLE void clearNodeLocks(int nodeIndex);
  Q_INVOKABLE QVariantList nodeLocks(int nodeIndex);
  Q_INVOKABLE int treeNodeCount();
  Q_INVOKABLE QVariantMap nodeMeta(int nodeIndex);
  Q_INVOKABLE QVariantList nodeActions(int nodeIndex);
  /// One map for each action: "name", "actionType", "frequency", "combos" (range weight that plays
  /// it), "equity" (0..1, not a number if unknown) and "ev" (chips).
  Q_INVOKABLE QVariantList nodeActionStats(int nodeIndex);
  /// Chips by action of one hand of the player who acts.
  Q_INVOKABLE QVariantList nodePocketActionEvs(int nodeIndex, const QString& player,
                                               const QString& c1, const QString& c2);
  /// "winner" ("OOP", "IP", "TIE" or "UNKNOWN"), "oopStrength" and "ipStrength".
  Q_INVOKABLE QVariantMap showdownWinner(const QString& boardText, const QString& oopText,
                                         const QString& ipText);
  /// By hand label "weights", "dominantActionTypes" and "actionProbs"; "actionNames" and
  /// "actionTypeList". The weights are those of the range.
  Q_INVOKABLE QVariantMap nodeHandStrategy(int nodeIndex);
  /// The same weighted by how often the hands get to the node, of one hand category or, with an
  /// empty name, of all hands.
  Q_INVOKABLE QVariantMap nodeHandStrategyReach169(int nodeIndex, const QString& bucketName);
  /// The hands of the player who acts, the best first: "c1", "c2", "weight" (reach times range
  /// weight), "ev" (chips), "actionEvs", "buckets" (category names) and "actionProbs".
  Q_INVOKABLE QVariantList nodeHandCombos(int nodeIndex);
  /// The hands that a player can hold at a node of any kind: "c1", "c2" and "weight".
  Q_INVOKABLE QVariantList nodeSeatHandCombos(int nodeIndex, const QString& player);
  /// "name", "displayName", "combos" (range weight) and "actionProbs" of each hand category.
  Q_INVOKABLE QVariantList nodeHandBuckets(int nodeIndex);
  /// Computes what the calls above need for a node away from the window's thread, and answers by
  /// `nodeAnswersReady`; then they are quick. The node asked for last is the only one that counts.
  Q_INVOKABLE void prepareNodeAnswers(int nodeIndex);

 signals:
  void runningChanged();
  void progressChanged();
  void statusTextChanged();
  void resultsChanged();
  void solveStatsChanged();
  void playVsSolutionStatsChanged();
  void systemMemoryChanged();
  void solveRequiredMemoryChanged();
  void nodeAnswersReady(int nodeIndex);
  void fileProgressChanged();
  /// `error` tells why it is not `ok`.
  void projectSaved(bool ok, const QString& error);
  /// `answer` is that of `loadProject`.
  void projectLoaded(const QVariantMap& answer);

 private:
  void setRunning(bool running);
  void setProgress(double progress);
  void setStatus(const QString& text);

  /// What a project file gets, with the answers that were given so far.
  Project projectWith(const QVariantMap& state);
  /// Replaces everything by a project that was read.
  QVariantMap adopt(const ProjectReading& reading, const QString& path);
  /// Drops what the pages show of a result.
  void dropResult();
  void startSession(const velmora_app::SolveConfig& config);
  void readInbox(const std::shared_ptr<ReportInbox>& inbox);
  void handleSolveProgress(const velmora_app::SolveProgress& report);

  bool running_ = false;
  double progress_ = 0;
  QString statusText_;
  SolveOutcome outcome_;
  TreeMirror tree_;
  NodeLockTable nodeLockTable_;
  QVariantMap lastUiCfg_;  ///< Of the latest start, refused or not.
  ResultQueries results_{[this] { return session_.solved_spot(); }, tree_};
  NodePreparer preparer_;
  const bool developerMode_;
  const int systemThreadCount_;
  MemoryMonitor memory_;
  FileWorker fileWorker_;
  std::shared_ptr<ReportInbox> inbox_;  ///< Of the latest run.
  /// Last, so that it goes first: it waits for its run, whose reports are still posted here.
  velmora_app::SolveSession session_;
};
