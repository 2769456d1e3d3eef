// Ranges of typical players, from a few habits of each.
#pragma once

#include <string>
#include <vector>

#include "charts.h"

namespace preflop_charts {

/// A folder or, if it has no children, a range.
struct LibraryNode {
  std::string name;
  std::string value;  ///< Range text; empty for a folder.
  std::vector<LibraryNode> children;
};

/// The tree of a seat. `solution` is that of six players without rake, from which the two regulars
/// stray.
std::vector<LibraryNode> population_tree(const HandTables& tables, const PreflopSolution& solution,
                                         velmora::Seat seat);

}  // namespace preflop_charts
