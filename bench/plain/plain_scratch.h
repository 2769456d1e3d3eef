// Working memory of the plain solver: one frame for each depth of the recursion, found by index, so
// that walking down the tree allocates nothing once the frames have grown.
#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <memory>

#include "rows.h"

namespace velmora_plain {

/// The lists of one recursion level. A visit lengthens a list to what it needs; none ever shrinks.
/// "Own" is the traversing seat.
struct ScratchFrame {
  velmora::FloatList scaled_reach;      ///< Opposing hands: reach times the deal factor.
  velmora::FloatList child_rows;        ///< One row of own hands for each dealt card.
  velmora::FloatList sums;              ///< Own hands.
  velmora::FloatList swap_row;          ///< Own hands.
  velmora::FloatList action_values;     ///< One row of own hands for each action.
  velmora::FloatList strategy;          ///< One row of own hands for each action.
  velmora::FloatList denominators;      ///< Own hands.
  velmora::FloatList opp_strategy;      ///< One row of opposing hands for each action.
  velmora::FloatList opp_denominators;  ///< Opposing hands.
  velmora::FloatList action_reach;      ///< One row of opposing hands for each action.
  velmora::FloatList regrets;           ///< A node's regrets, expanded from compressed storage.
  velmora::FloatList strategy_sums;     ///< A node's strategy sums, likewise.
};

/// Frames by depth. Belongs to one thread at a time.
class ScratchStack {
 public:
  ScratchFrame& frame_at(std::size_t depth) {
    if (depth < kFixedFrames) return frames_[depth];
    while (overflow_.size() <= depth - kFixedFrames) {
      overflow_.push_back(std::make_unique<ScratchFrame>());
    }
    return *overflow_[depth - kFixedFrames];
  }

 private:
  static constexpr std::size_t kFixedFrames = 32;

  std::array<ScratchFrame, kFixedFrames> frames_;
  std::deque<std::unique_ptr<ScratchFrame>> overflow_;
};

}  // namespace velmora_plain
