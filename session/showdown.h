// Two hands compared on a full board. Needs no solve.
#pragma once

#include <cstdint>
#include <string_view>

namespace velmora_app {

struct Showdown {
  std::string_view winner = "UNKNOWN";  ///< "OOP", "IP", "TIE" or "UNKNOWN".
  std::uint32_t oop_strength = 0;       ///< As the evaluator ranks them; 0 if unknown.
  std::uint32_t ip_strength = 0;
};

/// Texts of two characters a card, of which the first 5 and 2 cards are read; white space is
/// ignored. Unknown for texts that are too short or hold something else than cards.
Showdown showdown_winner(std::string_view board, std::string_view oop, std::string_view ip);

}  // namespace velmora_app
