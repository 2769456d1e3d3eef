// Values of a solved game found the slow way: hand against hand and card by card, without sums over
// cards; the tree must hold every deal (`SuitFolding::kOff`).
#pragma once

#include <array>
#include <vector>

#include "discounted_cfr.h"
#include "game.h"

namespace velmora_test {

enum class Play { kAverage, kBestResponse };

/// Chips that each hand of `seat` gains against the other seat's range, weighted by the hands that
/// it can meet and divided by the total matchup weight, when the other seat plays its average
/// strategy and `seat` plays as told. A locked hand can't deviate from its lock.
std::vector<double> brute_force_values(const velmora::Game& game,
                                       const velmora::DiscountedCfr& solver, velmora::Seat seat,
                                       Play play);

/// The same folded with the seat's range weights: its expected gain in chips.
double brute_force_gain(const velmora::Game& game, const velmora::DiscountedCfr& solver,
                        velmora::Seat seat, Play play);

}  // namespace velmora_test
