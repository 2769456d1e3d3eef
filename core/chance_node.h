// What all traversals do at a chance node.
#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

#include "game.h"
#include "kernels.h"
#include "rows.h"
#include "scratch.h"
#include "worker_pool.h"

namespace velmora {

/// Chance of a deal: one of the cards that neither the board nor four hole cards hold. A constant
/// of the street, not the number of children, since folded deals are added back.
inline float deal_factor(const PlanNode& node) {
  if (node.turn == kNoCard) return 1.0F / 45.0F;
  if (node.river == kNoCard) return 1.0F / 44.0F;
  return 1.0F / static_cast<float>(node.children.size());
}

/// Values of a chance node: the sum over its deals, each walked by
/// `walk(child index, reach, row, scratch)` into a row of its own, in child order, and then over
/// the folded deals. With a pool the children are spread over it, each chunk with a scratch stack
/// of its own; the sum is taken in the same order either way.
template <typename Walk>
void chance_values(const Game& game, const PlanNode& node, Seat seat, std::span<const float> reach,
                   std::span<float> result, ScratchFrame& frame, ScratchStack& scratch,
                   WorkerPool* pool, const Walk& walk) {
  const std::size_t hands = result.size();
  const std::size_t stride = padded(hands);
  const std::size_t children = node.children.size();

  // Step 1. The reach of each deal.
  const std::span<float> scaled_reach = frame.scaled_reach.row(reach.size());
  scale_row(scaled_reach.data(), reach.data(), deal_factor(node), padded(reach.size()));

  // Step 2. The values of each deal.
  float* const rows = frame.child_rows.rows(children, hands);
  const auto walk_range = [&](std::size_t begin, std::size_t end, ScratchStack& own) {
    for (std::size_t c = begin; c < end; ++c) {
      walk(node.children[c], std::span<const float>(scaled_reach),
           std::span<float>(rows + c * stride, hands), own);
    }
  };
  if (pool) {
    pool->parallel_for(children, [&](std::size_t begin, std::size_t end) {
      ScratchStack own;
      walk_range(begin, end, own);
    });
  } else {
    walk_range(0, children, scratch);
  }

  // Step 3. Their sum, row by row.
  const std::span<float> sums = frame.sums.row(hands);
  std::fill_n(sums.data(), stride, 0.0F);
  add_rows(sums.data(), rows, children, stride);

  // Step 4. Each folded deal is its twin with two suits exchanged.
  const std::vector<std::uint8_t>& refs = game.chance_refs(node);
  for (std::size_t i = 0; i < refs.size(); ++i) {
    if (refs[i] >= children) continue;
    const float* twin = rows + refs[i] * stride;
    const SwapList& swaps = game.chance_swaps(node, i)[seat];
    if (!swaps.empty()) {
      const std::span<float> swapped = frame.swap_row.row(hands);
      std::copy_n(twin, stride, swapped.data());
      for (const auto& [x, y] : swaps) {
        if (x < hands && y < hands) std::swap(swapped[x], swapped[y]);
      }
      twin = swapped.data();
    }
    axpy_row(sums.data(), twin, stride, 1.0F);
  }
  std::copy(sums.begin(), sums.end(), result.begin());
}

}  // namespace velmora
