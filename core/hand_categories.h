// What kind of hand a pocket is on a board: made hand, pair, draw, missed draw or air.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "cards.h"
#include "range.h"

namespace velmora {

class Game;
struct PlanNode;

/// The categories in the order in which results list them. Users read these names, and they are
/// compared as texts.
inline constexpr std::array<std::string_view, 21> kHandCategoryNames = {
    "straight flush",
    "quads",
    "full house",
    "flush",
    "straight",
    "set",
    "trips",
    "two pair",
    "top pair",
    "overpair",
    "middle pair",
    "bottom pair",
    "dry pair",
    "flush draw",
    "missed FD",
    "open ended straight draw",
    "missed OESD",
    "gutter",
    "missed gutter",
    "back door flush draw",
    "air",
};

/// Bit i stands for `kHandCategoryNames[i]`.
using CategorySet = std::uint32_t;

/// The board cards at a node: those of the game, then what was dealt on the way.
std::vector<CardCode> node_board(const Game& game, const PlanNode& node);

/// Names of the categories of a pocket at a node, ascending, each once. They are independent of
/// each other; "air" comes only alone. A pair with none of the first, second or last rank of the
/// board is "pair", which is not in the table above. Empty if the board doesn't have 3 to 5 cards
/// or the pocket holds one of them.
std::vector<std::string_view> hand_categories(const Game& game, const PlanNode& node,
                                              Pocket pocket);

/// The same as a set over the table above; what is only "pair" counts as air. 0 for the empty
/// cases.
CategorySet category_set(std::span<const CardCode> board, Pocket pocket);

/// 0 high card .. 8 straight flush of 5, 6 or 7 different cards; 0 for another number of cards.
/// Throws `std::out_of_range` on a code of 52 or more.
std::uint32_t made_category(std::span<const CardCode> cards);

struct FlushDraws {
  bool flush_draw = false;
  bool back_door = false;

  bool operator==(const FlushDraws&) const = default;
};
/// Draws to the suit that most of the cards share; a card of the pocket must take part.
FlushDraws flush_draws(std::span<const CardCode> cards, Pocket pocket, bool is_flop,
                       bool has_flush);

struct StraightDraws {
  bool open_ended = false;
  bool gutter = false;

  bool operator==(const StraightDraws&) const = default;
};
/// Open-ended if two or more ranks complete a straight, gutter if exactly one does, neither if the
/// cards hold a straight already.
StraightDraws straight_draws(std::span<const CardCode> cards);

/// The name of a pair. `board_ranks` holds the distinct ranks of the board from the highest down,
/// `board_rank_counts` how often each rank occurs on it. Empty if the pair is the board's own.
std::string_view pair_class(Pocket pocket, std::span<const std::uint8_t> board_ranks,
                            std::span<const std::uint8_t, kNumRanks> board_rank_counts);

}  // namespace velmora
