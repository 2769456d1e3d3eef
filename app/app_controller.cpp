#include "app_controller.h"

#include <exception>
#include <utility>

#include <QCoreApplication>
#include <QDate>
#include <QDebug>
#include <QDesktopServices>
#include <QTimer>

#include "developer_mode.h"
#include "processor_count.h"
#include "project_writer.h"
#include "result_variants.h"
#include "showdown.h"
#include "solve_activity.h"
#include "solve_config_map.h"
#include "solve_request.h"
#include "text_files.h"
#include "trainer_stats.h"

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

/// A project with the answers about the root among its others: they are in every file.
Project withRootAnswers(Project project, const velmora_app::SolvedSpot& spot,
                        const std::shared_ptr<velmora_app::ActionValues>& values) {
  ResultQueries queries([&spot] { return spot; }, project.tree, values);
  queries.caches() = project.caches;
  try {
    queries.askAll(0);
  } catch (const std::exception& fault) {
    qWarning() << "saveProject: the root gives no answers:" << fault.what();
  }
  project.caches = queries.caches();
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
  connect(&preparer_, &NodePreparer::ready, this, [this](int node, const ResultCaches& answers) {
    results_.caches().take(answers);
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

void AppController::setStatus(const QString& text) {
  if (text == statusText_) return;
  statusText_ = text;
  emit statusTextChanged();
}

void AppController::dropResult() {
  outcome_ = {};
  tree_.clear();
  results_.caches().clear();
  preparer_.giveUp();
}

void AppController::startSolve() {
  startSolveWithConfig({});
}

void AppController::startSolveWithConfig(const QVariantMap& cfg) {
  if (running_) return;
  setStatus(tr("Starting..."));
  qInfo().noquote() << describeSolveRequest(cfg);
  lastUiCfg_ = cfg;

  // Step 1. Refuse what can't be solved, while the previous result is still there.
  if (const QString refusal = refusalOf(cfg); !refusal.isEmpty()) {
    setStatus(refusal);
    return;
  }
  SolveConfig config = makeSolveConfig(cfg);
  if (cfg.value("apply_node_locks", false).toBool()) config.node_locks = nodeLockTable_.entries();

  // Step 2. Make room: only then is the available memory what the solve may take.
  session_.clear();
  dropResult();
  memory_.noteResultsDropped();
  emit resultsChanged();
  emit systemMemoryChanged();
  memory_.refreshAvailable();
  memory_.noteSolveStarted();
  const quint64 required = memory_.requiredBytes();
  const quint64 available = memory_.availableBytes();
  if (required != 0 && available != 0 && available <= required) {
    setStatus(tr("Not enough RAM to solve (after clearing previous results)"));
    return;
  }

  // Step 3. Go.
  setRunning(true);
  startSession(config);
}

void AppController::startSession(const SolveConfig& config) {
  const auto inbox = std::make_shared<ReportInbox>();
  // On the worker's thread.
  const auto post = [this, inbox](const SolveProgress& report) {
    if (!inbox->put(report)) return;
    QMetaObject::invokeMethod(
        this, [this, inbox] { readInbox(inbox); }, Qt::QueuedConnection);
  };
  try {
    if (!session_.start(config, post)) {
      // A run whose results were cleared is still on its way to its end, which is reported.
      setStatus(tr("Already running"));
      return;
    }
    inbox_ = inbox;
  } catch (const std::exception& fault) {
    SolveProgress report;
    report.status = std::string("Error: ") + fault.what();
    report.result.emplace().error = fault.what();
    handleSolveProgress(report);
  }
}

void AppController::readInbox(const std::shared_ptr<ReportInbox>& inbox) {
  if (inbox != inbox_) return;  // Of a run that a newer one has replaced.
  const auto report = inbox->take();
  if (!report) return;
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
  setStatus(QString::fromStdString(report.status));
  if (!report.result) return;  // A run ends with its result, even if its thread is gone by now.

  const SolveResult& result = *report.result;
  dropResult();
  outcome_ = outcomeOf(result);
  if (result.success) {
    SolveActivity::record(QDate::currentDate(), outcome_.iterations, outcome_.exploitability);
    emit solveStatsChanged();
    tree_.set(result.nodes, result.effective_stack);
    memory_.noteResultsHeld();
    emit systemMemoryChanged();
  }
  qInfo().noquote().nospace() << "UI about to emit resultsChanged: root_actions="
                              << outcome_.rootActions.size()
                              << " summary.len=" << outcome_.summary.size();
  emit resultsChanged();
  qInfo().noquote() << "UI emitted resultsChanged";
  // No report follows this one. The session may need a moment more to put its thread away.
  setRunning(false);
}

void AppController::reSolveWithNodeLocks() {
  if (running_) return;
  if (lastUiCfg_.isEmpty()) {
    setStatus(tr("No previous solve config (solve once first)"));
    return;
  }
  QVariantMap cfg = lastUiCfg_;
  cfg["apply_node_locks"] = true;
  startSolveWithConfig(cfg);
}

void AppController::cancelSolve() {
  session_.cancel();
  setStatus(tr("Cancelling..."));
}

void AppController::clearResults() {
  session_.cancel();
  session_.clear();
  nodeLockTable_.clear();
  dropResult();
  lastUiCfg_.clear();
  setProgress(0);
  setStatus(tr("Ready"));
  setRunning(false);
  memory_.reset();
  emit resultsChanged();
  emit systemMemoryChanged();
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
  const bool hasResults =
      outcome_.iterations > 0 || tree_.nodeCount() > 0 || !outcome_.rootActions.isEmpty();
  return {state, hasResults, outcome_, tree_, results_.caches(), nodeLockTable_, lastUiCfg_};
}

bool AppController::saveProject(const QUrl& fileUrl, const QVariantMap& projectState) {
  const LocalPath file = pathToSave(fileUrl);
  if (!file.error.isEmpty()) return false;
  const Project project = withRootAnswers(projectWith(projectState), session_.solved_spot(),
                                          results_.actionValues());
  results_.caches() = project.caches;
  return writeProject(project, file.path).isEmpty();
}

void AppController::saveProjectInBackground(const QUrl& fileUrl, const QVariantMap& projectState) {
  if (fileWorker_.busy()) {
    emit projectSaved(false, tr("Another file is still being saved or opened"));
    return;
  }
  const LocalPath file = pathToSave(fileUrl);
  if (!file.error.isEmpty()) {
    emit projectSaved(false, file.error);
    return;
  }
  const auto error = std::make_shared<QString>();
  fileWorker_.run(
      [project = projectWith(projectState), path = file.path, spot = session_.solved_spot(),
       values = results_.actionValues(), error](const FileWorker::Progress& progress) {
        *error = writeProject(withRootAnswers(project, spot, values), path, progress);
      },
      [this, error] { emit projectSaved(error->isEmpty(), *error); });
}

QVariantMap AppController::loadProject(const QUrl& fileUrl) {
  const LocalPath file = localPathOf(fileUrl);
  if (!file.error.isEmpty()) return refusedLoad(file.error);
  return adopt(readProject(file.path), file.path);
}

void AppController::loadProjectInBackground(const QUrl& fileUrl) {
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
      [reading, path = file.path](const FileWorker::Progress& progress) {
        *reading = readProject(path, progress);
      },
      [this, reading, path = file.path] { emit projectLoaded(adopt(*reading, path)); });
}

QVariantMap AppController::adopt(const ProjectReading& reading, const QString& path) {
  if (!reading.error.isEmpty()) return refusedLoad(reading.error);
  const Project& project = reading.project;
  session_.clear();
  dropResult();
  outcome_ = project.outcome;
  tree_ = project.tree;
  results_.caches() = project.caches;
  nodeLockTable_ = project.nodeLocks;
  lastUiCfg_ = project.lastUiCfg;
  setRunning(false);
  setProgress(0);
  setStatus(tr("Loaded project (%1 strategy nodes, %2 combo nodes)")
                .arg(project.caches.handStrategyCache.size())
                .arg(project.caches.handCombosCache.size()));
  emit resultsChanged();
  qInfo() << "Loaded project:" << path << "hasResults=" << project.hasResults;
  return {{"ok", true},
          {"error", QString()},
          {"project", project.state},
          {"hasResults", project.hasResults}};
}

QVariantMap AppController::saveTextFile(const QUrl& fileUrl, const QString& text) {
  return ::saveTextFile(fileUrl, text);
}

QVariantMap AppController::readTextFile(const QUrl& fileUrl) {
  return ::readTextFile(fileUrl);
}

void AppController::setNodeLock(int nodeIndex, const QString& handLabel169, int actionIndex,
                                double actionProb) {
  nodeLockTable_.set(nodeIndex, handLabel169, actionIndex, actionProb);
}

void AppController::clearNodeLocks(int nodeIndex) {
  nodeLockTable_.clear(nodeIndex);
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
  return results_.nodeHandBuckets(nodeIndex);
}

void AppController::prepareNodeAnswers(int nodeIndex) {
  preparer_.prepare(nodeIndex, session_.solved_spot(), tree_, results_.actionValues(),
                    results_.caches());
}
