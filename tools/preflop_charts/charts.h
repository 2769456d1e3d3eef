// The rows of the charts: which range of a solution stands under which name.
#pragma once

#include <string>
#include <vector>

#include "preflop_solver.h"

namespace preflop_charts {

/// A range on its place in a library.
struct ChartRow {
  /// Folders from "RFI", "vs RFI", "vs 3bet" or "vs 4bet" down, as the library shows 6-max rows.
  std::vector<std::string> folders;
  std::string leaf;
  std::string scenario;  ///< The whole spot and action in one text.
  ClassValues range{};   ///< How often each class comes to this action, from the deal on.
};

/// The rows that a seat needs, in the order of the file. A seat holds the spots in which the one
/// who acts is in that position after the flop; the opens of 6-max stand in both. Frequencies have
/// four decimals; below `kSmallestFrequency` they are taken out, and above one less that they
/// are 1.
std::vector<ChartRow> chart_rows(const Table& table, const PreflopSolution& solution,
                                 velmora::Seat seat);
inline constexpr double kSmallestFrequency = 0.005;

/// A regular who strays from the solution: at each decision he moves hands between folding and
/// going on whose values differ by less than `kEdge` of the last raise, the more the closer they
/// are.
enum class Regular {
  kTighter,  ///< Folds what gains little by going on.
  kLooser,   ///< Goes on with what loses little by it.
};
inline constexpr double kEdge = 0.06;
PreflopSolution strayed(const Table& table, PreflopSolution solution, Regular regular);

}  // namespace preflop_charts
