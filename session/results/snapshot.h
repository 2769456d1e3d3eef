// Flattens a finished solve into the record that the application shows and saves.
#pragma once

#include "discounted_cfr.h"
#include "game.h"
#include "solve_session.h"

namespace velmora_app {

/// Iterations, exploitability, values and the root's actions.
void fill_summary(const velmora::Game& game, const velmora::DiscountedCfr& solver,
                  SolveResult& result);
/// The list of all nodes. Frequencies are plain means over the hands of the acting seat. Computed
/// on up to `workers` threads.
void fill_nodes(const velmora::Game& game, const velmora::DiscountedCfr& solver,
                std::size_t workers, SolveResult& result);

}  // namespace velmora_app
