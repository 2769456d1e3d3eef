// All-in equities of the 169 hand classes against each other.
#pragma once

#include <span>

#include "boards.h"
#include "hand_classes.h"
#include "hand_eval.h"

namespace preflop_charts {

/// Strength of each pocket on a board of five cards, 0 for pockets that share a card with it.
void evaluate_all_pockets(velmora::CardMask board,
                          std::span<velmora::HandStrength, velmora::kNumPockets> strengths);

/// Share of the pot, 0..1, that the row's class wins from the column's when both go all-in before
/// the flop: exact, over all pairs of pockets that share no card and all boards that are left.
ClassTable class_equities(unsigned threads);

}  // namespace preflop_charts
