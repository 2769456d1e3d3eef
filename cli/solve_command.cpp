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
constexpr const char* kStoppedEarly = "Stopped before the first iteration: there is no result yet";

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

/// Ends the solve: a signal, or the end of its time.
class Deadline {
 public:
  explicit Deadline(std::optional<std::uint64_t> seconds) {
    if (seconds) end_ = Clock::now() + std::chrono::seconds(*seconds);
  }
  bool time_is_up() const { return end_ && Clock::now() >= *end_; }
  bool reached() const { return interrupted() || time_is_up(); }

 private:
  using Clock = std::chrono::steady_clock;

  std::optional<Clock::time_point> end_;
};

/// Runs the solve to its end, or until it must stop, and gives its result.
SolveResult run_to_end(SolveSession& session, const SolveConfig& config, const Deadline& deadline,
                       ProgressLine& line, Outcome& outcome) {
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
    if (deadline.reached()) session.stop_and_keep();
  }
  line.clear();
  const SolveResult& result = *outcome.result;
  // A run that is stopped measures once more.
  if (result.stopped && result.iterations > 0 &&
      (outcome.history.empty() || outcome.history.back().first != result.iterations)) {
    outcome.history.emplace_back(result.iterations, result.exploitability);
  }
  return result;
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

/// Writes the solution and puts the file in place; what stood there before stays on any failure. A
/// signal that comes only now ends the writing.
ExitStatus write_export(const velmora_app::SolvedSpot& spot, const SolveConfig& config,
                        QSaveFile& file) {
  const bool goes_on = interrupted();
  const bool complete = export_solution(spot, config, [&](const std::string& line) {
    const auto size = static_cast<qint64>(line.size());
    return file.write(line.data(), size) == size && file.putChar('\n') &&
           (goes_on || !interrupted());
  });
  if (complete && file.commit()) return kDone;
  file.cancelWriting();
  if (interrupted() && !goes_on) {
    complain("The export was cancelled.");
    return kInterrupted;
  }
  complain(file.fileName() + ": " + file.errorString());
  return kFailed;
}

/// Opens the file of an option, if it has one: a path that can't be written should not cost a
/// solve.
void open_for_writing(QSaveFile& file) {
  if (!file.fileName().isEmpty() && !file.open(QIODevice::WriteOnly)) {
    throw InputFault(file.fileName() + ": " + file.errorString());
  }
}

/// Writes the result to its file, which replaces an older one in one step, or to standard output.
void write_result(const QJsonObject& object, QSaveFile& file) {
  if (!file.isOpen()) {
    print_json(object);
    return;
  }
  const QByteArray text = json_text(object);
  if (file.write(text) != text.size() || !file.commit()) {
    throw InputFault(file.fileName() + ": " + file.errorString());
  }
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
  const Deadline deadline(request.seconds);
  const SolveConfig config = config_of(request);
  QSaveFile export_file(request.export_path);
  QSaveFile output_file(request.output_path);
  open_for_writing(export_file);
  open_for_writing(output_file);

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
  } else if (deadline.reached()) {
    result.stopped = true;
    result.error = kStoppedEarly;
  } else {
    result = run_to_end(session, config, deadline, line, outcome);
  }

  ExitStatus status = kDone;
  if (!result.error.empty()) complain(QString::fromStdString(result.error));
  if (result.stopped) {
    status = interrupted() ? kInterrupted : kTimeUp;
  } else if (!result.success) {
    status = kFailed;
  } else if (result.stalled) {
    complain("The exploitability falls no further: free hands at locked nodes don't learn.");
  }
  if (const velmora_app::SolvedSpot spot = session.solved_spot(); spot.solver) {
    report_idle_locks(*spot.game, config);
    if (export_file.isOpen()) {
      const ExitStatus exported = write_export(spot, config, export_file);
      if (exported != kDone) status = exported;
    }
  }
  write_result(result_object(result, estimate, outcome.history), output_file);
  return status;
}
