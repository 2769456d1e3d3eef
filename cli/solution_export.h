// A solved spot as JSON lines: the spot, then the strategy of every decision node.
#pragma once

#include <functional>
#include <string>

#include "solve_session.h"

/// Takes one line without its end; false stops the export.
using LineSink = std::function<bool(const std::string& line)>;

/// Writes line by line, so that the size of the tree doesn't matter. False if the sink stopped it.
bool export_solution(const velmora_app::SolvedSpot& spot, const velmora_app::SolveConfig& config,
                     const LineSink& sink);
