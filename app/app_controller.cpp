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

/// Adds the answers about the root, which are in every file.
void completeRoot(ResultCaches& caches, const AnswerSource& source) {
  try {
    const velmora_app::FaultScope scope;
    caches.store(0, source.complete(0, caches.answer(0)));
  } catch (const std::exception& fault) {
    qWarning() << "saveProject: the root gives no answers:" << fault.what();
  }
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
  connect(&answers_, &NodeAnswers::ready, this, [this](int node, const QString& error) {
    if (!error.isEmpty()) emit nodeAnswersFailed(node, error);
    emit nodeAnswersReady(node);
  });
  connect(&reading_, &Background::progressChanged, this, &AppController::fileProgressChanged);
  connect(&writing_, &Background::progressChanged, this, &AppController::fileProgressChanged);
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
  return normalizedBoard(project_.resultCfg.value("board").toString());
}

bool AppController::hasResult() const {
  return project_.outcome.iterations > 0 || project_.tree.nodeCount() > 0 ||
         !project_.outcome.rootActions.isEmpty();
}

void AppController::dropResult() {
  Project dropped = std::exchange(project_, {});
  project_.lastUiCfg = std::move(dropped.lastUiCfg);
  ++resultRevision_;
  dropTables();
}

void AppController::dropTables() {
  answers_.setSpot({});
  memory_.noteResultsDropped();
}

void AppController::announceResult() {
  emit locksChanged(-1);
  emit resultTablesChanged();
  emit systemMemoryChanged();
  emit resultsChanged();
}

bool AppController::isResultSpot(const QVariantMap& cfg) const {
  return hasResult() &&
         velmora_app::same_spot(makeSolveConfig(cfg), makeSolveConfig(project_.resultCfg));
}

bool AppController::locksFit(const QVariantMap& cfg) const {
  return project_.nodeLocks.count() > 0 && hasResult() &&
         velmora_app::same_tree(makeSolveConfig(cfg), makeSolveConfig(project_.resultCfg));
}

QVariantMap AppController::resultProjectState() const {
  return projectStateOfSolveConfigMap(project_.resultCfg);
}

void AppController::startSolve() {
  startSolveWithConfig({});
}

void AppController::startSolveWithConfig(const QVariantMap& cfg) {
  if (running_) return;
  reading_.giveUp();
  setStatus(tr("Starting..."));
  qInfo().noquote() << describeSolveRequest(cfg);
  project_.lastUiCfg = cfg;
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
  runLocks_ = cfg.value("apply_node_locks", false).toBool() ? project_.nodeLocks : NodeLockTable();

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
  project_.lastUiCfg = cfg;
  runLocks_ = cfg.value("apply_node_locks", false).toBool() ? project_.nodeLocks : NodeLockTable();
  const quint64 freed = memory_.reclaimableBytes();
  dropTables();
  emit resultTablesChanged();
  emit systemMemoryChanged();
  startWithMemoryKnown(freed);
}

void AppController::startWithMemoryKnown(quint64 freed) {
  const SolveConfig config = makeSolveConfig(project_.lastUiCfg);
  const std::optional<quint64> estimate = memory_.requiredFor(config);
  if (awaitsEstimate_ && !estimate) {
    memory_.requestEstimate(
        project_.lastUiCfg);  // The pages have asked for another spot's meanwhile.
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
      emit memoryWanted(project_.lastUiCfg, needed, memory_.availableText());
      return;
    }
    const QString text =
        tr("Not enough RAM to solve: %1 needed, %2 available").arg(needed, memoryText(available));
    emit runStarted(project_.lastUiCfg);
    setStatus(text);
    endRun("Refused", text);
    return;
  }
  memory_.noteSolveStarted(required);

  // Step 4. Go.
  emit runStarted(project_.lastUiCfg);
  setProgress(0);
  setRunning(true);
  startSession();
}

void AppController::startSession() {
  SolveConfig config = makeSolveConfig(project_.lastUiCfg);
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
  emit runEnded(outcome, text, outcome == "Completed" ? project_.outcome.iterations : 0);
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
    project_.outcome = outcomeOf(result);
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
  const bool sameTree = hasResult() && velmora_app::same_tree(makeSolveConfig(project_.lastUiCfg),
                                                              makeSolveConfig(project_.resultCfg));
  NodeLockTable locks = sameTree ? project_.nodeLocks : NodeLockTable();
  dropResult();
  project_.outcome = outcomeOf(result);
  SolveActivity::record(QDate::currentDate(), project_.outcome.iterations,
                        project_.outcome.exploitability);
  emit solveStatsChanged();
  project_.tree.set(result.nodes, result.effective_stack);
  project_.resultCfg = project_.lastUiCfg;
  project_.nodeLocks = std::move(locks);
  project_.solvedLocks = runLocks_;
  answers_.setSpot(session_.solved_spot());
  session_.clear();
  memory_.noteResultsHeld();
  setResultUnsaved(true);
  qInfo().noquote().nospace() << "UI about to emit resultsChanged: root_actions="
                              << project_.outcome.rootActions.size()
                              << " summary.len=" << project_.outcome.summary.size();
  announceResult();
  qInfo().noquote() << "UI emitted resultsChanged";
}

void AppController::reSolveWithNodeLocks() {
  if (running_) return;
  if (!hasResult() || project_.resultCfg.isEmpty()) {
    setStatus(tr("No previous solve config (solve once first)"));
    return;
  }
  QVariantMap cfg = project_.resultCfg;
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
  reading_.giveUp();
  session_.clear();
  dropResult();
  project_.lastUiCfg.clear();
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

Project AppController::projectWith(const QVariantMap& state) const {
  Project project = project_;
  project.state = state;
  project.hasResults = hasResult();
  if (project.hasResults) project.lastUiCfg = project.resultCfg;
  return project;
}

bool AppController::saveProject(const QUrl& fileUrl, const QVariantMap& projectState) {
  const LocalPath file = pathToSave(fileUrl);
  if (!file.error.isEmpty()) return false;
  completeRoot(project_.caches, answers_.source());
  const bool saved = writeProject(projectWith(projectState), file.path).isEmpty();
  if (saved) setResultUnsaved(false);
  return saved;
}

void AppController::saveProjectInBackground(const QUrl& fileUrl, const QVariantMap& projectState) {
  reading_.giveUp();
  if (writing_.busy()) {
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
  writing_.run(
      [project = projectWith(projectState), path = file.path, source = answers_.source(),
       error](Background::Job& job) mutable {
        completeRoot(project.caches, source);
        // Also where nobody waits any more: a file is written whole.
        *error = writeProject(project, path, [&job](double done) { job.report(done); });
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
  reading_.giveUp();
  return adopt(readProject(file.path), file.path);
}

void AppController::loadProjectInBackground(const QUrl& fileUrl) {
  reading_.giveUp();
  if (writing_.busy()) {
    emit projectLoaded(refusedLoad(tr("Another file is still being saved or opened")));
    return;
  }
  const LocalPath file = localPathOf(fileUrl);
  if (!file.error.isEmpty()) {
    emit projectLoaded(refusedLoad(file.error));
    return;
  }
  const auto reading = std::make_shared<ProjectReading>();
  reading_.run(
      [reading, path = file.path](Background::Job& job) {
        *reading = readProject(path, [&job](double fraction) {
          if (job.givenUp()) throw std::runtime_error("given up");
          job.report(fraction);
        });
      },
      [this, reading, path = file.path](const QString& fault) {
        emit projectLoaded(fault.isEmpty() ? adopt(*reading, path) : refusedLoad(fault));
      });
}

QVariantMap AppController::adopt(const ProjectReading& reading, const QString& path) {
  if (!reading.error.isEmpty()) return refusedLoad(reading.error);
  abandonRun();
  session_.clear();
  dropResult();
  project_ = reading.project;
  memory_.reset();
  setProgress(0);
  setStatus(tr("Loaded project (%1 strategy nodes, %2 combo nodes)")
                .arg(project_.caches.handStrategyCache.size())
                .arg(project_.caches.handCombosCache.size()));
  setResultUnsaved(false);
  announceResult();
  qInfo() << "Loaded project:" << path << "hasResults=" << project_.hasResults;
  return {{"ok", true},
          {"error", QString()},
          {"file", QUrl::fromLocalFile(path)},
          {"project", project_.state},
          {"hasResults", project_.hasResults}};
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
  const QVariantMap meta = project_.tree.meta(nodeIndex);
  if (meta.value("nodeType") != "decision" || actionIndex < 0 ||
      actionIndex >= project_.tree.actions(nodeIndex).size()) {
    return;
  }
  project_.nodeLocks.set(nodeIndex, handLabel169, actionIndex, actionProb);
  setResultUnsaved(true);
  emit locksChanged(nodeIndex);
}

void AppController::clearNodeLocks(int nodeIndex) {
  if (project_.nodeLocks.locksAt(nodeIndex).isEmpty()) return;
  project_.nodeLocks.clear(nodeIndex);
  setResultUnsaved(true);
  emit locksChanged(nodeIndex);
}

bool AppController::nodeLocksPending(int nodeIndex) const {
  return project_.nodeLocks.locksAt(nodeIndex) != project_.solvedLocks.locksAt(nodeIndex);
}

QVariantList AppController::nodeLocks(int nodeIndex) {
  return project_.nodeLocks.locksAt(nodeIndex);
}

int AppController::treeNodeCount() {
  return project_.tree.nodeCount();
}

QVariantMap AppController::nodeMeta(int nodeIndex) {
  return project_.tree.meta(nodeIndex);
}

QVariantList AppController::nodeActions(int nodeIndex) {
  return project_.tree.actions(nodeIndex);
}

QVariantList AppController::nodeActionStats(int nodeIndex) {
  return answers_.nodeActionStats(nodeIndex);
}

QVariantList AppController::nodePocketActionEvs(int nodeIndex, const QString& player,
                                                const QString& c1, const QString& c2) {
  return answers_.nodePocketActionEvs(nodeIndex, player, c1, c2);
}

QVariantMap AppController::showdownWinner(const QString& boardText, const QString& oopText,
                                          const QString& ipText) {
  return variantOf(velmora_app::showdown_winner(boardText.toLatin1().toStdString(),
                                                oopText.toLatin1().toStdString(),
                                                ipText.toLatin1().toStdString()));
}

QVariantMap AppController::nodeHandStrategy(int nodeIndex) {
  return answers_.nodeHandStrategy(nodeIndex);
}

QVariantMap AppController::nodeHandStrategyReach169(int nodeIndex, const QString& bucketName) {
  return answers_.nodeHandStrategyReach169(nodeIndex, bucketName);
}

QVariantList AppController::nodeHandCombos(int nodeIndex) {
  return answers_.nodeHandCombos(nodeIndex);
}

QVariantList AppController::nodeSeatHandCombos(int nodeIndex, const QString& player) {
  return answers_.nodeSeatHandCombos(nodeIndex, player);
}

QVariantList AppController::nodeHandBuckets(int nodeIndex) {
  return nodeLocksPending(nodeIndex)
             ? answers_.nodeHandBuckets(nodeIndex, project_.nodeLocks.entriesAt(nodeIndex))
             : answers_.nodeHandBuckets(nodeIndex);
}

void AppController::prepareNodeAnswers(int nodeIndex) {
  answers_.prepare(nodeIndex);
}
