#include "report_inbox.h"

#include <utility>

using velmora_app::SolveProgress;

bool ReportInbox::put(const SolveProgress& report) {
  const std::lock_guard lock(mutex_);
  waiting_ = report;
  const bool wake = !readerAwake_ || report.result.has_value();
  readerAwake_ = true;
  return wake;
}

std::optional<SolveProgress> ReportInbox::take() {
  const std::lock_guard lock(mutex_);
  if (!waiting_) readerAwake_ = false;
  return std::exchange(waiting_, std::nullopt);
}
