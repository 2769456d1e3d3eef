// Whether a spot can be solved, field by field, before anything is built of it.
#pragma once

#include <string>
#include <vector>

#include "solve_session.h"

namespace velmora_app {

/// What keeps a spot from being solved.
struct SpotFault {
  /// The field's key in a solve configuration map, such as "board", "oop_range", "starting_pot" or
  /// "oop_flop_bet_sizes"; `kWholeSpot` where fields that are right by themselves don't go
  /// together.
  std::string field;
  /// One English sentence, the parser's own where one has refused the text. Empty if `missing`.
  std::string sentence;
  bool missing = false;  ///< Nothing is filled in yet, or not all of it.

  bool operator==(const SpotFault&) const = default;
};

inline constexpr const char* kWholeSpot = "spot";

/// Every fault of a request, at most one for each field, in the order of the Setup page: board,
/// ranges, sizes, numbers, and the spot as a whole if nothing else is wrong. Empty for a spot that
/// can be started. `config.board` may be the text as it was typed: white space and either case are
/// fine, and
/// "__" is a card not chosen yet. Parses texts only, in well under a millisecond; lets no fault of
/// a parser out.
std::vector<SpotFault> check_spot(const SolveConfig& config);

}  // namespace velmora_app
