// How far a solve is, on standard error.
#pragma once

#include <chrono>
#include <cstdint>

#include "solve_result.h"

/// One line that updates itself on a terminal, else a line for each measure.
class ProgressLine {
 public:
  using Clock = std::chrono::steady_clock;

  /// `starting_pot` in chips.
  ProgressLine(bool quiet, std::uint32_t max_iterations, std::int32_t starting_pot);

  /// Takes each report of a run, on one thread at a time.
  void show(const velmora_app::SolveProgress& report, bool measured);
  /// Takes the line off the terminal.
  void clear();

 private:
  void show_iteration(const velmora_app::SolveProgress& report, bool measured);

  bool quiet_;
  bool terminal_;
  std::uint32_t max_iterations_;
  std::int32_t starting_pot_;
  Clock::time_point start_ = Clock::now();
  Clock::time_point last_update_;
  bool on_screen_ = false;
};
