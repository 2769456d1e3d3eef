// Discounted CFR node by node, straight from the rules, with tables of its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "discounted_cfr.h"
#include "game.h"
#include "huge_pages.h"
#include "plain_scratch.h"
#include "worker_pool.h"

namespace velmora_plain {

class PlainSolver {
 public:
  PlainSolver(const velmora::Game& game, std::size_t threads, bool compressed = false);

  void run_iteration(std::uint32_t i);
  /// As `DiscountedCfr::measure_exploitability` and `cf_values`.
  float measure_exploitability();
  std::array<float, 2> cf_values() { return measure(false); }

  /// A decision node's tables, rows padded; for others null.
  const float* regrets(std::size_t node) const { return regrets_.data() + first_cell_[node]; }
  const float* sums(std::size_t node) const { return sums_.data() + first_cell_[node]; }

 private:
  using Rows = std::span<float>;
  using Reach = std::span<const float>;
  enum class Walk : std::uint8_t { kLearn, kAverage, kBest };

  void visit(Walk walk, std::size_t node, velmora::Seat seat, Reach reach, Rows result,
             std::size_t depth, ScratchStack& scratch);
  void visit_chance(Walk walk, std::size_t node, velmora::Seat seat, Reach reach, Rows result,
                    std::size_t depth, ScratchStack& scratch);
  void visit_other(Walk walk, std::size_t node, velmora::Seat seat, Reach reach, Rows result,
                   std::size_t depth, ScratchStack& scratch);
  void visit_own(Walk walk, std::size_t node, velmora::Seat seat, Reach reach, Rows result,
                 std::size_t depth, ScratchStack& scratch);
  std::vector<float> from_root(Walk walk, velmora::Seat seat, ScratchStack& scratch);
  std::array<float, 2> measure(bool best);
  /// What a table becomes by standing in 16 bits.
  void squeeze(float* table, std::size_t num_actions, std::size_t num_hands) const;

  const velmora::Game& game_;
  bool compressed_;
  velmora::DiscountParams discount_;
  std::vector<std::size_t> first_cell_;
  velmora::PageArray<float> regrets_;
  velmora::PageArray<float> sums_;
  std::unique_ptr<velmora::WorkerPool> pool_;
  velmora::BySeat<ScratchStack> scratch_;
};

}  // namespace velmora_plain
