// From the texts of a request to the inputs of a game.
#pragma once

#include "action_plan.h"
#include "card_context.h"
#include "solve_session.h"

namespace velmora_app {

struct SpotCards {
  velmora::Board board;
  velmora::BySeat<velmora::PocketWeights> weights;
};

/// Board and ranges. Throws the faults of the parsers.
SpotCards translate_cards(const SolveConfig& config);
/// The least total weight of all pairs of hands that can meet, the product of two weights for each.
/// Solver values are chips over this total: from here on up the largest pots stay far inside single
/// precision, for any number of iterations.
inline constexpr double kLeastMatchupWeight = 1e-12;
/// Throws `std::invalid_argument`, with one sentence, if the board is none, if it leaves a seat no
/// hand, if every hand of one seat shares a card with every hand of the other, or if the weights of
/// those that can meet are below `kLeastMatchupWeight`. Takes microseconds for usual ranges.
void check_ranges_meet(const SpotCards& cards);
/// Settings without the sizes. Throws `std::invalid_argument` for a rake that is no share of a pot
/// or a cap that is no amount of chips.
velmora::GameSettings translate_settings(const SolveConfig& config);
/// Sizes of the three streets. A fault tells the seat, the street and the texts.
void translate_sizing(const SolveConfig& config, velmora::GameSettings& settings);
/// The same with the bare text of a fault.
void translate_sizing_bare(const SolveConfig& config, velmora::GameSettings& settings);

}  // namespace velmora_app
