// Boards up to a renaming of suits.
#pragma once

#include <vector>

#include "cards.h"

namespace preflop_charts {

/// One board that stands for all that differ from it in the names of the suits only.
struct BoardClass {
  velmora::CardMask cards = 0;
  int count = 0;  ///< Number of boards that it stands for.
};

/// All sets of `size` cards: 1755 classes of 22,100 flops, 134,459 classes of 2,598,960 boards of
/// five cards.
std::vector<BoardClass> board_classes(int size);

}  // namespace preflop_charts
