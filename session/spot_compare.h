// Which parts of two requests are the same.
#pragma once

#include "solve_session.h"

namespace velmora_app {

/// Whether both requests build the same tree with the same hands: board, ranges, pot, stack and
/// betting. Rake, limits, threads and locks don't matter.
bool same_tree(const SolveConfig& a, const SolveConfig& b);

/// The same tree and the same rake: whatever is asked, the exact answer is the same but for locks.
bool same_spot(const SolveConfig& a, const SolveConfig& b);

}  // namespace velmora_app
