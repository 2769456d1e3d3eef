// The one object through which the pages reach the solver.
#pragma once

#include <algorithm>
#include <limits>
#include <memory>

#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariantList>
#include <QVariantMap>

#include "background.h"
#include "draft.h"
#include "project.h"
#include "project_reader.h"
#include "report_inbox.h"
#include "results/node_answers.h"
#include "solve_session.h"
#include "system/memory_monitor.h"

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
  Q_PROPERTY(int iteration READ iteration NOTIFY statusTextChanged)
  Q_PROPERTY(double exploitability READ exploitability NOTIFY statusTextChanged)
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
  Q_PROPERTY(NodeAnswers* answers READ answers CONSTANT)
  Q_PROPERTY(double fileProgress READ fileProgress NOTIFY fileProgressChanged)
  Q_PROPERTY(bool estimatePending READ estimatePending NOTIFY estimatePendingChanged)
  Q_PROPERTY(int resultRevision READ resultRevision NOTIFY resultsChanged)
  Q_PROPERTY(QString resultBoard READ resultBoard NOTIFY resultsChanged)
  Q_PROPERTY(double resultRakePercent READ resultRakePercent NOTIFY resultsChanged)
  Q_PROPERTY(double resultRakeCap READ resultRakeCap NOTIFY resultsChanged)
  Q_PROPERTY(bool resultStalled READ resultStalled NOTIFY resultsChanged)
  Q_PROPERTY(bool resultHasTables READ resultHasTables NOTIFY resultTablesChanged)
  Q_PROPERTY(bool resultUnsaved READ resultUnsaved NOTIFY resultUnsavedChanged)
  Q_PROPERTY(int lockCount READ lockCount NOTIFY locksChanged)
  Q_PROPERTY(bool locksPending READ locksPending NOTIFY locksChanged)
  Q_PROPERTY(QVariantMap runSettings READ runSettings NOTIFY runStarted)
  Q_PROPERTY(QString lastRunOutcome READ lastRunOutcome NOTIFY lastRunChanged)
  Q_PROPERTY(QString lastRunText READ lastRunText NOTIFY lastRunChanged)

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
  /// The figures of `statusText` while a run iterates. The iteration counts from 1, the
  /// exploitability is in chips. 0 and not a number where the text has none, and the latter also
  /// before the first measure.
  int iteration() const { return iteration_; }
  double exploitability() const { return exploitability_; }
  QString resultsSummary() const { return project_.outcome.summary; }
  int resultStartingPot() const { return project_.outcome.startingPot; }
  int resultIterations() const { return project_.outcome.iterations; }
  double resultExploitability() const { return project_.outcome.exploitability; }
  double resultEvOop() const { return project_.outcome.evOop; }
  double resultEvIp() const { return project_.outcome.evIp; }
  QVariantList rootActions() const { return project_.outcome.rootActions; }
  qulonglong resultsReclaimableMemoryBytes() const { return memory_.reclaimableBytes(); }
  bool developerMode() const { return developerMode_; }
  /// What the pages ask of a node; the queries below pass on to it.
  NodeAnswers* answers() { return &answers_; }
  /// 0..1 while a file is worked on in the background, else -1.
  double fileProgress() const { return std::max(reading_.progress(), writing_.progress()); }
  /// True until the latest requested memory estimate has arrived.
  bool estimatePending() const { return memory_.estimatePending(); }
  /// Goes up with each new or dropped result.
  int resultRevision() const { return resultRevision_; }
  /// The spot of the solve that made the result, whatever Setup shows by now.
  QString resultBoard() const;
  double resultRakePercent() const { return project_.resultCfg.value("rake_percent").toDouble(); }
  double resultRakeCap() const { return project_.resultCfg.value("rake_cap").toDouble(); }
  /// Whether its locks ended the solve above its target.
  bool resultStalled() const { return project_.outcome.stalled; }
  /// False for a result whose solver is gone, as after a load: then there are only the answers
  /// that were given before.
  bool resultHasTables() const { return answers_.spot().solver != nullptr; }
  /// Whether the result or its locks have changed since they were last saved or loaded.
  bool resultUnsaved() const { return resultUnsaved_; }
  int lockCount() const { return project_.nodeLocks.count(); }
  /// Whether the locks are others than those the result was solved with.
  bool locksPending() const { return !(project_.nodeLocks == project_.solvedLocks); }
  /// The solve configuration map of the latest run.
  QVariantMap runSettings() const { return project_.lastUiCfg; }
  /// How the latest run ended: "Completed", "Cancelled", "Failed" or "Refused"; empty while one is
  /// under way and before the first.
  QString lastRunOutcome() const { return lastRunOutcome_; }
  /// Why it ended so.
  QString lastRunText() const { return lastRunText_; }

  /// A solve of nothing, which is refused for its board.
  Q_INVOKABLE void startSolve();
  /// Starts the solve that a solve configuration map describes. `statusText` holds a refusal.
  Q_INVOKABLE void startSolveWithConfig(const QVariantMap& cfg);
  /// Solves the latest spot again with the node locks in force.
  Q_INVOKABLE void reSolveWithNodeLocks();
  /// The same in the memory of the result on view: its solver's tables go first, and of the result
  /// only the answers that were given so far stay.
  Q_INVOKABLE void startSolveInFreedMemory(const QVariantMap& cfg);
  Q_INVOKABLE void cancelSolve();
  /// Cancels the run under way, and nothing that it still gives is taken.
  Q_INVOKABLE void abandonRun();
  /// Whether a solve configuration map describes the spot of the result: the same tree and rake.
  Q_INVOKABLE bool isResultSpot(const QVariantMap& cfg) const;
  /// Whether locks exist that were set on the tree that the map describes.
  Q_INVOKABLE bool locksFit(const QVariantMap& cfg) const;
  /// The project state that the result was solved from, without `threadCount`.
  Q_INVOKABLE QVariantMap resultProjectState() const;
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
  /// Keeps the spot under edit on disk until `dropDraft`, in case the program ends in another way.
  Q_INVOKABLE void keepDraft(const QVariantMap& projectState) { draft_.keep(projectState); }
  Q_INVOKABLE void dropDraft() { draft_.drop(); }
  /// What an earlier run kept and did not drop: "savedAt" (ISO) and "project"; empty if nothing.
  Q_INVOKABLE QVariantMap draftLeftBehind() const { return draft_.leftBehind(); }
  Q_INVOKABLE QVariantMap saveTextFile(const QUrl& fileUrl, const QString& text);
  Q_INVOKABLE QVariantMap readTextFile(const QUrl& fileUrl);
  /// See file_places.h.
  Q_INVOKABLE QVariantList standardFolders();
  Q_INVOKABLE QString fileKind(const QUrl& fileUrl);
  Q_INVOKABLE void setNodeLock(int nodeIndex, const QString& handLabel169, int actionIndex,
                               double actionProb);
  Q_INVOKABLE void clearNodeLocks(int nodeIndex);
  Q_INVOKABLE QVariantList nodeLocks(int nodeIndex);
  /// Whether the locks of a node are others than those the result was solved with.
  Q_INVOKABLE bool nodeLocksPending(int nodeIndex) const;
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
  /// "name", "displayName", "combos" (range weight) and "actionProbs" of each hand category. Where
  /// the node has locks that are not solved yet and the solver is there, its hands play them.
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
  void estimatePendingChanged();
  void resultTablesChanged();
  void resultUnsavedChanged();
  /// The locks of a node changed; -1 for those of all nodes.
  void locksChanged(int nodeIndex);
  void lastRunChanged();
  /// A solve of `cfg` begins, or is refused.
  void runStarted(const QVariantMap& cfg);
  /// `outcome` and `text` are those of `lastRunOutcome` and `lastRunText`.
  void runEnded(const QString& outcome, const QString& text, int iterations);
  /// The solve of `cfg` fits into the memory only if the solver of the result on view goes. Nothing
  /// was started.
  void memoryWanted(const QVariantMap& cfg, const QString& needed, const QString& available);
  void nodeAnswersReady(int nodeIndex);
  /// A node's answers could not be computed; `error` says why.
  void nodeAnswersFailed(int nodeIndex, const QString& error);
  void fileProgressChanged();
  /// `error` says why it is not `ok`.
  void projectSaved(bool ok, const QString& error);
  /// `answer` is that of `loadProject`.
  void projectLoaded(const QVariantMap& answer);

 private:
  void setRunning(bool running);
  void setProgress(double progress);
  void setStatus(const QString& text, int iteration = 0,
                 double exploitability = std::numeric_limits<double>::quiet_NaN());

  void setResultUnsaved(bool unsaved);

  /// What a project file gets, with the answers that were given so far.
  Project projectWith(const QVariantMap& state) const;
  /// Replaces everything by a project that was read.
  QVariantMap adopt(const ProjectReading& reading, const QString& path);
  bool hasResult() const;
  /// Drops the result with all that belongs to it.
  void dropResult();
  /// Emits all signals of the result and its locks.
  void announceResult();
  /// Drops the solver of the result and keeps what it has answered.
  void dropTables();
  /// Starts the run of the latest settings once its memory is known. `freed` bytes were given up
  /// for it.
  void startWithMemoryKnown(quint64 freed);
  void startSession();
  void endRun(const QString& outcome, const QString& text);
  void readInbox(const std::shared_ptr<ReportInbox>& inbox);
  void handleSolveProgress(const velmora_app::SolveProgress& report);
  void takeResult(const velmora_app::SolveResult& result);

  bool running_ = false;
  double progress_ = 0;
  QString statusText_;
  int iteration_ = 0;
  double exploitability_ = std::numeric_limits<double>::quiet_NaN();
  QString lastRunOutcome_;
  QString lastRunText_;

  /// The result on view with all that belongs to it, and the settings of the latest start, refused
  /// or not.
  Project project_;
  NodeAnswers answers_{project_};
  int resultRevision_ = 0;
  bool resultUnsaved_ = false;

  // The latest run.
  NodeLockTable runLocks_;       ///< In force in the run.
  bool awaitsEstimate_ = false;  ///< It starts when its memory is known.
  bool awaitsOldRun_ = false;    ///< It starts when an abandoned run has ended.

  const bool developerMode_;
  const int systemThreadCount_;
  MemoryMonitor memory_;
  Background reading_;  ///< A project file. One is read or written at a time.
  Background writing_;
  Draft draft_;
  std::shared_ptr<ReportInbox> inbox_;  ///< Of the run under way; empty if it was abandoned.
  /// Last, so that it goes first: it waits for its run, whose reports are still posted here.
  velmora_app::SolveSession session_;
};
