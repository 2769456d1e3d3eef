#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <memory>
#include <mutex>

#include <QSaveFile>

#include "commands.h"
#include "game.h"
#include "interrupt.h"
#include "json_output.h"
#include "memory_estimate.h"
#include "progress_line.h"
#include "solution_export.h"
#include "spot_file.h"
#include "system_memory.h"

using velmora_app::MemoryEstimate;
using velmora_app::SolveConfig;
using velmora_app::SolveProgress;
using velmora_app::SolveResult;
using velmora_app::SolveSession;

namespace {

constexpr std::chrono::milliseconds kInterruptPoll{50};
constexpr const char* kCancelledText = "Cancelled";

void complain(const QString& text) {
  std::fprintf(stderr, "dunmarrow-cli: %s\n", text.toLocal8Bit().constData());
}

/// Empty if the spot fits, else one sentence. A figure of 0 is unknown and doesn't stand in the
/// way.
std::string shortage_of(const MemoryEstimate& estimate) {
  const std::uint64_t available = velmora_app::available_memory_bytes();
  if (available == 0 || estimate.peak_bytes <= available) return {};
  return velmora_app::memory_shortage(estimate.peak_bytes, available);
}

/// What reports leave behind for the thread that waits for their end.
struct Outcome {
  std::mutex mutex;
  std::condition_variable arrived;
  std::optional<SolveResult> result;
  std::vector<Measure> history;
};

/// Runs the solve to its end and gives its result. A signal cancels it.
SolveResult run_to_end(SolveSession& session, const SolveConfig& config, ProgressLine& line,
                       Outcome& outcome) {
  session.start(config, [&](const SolveProgress& report) {
    const bool measured =
        report.iteration > 0 && (report.iteration % velmora_app::kCheckInterval == 0 ||
                                 report.iteration == config.max_iterations);
    if (measured) outcome.history.emplace_back(report.iteration, report.exploitability);
    line.show(report, measured);
    if (!report.result) return;
    const std::lock_guard lock(outcome.mutex);
    outcome.result = report.result;
    outcome.arrived.notify_one();
  });
  std::unique_lock lock(outcome.mutex);
  while (
      !outcome.arrived.wait_for(lock, kInterruptPoll, [&] { return outcome.result.has_value(); })) {
    if (interrupted()) session.cancel();
  }
  line.clear();
  return *outcome.result;
}

/// Names the locks that met no node, action or hand of the tree.
void report_idle_locks(const velmora::Game& game, const SolveConfig& config) {
  for (std::size_t i = 0; i < config.node_locks.size(); ++i) {
    const auto& entry = config.node_locks[i];
    const velmora::LockTable* table = game.find_node_lock(entry.node);
    bool met = false;
    if (table != nullptr && entry.action < game.nodes()[entry.node].actions.size()) {
      const auto& pockets = game.cards().pockets(game.nodes()[entry.node].seat);
      for (std::size_t hand = 0; hand < pockets.size() && !met; ++hand) {
        met = (*table)[hand] >= 0 && velmora::hand_class_label(pockets[hand]) == entry.hand;
      }
    }
    if (!met) {
      complain(QString("Lock %1 has no effect: node %2 has no action %3 for %4")
                   .arg(i + 1)
                   .arg(entry.node)
                   .arg(entry.action)
                   .arg(QString::fromStdString(entry.hand)));
    }
  }
}

/// Writes the solution and puts the file in place; what stood there before stays on any failure.
ExitStatus write_export(const velmora_app::SolvedSpot& spot, const SolveConfig& config,
                        QSaveFile& file) {
  const bool complete = export_solution(spot, config, [&](const std::string& line) {
    const auto size = static_cast<qint64>(line.size());
    return file.write(line.data(), size) == size && file.putChar('\n') && !interrupted();
  });
  if (complete && file.commit()) return kDone;
  file.cancelWriting();
  if (interrupted()) {
    complain("The export was cancelled.");
    return kCancelled;
  }
  complain(file.fileName() + ": " + file.errorString());
  return kFailed;
}

SolveConfig config_of(const SolveRequest& request) {
  SolveConfig config = read_spot(request.spot_path);
  if (!request.locks_path.isEmpty()) config.node_locks = read_locks(request.locks_path);
  if (request.iterations) config.max_iterations = *request.iterations;
  // The file's thread count belongs to the machine that it was written on.
  config.thread_count = request.threads.value_or(all_processors());
  return config;
}

}  // namespace

std::uint64_t all_processors() {
  const unsigned count = velmora_app::available_processors();
  return count > 0 ? count : 1;
}

ExitStatus estimate(const SolveRequest& request) {
  std::string error;
  const auto estimate = velmora_app::estimate_memory(config_of(request), error);
  if (!estimate) throw InputFault(error);
  print_json(estimate_object(*estimate));
  return kDone;
}

ExitStatus solve(const SolveRequest& request) {
  catch_interrupts();
  const SolveConfig config = config_of(request);

  // Opened first: a path that can't be written should not cost a solve.
  QSaveFile export_file(request.export_path);
  if (!request.export_path.isEmpty() && !export_file.open(QIODevice::WriteOnly)) {
    throw InputFault(request.export_path + ": " + export_file.errorString());
  }

  // A fault of the estimate comes up again in the run, in the run's own words.
  std::string estimate_error;
  const auto estimate = velmora_app::estimate_memory(config, estimate_error);

  SolveResult result;
  result.board = config.board;
  Outcome outcome;
  ProgressLine line(request.quiet, config.max_iterations, config.starting_pot);
  SolveSession session;
  if (estimate) result.error = shortage_of(*estimate);
  if (!result.error.empty()) {
    // Nothing is started.
  } else if (interrupted()) {
    result.error = kCancelledText;
  } else {
    result = run_to_end(session, config, line, outcome);
  }

  ExitStatus status = kDone;
  if (result.success) {
    const velmora_app::SolvedSpot spot = session.solved_spot();
    report_idle_locks(*spot.game, config);
    if (export_file.isOpen()) status = write_export(spot, config, export_file);
  } else {
    complain(QString::fromStdString(result.error));
    status = interrupted() && result.error == kCancelledText ? kCancelled : kFailed;
  }
  print_json(result_object(result, estimate, outcome.history));
  return status;
}
