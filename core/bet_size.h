// Bet sizes as the user writes them: "33, 75", "2.5x, a", "100c3r", "2e".
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cards.h"

namespace velmora {

enum class BetSizeKind : std::uint32_t {
  kPotPercent = 0,     ///< A fraction of the pot.
  kRaiseMultiple = 1,  ///< A multiple of the bet that is faced.
  kChips = 2,          ///< Chips on top of the bet that is faced.
  kGeometric = 3,      ///< Grows the pot evenly over a number of streets.
  kAllIn = 4,          ///< The whole stack.
};

/// One size. Members that its kind does not use are 0.
struct BetSize {
  BetSizeKind kind = BetSizeKind::kPotPercent;
  double value = 0;                    ///< Fraction of the pot, or the multiplier.
  double max_pot_fraction = 0;         ///< Limit of a geometric size, +infinity for none.
  std::int32_t chips = 0;              ///< Amount of a size in chips.
  std::int32_t raise_cap = 0;          ///< Bets and raises below which it is offered; 0 for none.
  std::int32_t geometric_streets = 0;  ///< 0: the streets that remain at the node.

  bool operator==(const BetSize&) const = default;
};

struct SeatSizing {
  std::vector<BetSize> bets;
  std::vector<BetSize> raises;
};

/// The sizes of both seats on one street.
struct StreetSizing {
  BySeat<SeatSizing> seats;
  /// What OOP may use where it leads into aggression: a list, maybe empty, or no rule at all.
  std::optional<std::vector<BetSize>> donk;
};

/// The sizes of one seat on one street, as the user typed them.
struct StreetSizingText {
  std::string bet_sizes;
  std::string raise_sizes;
  bool add_all_in = false;  ///< An all-in joins both lists.
  bool dont_donk = false;   ///< Read from OOP's record only.

  bool operator==(const StreetSizingText&) const = default;
};

/// One size from one token. Relative sizes are for raise lists only.
/// Throws `std::invalid_argument` or `std::out_of_range`.
BetSize parse_bet_size(std::string_view token, bool allow_relative);
/// The sizes of a list separated by commas, in order; empty pieces are skipped.
std::vector<BetSize> parse_bet_sizes(std::string_view text, bool allow_relative);
SeatSizing parse_seat_sizing(std::string_view bet_text, std::string_view raise_text);
/// The text without white space, with "%" behind plain numbers, and with an "a" at the end if
/// `add_all_in` asks for it and none is there. Throws `std::invalid_argument` for a character that
/// is no part of the notation and for sizes that are not separated by commas.
std::string normalize_sizing(std::string_view text, bool add_all_in);
/// What is wrong with a text of sizes as the user typed it: one sentence for the first bad size, or
/// "" for a text that can be read.
std::string bet_sizes_fault(std::string_view text, bool add_all_in, bool allow_relative);

/// The sizes of a street. A fault in a seat's sizes is thrown again as `std::invalid_argument`
/// with the seat, the street and the texts in front of it.
StreetSizing parse_street_sizing(std::string_view street_name, const StreetSizingText& oop,
                                 const StreetSizingText& ip);
/// The same, with the bare text of a fault.
StreetSizing parse_street_sizing_bare(const StreetSizingText& oop, const StreetSizingText& ip);

}  // namespace velmora
