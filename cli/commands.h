// What the headless tool can do. Each command gives the exit status of the program.
#pragma once

#include <cstdint>
#include <optional>

#include <QString>

#include "spot_file.h"

enum ExitStatus : int { kDone = 0, kFailed = 1, kWrongUse = 2, kTimeUp = 3, kInterrupted = 130 };

struct SolveRequest {
  QString spot_path;
  QString output_path;                      ///< Of the result; standard output if empty.
  QString export_path;                      ///< Empty for no export.
  QString locks_path;                       ///< Empty for no locks.
  std::optional<std::uint64_t> threads;     ///< All processors of this process if absent.
  std::optional<std::uint32_t> iterations;  ///< The spot's limit if absent.
  std::optional<std::uint64_t> seconds;     ///< Time limit from the start of the command.
  bool quiet = false;
};

/// Solves a spot and writes the result as JSON. A signal or the time limit stops the solve and
/// keeps what is there. Throws `InputFault`.
ExitStatus solve(const SolveRequest& request);

/// Writes the memory estimate of the same solve as JSON to standard output. Throws `InputFault`.
ExitStatus estimate(const SolveRequest& request);

/// Solves the fixed set of spots and writes their speed and the signature of the results to
/// standard output. `instruction_set` is a name such as "avx2", or empty for the strongest.
/// Throws `InputFault`.
ExitStatus bench(std::optional<std::uint64_t> threads, const QString& instruction_set);

/// Processors that this process may use, at least 1.
std::uint64_t all_processors();
