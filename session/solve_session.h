// One solve at a time, in the background.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

#include "solve_result.h"
#include "spot.h"

namespace velmora {
class DiscountedCfr;
class Game;
}  // namespace velmora

namespace velmora_app {

/// Iterations from one measure of the exploitability to the next.
inline constexpr std::uint32_t kCheckInterval = 50;

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
