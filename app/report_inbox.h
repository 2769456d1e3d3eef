// Between the solve worker and the window: the newest report waits, older ones give way.
#pragma once

#include <mutex>
#include <optional>

#include "solve_result.h"

/// A small spot reports thousands of times a second, far more often than a window can show. One
/// report waits at a time, and the reader takes it when it is ready for one. The report with a
/// result is the last of a run, so nothing ever replaces it.
class ReportInbox {
 public:
  /// Any thread. Leaves a report; true if the reader must be woken for it. After a wake the
  /// reader is not woken again, but for a result, until `take` finds nothing.
  bool put(const velmora_app::SolveProgress& report);
  /// The newest report; empty if none has come since the last call.
  std::optional<velmora_app::SolveProgress> take();

 private:
  std::mutex mutex_;
  std::optional<velmora_app::SolveProgress> waiting_;
  bool readerAwake_ = false;
};
