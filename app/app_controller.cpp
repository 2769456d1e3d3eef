#include "app_controller.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

#include <QCoreApplication>
#include <QDate>
#include <QDebug>
#include <QDesktopServices>
#include <QTimer>

#include "fault_scope.h"
#include "project_writer.h"
#include "results/equity.h"
#include "results/result_variants.h"
#include "services/solve_activity.h"
#include "services/trainer_stats.h"
#include "solve_request.h"
#include "spot.h"
#include "spot_config.h"
#include "system/developer_mode.h"
#include "system/file_places.h"
#include "system/processor_count.h"
#include "text_files.h"

using velmora_app::SolveConfig;
using velmora_app::SolveProgress;
using velmora_app::SolveResult;

namespace {

/// Intermediate reports are shown, and logged, no more often than a screen changes.
constexpr int kReportIntervalMilliseconds = 16;

void openBesideExecutable(const QString& path) {
  QDesktopServices::openUrl(
      QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + QLatin1Char('/') + path));
}

/// The path of a project to be saved; a refusal is logged.
LocalPath pathToSave(const QUrl& fileUrl) {
  LocalPath file = localPathOf(fileUrl);
  if (!fileUrl.isValid() || !fileUrl.isLocalFile()) {
    qWarning() << "saveProject: invalid/non-local URL:" << fileUrl;
  }
  return file;
}

/// A project with the answers about the root among its others: they are in every file. A solver
/// that is dropped meanwhile lives on only until the query under way has ended.
Project withRootAnswers(Project project, const std::weak_ptr<const velmora::DiscountedCfr>& solver,
                        const std::weak_ptr<const velmora::Game>& game,
                        const std::shared_ptr<velmora_app::ActionValues>& values) {
  try {
    const velmora_app::FaultScope scope;
    const auto spot = [&] { return velmora_app::SolvedSpot{game.lock(), solver.lock()}; };
    ResultQueries queries(spot, project.tree, values);
    queries.caches() = project.caches;
    queries.askAll(0);
    project.caches = queries.caches();
  } catch (const std::exception& fault) {
    qWarning() << "saveProject: the root gives no answers:" << fault.what();
  }
  return project;
}

QVariantMap refusedLoad(const QString& error) {
  return {{"ok", false}, {"error", error}, {"project", QVariantMap()}, {"hasResults", false}};
}

}  // namespace

AppController::AppController(QObject* parent)
    : AppController(MemoryMonitor::systemSources(), parent) {}

AppController::AppController(MemoryMonitor::Sources memorySources, QObject* parent)
    : QObject(parent),
      developerMode_(developerModeOfEnvironment()),
      systemThreadCount_(usableProcessorCount()),
      memory_(std::move(memorySources)) {
  connect(&memory_, &MemoryMonitor::systemMemoryChanged, this, &AppController::systemMemoryChanged);
  connect(&memory_, &MemoryMonitor::solveRequiredMemoryChanged, this,
          &AppController::solveRequiredMemoryChanged);
  connect(&memory_, &MemoryMonitor::estimatePendingChanged, this,
          &AppController::estimatePendingChanged);
  connect(&memory_, &MemoryMonitor::estimateArrived, this, [this] {
    if (awaitsEstimate_) startWithMemoryKnown(0);
  });
  connect(&preparer_, &NodePreparer::ready, this,
          [this](int node, const ResultCaches& answers, const QString& error) {
            results_.take(node, answers);
            if (!error.isEmpty()) emit nodeAnswersFailed(node, error);
            emit nodeAnswersReady(node);
          });
  connect(&fileWorker_, &FileWorker::progressChanged, this, &AppController::fileProgressChanged);
  setStatus(tr("Ready"));
}

QString AppController::appDir() const {
  return QCoreApplication::applicationDirPath();
}

void AppController::setRunning(bool running) {
  if (running == running_) return;
  running_ = running;
  emit runningChanged();
}

void AppController::setProgress(double progress) {
  if (progress == progress_) return;
  progress_ = progress;
  emit progressChanged();
}

void AppController::setStatus(const QString& text, int iteration, double exploitability) {
  if (text == statusText_) return;
  statusText_ = text;
  iteration_ = iteration;
  exploitability_ = exploitability;
  emit statusTextChanged();
}

void AppController::setResultUnsaved(bool unsaved) {
  if (unsaved == resultUnsaved_) return;
  resultUnsaved_ = unsaved;
  emit resultUnsavedChanged();
}

QString AppController::resultBoard() const {
  return normalizedBoard(resultCfg_.value("board").toString());
}

bool AppController::hasResult() const {
  return outcome_.iterations > 0 || tree_.nodeCount() > 0 || !outcome_.rootActions.isEmpty();
}

void AppController::dropResult() {
  outcome_ = {};
  tree_.clear();
  resultCfg_.clear();
  results_.caches().clear();
  nodeLockTable_.clear();
  solvedLocks_.clear();
  ++resultRevision_;
  dropTables();
}

void AppController::dropTables() {
  preparer_.giveUp();
  solved_ = {};
  memory_.noteResultsDropped();
}

void AppController::announceResult() {
  emit locksChanged(-1);
  emit resultTablesChanged();
  emit systemMemoryChanged();
  emit resultsChanged();
}

bool AppController::isResultSpot(const QVariantMap& cfg) const {
  return hasResult() && velmora_app::same_spot(makeSolveConfig(cfg), makeSolveConfig(resultCfg_));
}

bool AppController::locksFit(const QVariantMap& cfg) const {
  return nodeLockTable_.count() > 0 && hasResult() &&
         velmora_app::same_tree(makeSolveConfig(cfg), makeSolveConfig(resultCfg_));
}

QVariantMap AppController::resultProjectState() const {
  return projectStateOfSolveConfigMap(resultCfg_);
}

void AppController::startSolve() {
  startSolveWithConfig({});
}

void AppController::startSolveWithConfig(const QVariantMap& cfg) {
  if (running_) return;
  fileWorker_.giveUpReading();
  setStatus(tr("Starting..."));
  qInfo().noquote() << describeSolveRequest(cfg);
  lastUiCfg_ = cfg;
  lastRunOutcome_.clear();
  lastRunText_.clear();
  emit lastRunChanged();

  // Step 1. Refuse what can't be solved.
  if (const QString refusal = refusalOf(cfg); !refusal.isEmpty()) {
    emit runStarted(cfg);
    setStatus(refusal);
    endRun("Refused", refusal);
    return;
  }
  runLocks_ = cfg.value("apply_node_locks", false).toBool() ? nodeLockTable_ : NodeLockTable();

  // Step 2. Only an estimate of this very spot says whether the result on view may keep its memory.
  if (resultHasTables() && !memory_.requiredFor(makeSolveConfig(cfg))) {
    awaitsEstimate_ = true;
    setStatus(tr("Estimating the memory..."));
    setRunning(true);
    memory_.requestEstimate(cfg);
    return;
  }
  startWithMemoryKnown(0);
}

void AppController::startSolveInFreedMemory(const QVariantMap& cfg) {
  if (running_) return;
  lastUiCfg_ = cfg;
  runLocks_ = cfg.value("apply_node_locks", false).toBool() ? nodeLockTable_ : NodeLockTable();
  const quint64 freed = memory_.reclaimableBytes();
  dropTables();
  emit resultTablesChanged();
  emit systemMemoryChanged();
  startWithMemoryKnown(freed);
}

void AppController::startWithMemoryKnown(quint64 freed) {
  const SolveConfig config = makeSolveConfig(lastUiCfg_);
  const std::optional<quint64> estimate = memory_.requiredFor(config);
  if (awaitsEstimate_ && !estimate) {
    memory_.requestEstimate(lastUiCfg_);  // The pages have asked for another spot's meanwhile.
    return;
  }
  awaitsEstimate_ = false;

  // Step 3. An unknown figure is in nobody's way: the run looks at the memory itself.
  const quint64 before = memory_.availableBytes();
  memory_.refreshAvailable();
  const quint64 required = estimate.value_or(0);
  // What was just given up may not have come back to the system yet.
  const quint64 available =
      freed == 0 ? memory_.availableBytes() : std::max(memory_.availableBytes(), before + freed);
  if (required != 0 && memory_.availableBytes() != 0 && available <= required) {
    const QString needed = memoryText(required);
    if (resultHasTables() && memory_.effectiveAvailable() > required) {
      setStatus(tr("Not started: the solve needs the memory of the result on view"));
      setRunning(false);
      emit memoryWanted(lastUiCfg_, needed, memory_.availableText());
      return;
    }
    const QString text =
        tr("Not enough RAM to solve: %1 needed, %2 available").arg(needed, memoryText(available));
    emit runStarted(lastUiCfg_);
    setStatus(text);
    endRun("Refused", text);
    return;
  }
  memory_.noteSolveStarted(required);

  // Step 4. Go.
  emit runStarted(lastUiCfg_);
  setProgress(0);
  setRunning(true);
  startSession();
}

void AppController::startSession() {
  SolveConfig config = makeSolveConfig(lastUiCfg_);
  config.node_locks = runLocks_.entries();
  const auto inbox = std::make_shared<ReportInbox>();
  // On the worker's thread.
  const auto post = [this, inbox](const SolveProgress& report) {
    if (!inbox->put(report)) return;
    QMetaObject::invokeMethod(
        this, [this, inbox] { readInbox(inbox); }, Qt::QueuedConnection);
  };
  inbox_ = inbox;
  try {
    awaitsOldRun_ = !session_.start(config, post);
    if (awaitsOldRun_) {
      inbox_.reset();
      setStatus(tr("Waiting for the cancelled solve to stop..."));
    }
  } catch (const std::exception& fault) {
    SolveProgress report;
    report.status = std::string("Error: ") + fault.what();
    report.result.emplace().error = fault.what();
    handleSolveProgress(report);
  }
}

void AppController::abandonRun() {
  if (!running_) return;
  session_.cancel();
  inbox_.reset();
  awaitsEstimate_ = awaitsOldRun_ = false;
  setProgress(0);
  setStatus(tr("Cancelled"));
  endRun("Cancelled", {});
}

void AppController::endRun(const QString& outcome, const QString& text) {
  lastRunOutcome_ = outcome;
  lastRunText_ = text;
  emit lastRunChanged();
  emit runEnded(outcome, text, outcome == "Completed" ? outcome_.iterations : 0);
  setRunning(false);  // Last: it may start the next run.
}

void AppController::readInbox(const std::shared_ptr<ReportInbox>& inbox) {
  const auto report = inbox->take();
  if (!report) return;
  if (inbox != inbox_) {
    if (!report->result) return;
    // An abandoned run has ended: nobody wants what it made, and its successor can start. If that
    // one runs already, the session holds nothing but what is its own.
    if (!inbox_) session_.clear();
    if (awaitsOldRun_) startSession();
    return;
  }
  if (!report->result) {
    QTimer::singleShot(kReportIntervalMilliseconds, this, [this, inbox] { readInbox(inbox); });
  }
  handleSolveProgress(*report);
}

void AppController::handleSolveProgress(const SolveProgress& report) {
  qInfo().noquote().nospace() << "UI solve progress: p=" << report.progress
                              << " status=" << QString::fromStdString(report.status)
                              << " has_result=" << report.result.has_value();
  setProgress(report.progress);
  const bool measured = report.iteration >= velmora_app::kCheckInterval;
  setStatus(QString::fromStdString(report.status), static_cast<int>(report.iteration),
            measured ? static_cast<double>(report.exploitability)
                     : std::numeric_limits<double>::quiet_NaN());
  if (!report.result) return;  // A run ends with its result, even if its thread is gone by now.

  const SolveResult& result = *report.result;
  inbox_.reset();
  if (result.success) {
    takeResult(result);
  } else if (!hasResult()) {
    outcome_ = outcomeOf(result);
    emit resultsChanged();
  }
  // No report follows this one. The session may need a moment more to put its thread away.
  if (result.success) {
    endRun("Completed", {});
  } else if (result.error == "Cancelled") {
    endRun("Cancelled", {});
  } else {
    endRun("Failed", QString::fromStdString(result.error));
  }
}

void AppController::takeResult(const SolveResult& result) {
  // Locks are by node index, so they live on where the new tree is the old one.
  const bool sameTree = hasResult() && velmora_app::same_tree(makeSolveConfig(lastUiCfg_),
                                                              makeSolveConfig(resultCfg_));
  NodeLockTable locks = sameTree ? nodeLockTable_ : NodeLockTable();
  dropResult();
  outcome_ = outcomeOf(result);
  SolveActivity::record(QDate::currentDate(), outcome_.iterations, outcome_.exploitability);
  emit solveStatsChanged();
  tree_.set(result.nodes, result.effective_stack);
  resultCfg_ = lastUiCfg_;
  nodeLockTable_ = std::move(locks);
  solvedLocks_ = runLocks_;
  solved_ = session_.solved_spot();
  session_.clear();
  memory_.noteResultsHeld();
  setResultUnsaved(true);
  qInfo().noquote().nospace() << "UI about to emit resultsChanged: root_actions="
                              << outcome_.rootActions.size()
                              << " summary.len=" << outcome_.summary.size();
  announceResult();
  qInfo().noquote() << "UI emitted resultsChanged";
}

void AppController::reSolveWithNodeLocks() {
  if (running_) return;
  if (!hasResult() || resultCfg_.isEmpty()) {
    setStatus(tr("No previous solve config (solve once first)"));
    return;
  }
  QVariantMap cfg = resultCfg_;
  cfg["apply_node_locks"] = true;
  startSolveWithConfig(cfg);
}

void AppController::cancelSolve() {
  if (awaitsEstimate_ || awaitsOldRun_) {
    abandonRun();
    return;
  }
  session_.cancel();
  setStatus(tr("Cancelling..."));
}

void AppController::clearResults() {
  abandonRun();
  fileWorker_.giveUpReading();
  session_.clear();
  dropResult();
  lastUiCfg_.clear();
  setProgress(0);
  setStatus(tr("Ready"));
  memory_.reset();
  setResultUnsaved(false);
  announceResult();
}

void AppController::requestSolveMemoryEstimate(const QVariantMap& cfg) {
  memory_.requestEstimate(cfg);
}

QVariantList AppController::solveActivityGridLastYear() {
  return SolveActivity::gridOfYear(QDate::currentDate());
}

int AppController::solvesToday() {
  return SolveActivity::solvesOn(QDate::currentDate());
}

void AppController::recordPlayVsSolutionHand(bool isMistake, double evLoss) {
  TrainerStats::record(QDate::currentDate(), isMistake, evLoss);
  emit playVsSolutionStatsChanged();
}

QVariantMap AppController::playVsSolutionStats() {
  return TrainerStats::figures(QDate::currentDate());
}

void AppController::clearPlayVsSolutionStats() {
  TrainerStats::clear();
  emit playVsSolutionStatsChanged();
}

void AppController::openLicensesFolder() {
  openBesideExecutable("licenses");
}

void AppController::openThirdPartyNotices() {
  openBesideExecutable("licenses/THIRD_PARTY_NOTICES.txt");
}

QString AppController::readTextResource(const QString& path) {
  return ::readTextResource(path);
}

Project AppController::projectWith(const QVariantMap& state) {
  const bool result = hasResult();
  return {state,
          result,
          outcome_,
          tree_,
          results_.caches(),
          resultCfg_,
          solvedLocks_,
          nodeLockTable_,
          result ? resultCfg_ : lastUiCfg_};
}

bool AppController::saveProject(const QUrl& fileUrl, const QVariantMap& projectState) {
  const LocalPath file = pathToSave(fileUrl);
  if (!file.error.isEmpty()) return false;
  const Project project = withRootAnswers(projectWith(projectState), solved_.solver, solved_.game,
                                          results_.actionValues());
  results_.caches() = project.caches;
  const bool saved = writeProject(project, file.path).isEmpty();
  if (saved) setResultUnsaved(false);
  return saved;
}

void AppController::saveProjectInBackground(const QUrl& fileUrl, const QVariantMap& projectState) {
  fileWorker_.giveUpReading();
  if (fileWorker_.busy()) {
    emit projectSaved(false, tr("Another file is still being saved or opened"));
    return;
  }
  const LocalPath file = pathToSave(fileUrl);
  if (!file.error.isEmpty()) {
    emit projectSaved(false, file.error);
    return;
  }
  // What changes from here on is not in the file.
  const bool unsaved = resultUnsaved_;
  setResultUnsaved(false);
  const auto error = std::make_shared<QString>();
  fileWorker_.run(
      FileWorker::Kind::kWriting,
      [project = projectWith(projectState), path = file.path,
       solver = std::weak_ptr(solved_.solver), game = std::weak_ptr(solved_.game),
       values = results_.actionValues(), error](const FileWorker::Progress& progress) {
        *error = writeProject(withRootAnswers(project, solver, game, values), path, progress);
      },
      [this, error, unsaved](const QString& fault) {
        const QString text = fault.isEmpty() ? *error : tr("Failed to save file: %1").arg(fault);
        if (!text.isEmpty() && unsaved) setResultUnsaved(true);
        emit projectSaved(text.isEmpty(), text);
      });
}

QVariantMap AppController::loadProject(const QUrl& fileUrl) {
  const LocalPath file = localPathOf(fileUrl);
  if (!file.error.isEmpty()) return refusedLoad(file.error);
  fileWorker_.giveUpReading();
  return adopt(readProject(file.path), file.path);
}

void AppController::loadProjectInBackground(const QUrl& fileUrl) {
  fileWorker_.giveUpReading();
  if (fileWorker_.busy()) {
    emit projectLoaded(refusedLoad(tr("Another file is still being saved or opened")));
    return;
  }
  const LocalPath file = localPathOf(fileUrl);
  if (!file.error.isEmpty()) {
    emit projectLoaded(refusedLoad(file.error));
    return;
  }
  const auto reading = std::make_shared<ProjectReading>();
  fileWorker_.run(
      FileWorker::Kind::kReading,
      [reading, path = file.path](const FileWorker::Progress& progress) {
        *reading = readProject(path, progress);
      },
      [this, reading, path = file.path](const QString& fault) {
        emit projectLoaded(fault.isEmpty() ? adopt(*reading, path) : refusedLoad(fault));
      });
}

QVariantMap AppController::adopt(const ProjectReading& reading, const QString& path) {
  if (!reading.error.isEmpty()) return refusedLoad(reading.error);
  const Project& project = reading.project;
  abandonRun();
  session_.clear();
  dropResult();
  outcome_ = project.outcome;
  tree_ = project.tree;
  resultCfg_ = project.resultCfg;
  results_.caches() = project.caches;
  nodeLockTable_ = project.nodeLocks;
  solvedLocks_ = project.solvedLocks;
  lastUiCfg_ = project.lastUiCfg;
  memory_.reset();
  setProgress(0);
  setStatus(tr("Loaded project (%1 strategy nodes, %2 combo nodes)")
                .arg(project.caches.handStrategyCache.size())
                .arg(project.caches.handCombosCache.size()));
  setResultUnsaved(false);
  announceResult();
  qInfo() << "Loaded project:" << path << "hasResults=" << project.hasResults;
  return {{"ok", true},
          {"error", QString()},
          {"file", QUrl::fromLocalFile(path)},
          {"project", project.state},
          {"hasResults", project.hasResults}};
}

QVariantMap AppController::saveTextFile(const QUrl& fileUrl, const QString& text) {
  return ::saveTextFile(fileUrl, text);
}

QVariantMap AppController::readTextFile(const QUrl& fileUrl) {
  return ::readTextFile(fileUrl);
}

QVariantList AppController::standardFolders() {
  return ::standardFolders();
}

QString AppController::fileKind(const QUrl& fileUrl) {
  return ::fileKind(fileUrl);
}

void AppController::setNodeLock(int nodeIndex, const QString& handLabel169, int actionIndex,
                                double actionProb) {
  const QVariantMap meta = tree_.meta(nodeIndex);
  if (meta.value("nodeType") != "decision" || actionIndex < 0 ||
      actionIndex >= tree_.actions(nodeIndex).size()) {
    return;
  }
  nodeLockTable_.set(nodeIndex, handLabel169, actionIndex, actionProb);
  setResultUnsaved(true);
  emit locksChanged(nodeIndex);
}

void AppController::clearNodeLocks(int nodeIndex) {
  if (nodeLockTable_.locksAt(nodeIndex).isEmpty()) return;
  nodeLockTable_.clear(nodeIndex);
  setResultUnsaved(true);
  emit locksChanged(nodeIndex);
}

bool AppController::nodeLocksPending(int nodeIndex) const {
  return nodeLockTable_.locksAt(nodeIndex) != solvedLocks_.locksAt(nodeIndex);
}

QVariantList AppController::nodeLocks(int nodeIndex) {
  return nodeLockTable_.locksAt(nodeIndex);
}

int AppController::treeNodeCount() {
  return tree_.nodeCount();
}

QVariantMap AppController::nodeMeta(int nodeIndex) {
  return tree_.meta(nodeIndex);
}

QVariantList AppController::nodeActions(int nodeIndex) {
  return tree_.actions(nodeIndex);
}

QVariantList AppController::nodeActionStats(int nodeIndex) {
  return results_.nodeActionStats(nodeIndex);
}

QVariantList AppController::nodePocketActionEvs(int nodeIndex, const QString& player,
                                                const QString& c1, const QString& c2) {
  return results_.nodePocketActionEvs(nodeIndex, player, c1, c2);
}

QVariantMap AppController::showdownWinner(const QString& boardText, const QString& oopText,
                                          const QString& ipText) {
  return variantOf(velmora_app::showdown_winner(boardText.toLatin1().toStdString(),
                                                oopText.toLatin1().toStdString(),
                                                ipText.toLatin1().toStdString()));
}

QVariantMap AppController::nodeHandStrategy(int nodeIndex) {
  return results_.nodeHandStrategy(nodeIndex);
}

QVariantMap AppController::nodeHandStrategyReach169(int nodeIndex, const QString& bucketName) {
  return results_.nodeHandStrategyReach169(nodeIndex, bucketName);
}

QVariantList AppController::nodeHandCombos(int nodeIndex) {
  return results_.nodeHandCombos(nodeIndex);
}

QVariantList AppController::nodeSeatHandCombos(int nodeIndex, const QString& player) {
  return results_.nodeSeatHandCombos(nodeIndex, player);
}

QVariantList AppController::nodeHandBuckets(int nodeIndex) {
  return nodeLocksPending(nodeIndex)
             ? results_.nodeHandBuckets(nodeIndex, nodeLockTable_.entriesAt(nodeIndex))
             : results_.nodeHandBuckets(nodeIndex);
}

void AppController::prepareNodeAnswers(int nodeIndex) {
  preparer_.prepare(nodeIndex, solved_, tree_, results_.actionValues(),
                    results_.caches().ofNode(nodeIndex));
}
