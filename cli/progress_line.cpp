#include "progress_line.h"

#include <cstdio>
#include <unistd.h>

#include <QString>

using velmora_app::SolveProgress;

namespace {

// A small spot makes thousands of iterations a second.
constexpr std::chrono::milliseconds kUpdateInterval{100};

}  // namespace

ProgressLine::ProgressLine(bool quiet, std::uint32_t max_iterations, std::int32_t starting_pot)
    : quiet_(quiet),
      terminal_(isatty(STDERR_FILENO) == 1),
      max_iterations_(max_iterations),
      starting_pot_(starting_pot) {}

void ProgressLine::show(const SolveProgress& report, bool measured) {
  if (quiet_) return;
  if (report.iteration > 0) {
    show_iteration(report, measured);
  } else if (terminal_ && !report.result) {
    std::fprintf(stderr, "\r%s\x1b[K", report.status.c_str());
    on_screen_ = true;
  }
}

void ProgressLine::show_iteration(const SolveProgress& report, bool measured) {
  const Clock::time_point now = Clock::now();
  if (!measured && (!terminal_ || now - last_update_ < kUpdateInterval)) return;
  last_update_ = now;

  QString line = QString("Iter %1 / %2").arg(report.iteration).arg(max_iterations_);
  if (report.exploitability != 0) {
    line += QString(" | exploitability %1").arg(report.exploitability, 0, 'g', 5);
    if (starting_pot_ > 0) {
      const double percent = 100.0 * report.exploitability / starting_pot_;
      line += QString(" (%1% of the pot)").arg(percent, 0, 'f', 3);
    }
  }
  const std::chrono::duration<double> elapsed = now - start_;
  line += QString(" | %1 s").arg(elapsed.count(), 0, 'f', 1);
  std::fprintf(stderr, terminal_ ? "\r%s\x1b[K" : "%s\n", line.toLocal8Bit().constData());
  on_screen_ = terminal_;
}

void ProgressLine::clear() {
  if (on_screen_) std::fputs("\r\x1b[K", stderr);
  on_screen_ = false;
}
