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
/// Settings without the sizes.
velmora::GameSettings translate_settings(const SolveConfig& config);
/// Sizes of the three streets. A fault tells the seat, the street and the texts.
void translate_sizing(const SolveConfig& config, velmora::GameSettings& settings);
/// The same with the bare text of a fault.
void translate_sizing_bare(const SolveConfig& config, velmora::GameSettings& settings);

}  // namespace velmora_app
