// A fixed set of spots, solved for fixed iterations: speed and a signature of the results.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "solve_session.h"

struct BenchSpot {
  std::string name;
  velmora_app::SolveConfig config;  ///< `max_iterations` are done, no more and no fewer.
};

/// A river, turns with and without rake and in compressed storage, a flop with folded suits and one
/// without: every kind of node and every kernel.
std::vector<BenchSpot> bench_spots();

/// The quick solve of the window: a flop of half a million nodes.
velmora_app::SolveConfig quick_spot();
/// A flop with two bet sizes a street and narrower ranges.
velmora_app::SolveConfig two_size_spot();

struct BenchLine {
  std::string name;
  std::uint32_t iterations = 0;
  double seconds = 0;  ///< Of the iterations, without the build.
};

struct BenchReport {
  std::vector<BenchLine> lines;
  /// Hash over the bits of all final exploitabilities, values and strategy sums. Equal for every
  /// number of threads and every instruction set.
  std::uint64_t signature = 0;
};

/// Solves the spots one after the other; `on_line` (may be empty) is called after each.
BenchReport run_bench(std::uint64_t threads, const std::function<void(const BenchLine&)>& on_line);
