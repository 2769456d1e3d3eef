// One solve at a time, in the background: the request, the reports, and the run's life.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "results/tree.h"
#include "spot.h"

namespace velmora {
class DiscountedCfr;
class Game;
}  // namespace velmora

namespace velmora_app {

/// Iterations from one measure of the exploitability to the next.
inline constexpr std::uint32_t kCheckInterval = 50;

/// What a run delivers. A failed or cancelled run has `success` false and only what was filled
/// up to then. A stopped one has `success` false too, but all fields, if it had begun to iterate.
struct SolveResult {
  bool success = false;
  /// Ended by `SolveSession::stop_and_keep`, before it reached the target or the limit.
  bool stopped = false;
  /// A success that ended before the target and the limit: the hands without a lock at locked nodes
  /// don't learn, which keeps the exploitability from falling any further.
  bool stalled = false;
  std::string error;  ///< Empty on success.
  std::string board;
  std::int32_t starting_pot = 0;
  std::int32_t effective_stack = 0;
  std::uint32_t iterations = 0;
  float exploitability = 0;  ///< Chips.
  float ev_oop = 0;          ///< Chips, counted from half of the pot.
  float ev_ip = 0;
  std::vector<std::string> root_action_names;
  std::vector<std::string> root_action_types;
  std::vector<float> root_action_freqs;
  /// One entry for each node of the tree; never null on success.
  std::shared_ptr<const TreeSnapshot> nodes;
  double build_seconds = 0;  ///< Cards, tree and locks.
  double solve_seconds = 0;  ///< The iterations, measuring included.
};

struct SolveProgress {
  double progress = 0;  ///< 0..1
  std::string status;
  std::uint32_t iteration = 0;        ///< In the reports of the iterations, counted from 1; else 0.
  float exploitability = 0;           ///< Chips; last measured, in the reports of the iterations.
  std::optional<SolveResult> result;  ///< Only in the last report of a run.
};

/// The game and the solver of a completed run; both empty if there is none.
struct SolvedSpot {
  std::shared_ptr<const velmora::Game> game;
  std::shared_ptr<const velmora::DiscountedCfr> solver;
};

/// Runs one solve at a time on a thread of its own and keeps the game and the solver of the last
/// completed run. Reports arrive on that thread. Destroying a session cancels its run and waits
/// for it.
class SolveSession {
 public:
  using Callback = std::function<void(const SolveProgress&)>;

  SolveSession() = default;
  ~SolveSession();
  SolveSession(const SolveSession&) = delete;
  SolveSession& operator=(const SolveSession&) = delete;

  /// Starts a run; `callback` may be empty. Returns false and changes nothing while a run is
  /// under way. A run is over once its last report (the one with a result) has been handed over:
  /// a start after that succeeds, waiting for the few instructions that the old thread has left.
  /// Throws `std::system_error` or `std::bad_alloc` if no thread can be started.
  bool start(const SolveConfig& config, Callback callback);
  /// Asks the run to stop. The iteration in progress is completed first.
  void cancel() { cancel_requested_ = true; }
  /// Asks the run to end with what it has. The iteration in progress is completed and measured, and
  /// the last report carries all figures, with `success` false and `stopped` true; the session
  /// keeps the game and the solver. A run that has not begun to iterate ends without them. A cancel
  /// goes before it; a run that is over when it arrives ends as it would have.
  void stop_and_keep() { stop_requested_ = true; }
  /// Drops the game and the solver of the last completed run.
  void clear();
  bool running() const { return running_; }
  /// What the result queries read. The copy stays alive through a later `clear`.
  SolvedSpot solved_spot() const;

 private:
  struct Ending;

  void work(const SolveConfig& config, const Callback& callback, Ending& ending);

  std::atomic<bool> running_ = false;
  std::atomic<bool> cancel_requested_ = false;
  std::atomic<bool> stop_requested_ = false;
  std::atomic<bool> last_report_delivered_ = false;
  /// Set by the worker itself: it may report before `start` has assigned `worker_`.
  std::atomic<std::thread::id> worker_id_;
  mutable std::mutex mutex_;  ///< Guards the next member only.
  SolvedSpot solved_;
  std::thread worker_;
};

}  // namespace velmora_app
