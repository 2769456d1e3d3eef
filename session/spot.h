// A spot: what is to be solved, whether it can be, and what of it the solver takes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "action_plan.h"
#include "bet_size.h"
#include "card_context.h"
#include "node_locks.h"

namespace velmora_app {

using velmora::NodeLockEntry;
using velmora::StreetSizingText;

/// Everything that defines a solve.
struct SolveConfig {
  std::string board;  ///< Two characters a card, no separators: 6, 8 or 10 characters.
  std::int32_t starting_pot = 100;     ///< Chips.
  std::int32_t effective_stack = 100;  ///< Chips behind for each seat.
  double rake_percent = 0;             ///< Percent of the pot, 5 means 5%.
  double rake_cap = 0;                 ///< Chips; 0 means no rake at all.
  std::string starting_street = "flop";
  std::uint32_t max_iterations = 2000;
  float target_exploitability = 0.1F;  ///< Chips, not percent.
  std::uint64_t thread_count = 1;      ///< 0 counts as 1.
  bool compressed_storage = false;     ///< Tables as 16-bit integers between visits.
  std::string oop_range;
  std::string ip_range;
  StreetSizingText oop_flop, oop_turn, oop_river;
  StreetSizingText ip_flop, ip_turn, ip_river;
  std::optional<double> oop_add_all_in_jam_threshold_pct;  ///< Percent of the pot.
  std::optional<double> ip_add_all_in_jam_threshold_pct;   ///< Percent of the pot.
  std::vector<NodeLockEntry> node_locks;
};

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
/// Sizes of the three streets. A fault names the seat, the street and the texts.
void translate_sizing(const SolveConfig& config, velmora::GameSettings& settings);
/// The same with the bare text of a fault.
void translate_sizing_bare(const SolveConfig& config, velmora::GameSettings& settings);

/// Whether both requests build the same tree with the same hands: board, ranges, pot, stack and
/// betting. Rake, limits, threads and locks don't matter.
bool same_tree(const SolveConfig& a, const SolveConfig& b);

/// The same tree and the same rake: whatever is asked, the exact answer is the same but for locks.
bool same_spot(const SolveConfig& a, const SolveConfig& b);

}  // namespace velmora_app
