// What happens on the worker thread between the start and the end of a run.
#pragma once

#include <functional>

#include "solve_session.h"

namespace velmora_app {

/// Share of the iterations that are done, below 1 until a run is over.
double fraction_of(std::uint32_t iterations, std::uint32_t max_iterations);

/// Runs a request: translation, build, solve, snapshot. Reports the stages and each iteration to
/// `report`. `result` is filled as far as the run gets; its `success` and `error` stay as they are.
/// Gives the finished game and solver, or two null pointers if `cancelled` stopped the solver.
/// If `stopped` did, the result says so, and the game and the solver are given as they are then,
/// unless there was no iteration. Throws the faults of the request, and `std::runtime_error` for a
/// spot that does not fit into the memory that the machine has left.
SolvedSpot run_solve(const SolveConfig& config, const std::function<bool()>& cancelled,
                     const std::function<bool()>& stopped,
                     const std::function<void(const SolveProgress&)>& report, SolveResult& result);

}  // namespace velmora_app
