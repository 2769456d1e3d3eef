// Two ways of doing the same thing, measured in turns.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

#include <benchmark/benchmark.h>

/// Runs both in turns, so that whatever else the machine does meets both alike. Reports the median
/// time of each in nanoseconds as counters, and `ratio`: how many times as fast the second one is,
/// as the median over the turns.
template <typename Plain, typename Fast>
void side_by_side(benchmark::State& state, const Plain& plain, const Fast& fast) {
  using Clock = std::chrono::steady_clock;
  std::vector<double> plain_times, fast_times, ratios;
  const auto median = [](std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
  };
  const auto nanoseconds = [](Clock::duration time) {
    return std::chrono::duration<double, std::nano>(time).count();
  };
  for (auto _ : state) {
    const Clock::time_point start = Clock::now();
    plain();
    const Clock::time_point middle = Clock::now();
    fast();
    const Clock::time_point end = Clock::now();
    plain_times.push_back(nanoseconds(middle - start));
    fast_times.push_back(nanoseconds(end - middle));
    ratios.push_back(plain_times.back() / fast_times.back());
  }
  state.counters["plain_ns"] = median(plain_times);
  state.counters["fast_ns"] = median(fast_times);
  state.counters["ratio"] = median(ratios);
}
