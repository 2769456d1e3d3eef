// How well a hand class turns its equity into money after the flop.
#pragma once

#include "class_equity.h"

namespace preflop_charts {

/// The pot in which playability is measured.
struct PlayabilitySetting {
  ClassValues reference{};  ///< Frequencies of the opponent's range.
  double nut_power = 1;     ///< How much more the top of a range wins: the deeper, the more.
  double give_up = 0;       ///< Equity on the flop below which a hand is mostly given up.
};

/// Playability of each class: the part of its equity that a hand keeps when it gives up what the
/// flop has spoilt and is paid by how near to the top it ends up. Relative to the reference range,
/// whose mean (weighted by combos) is 1.
///
/// On every class of flops a number of turns and rivers are dealt by a fixed generator. q is the
/// equity of a pocket on the last board and e its mean over the runouts of the flop; out of e the
/// pocket keeps, up to a common factor, the mean of q to the power `nut_power` times the chance
/// that it sees the last card, which rises from 0.1 at `give_up` to 1 a third above.
ClassValues playability(const PlayabilitySetting& setting, unsigned threads);

}  // namespace preflop_charts
