// How the whole system names a card: one byte, the card code.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

/// `rank * 4 + suit`, 0..51; rank 0 is the 2, rank 12 the ace; suits in the order c, d, h, s.
using CardCode = std::uint8_t;
/// A set of cards, one bit for each code.
using CardMask = std::uint64_t;
/// 0 flop, 1 turn, 2 river.
using Street = std::uint8_t;

inline constexpr CardCode kNoCard = 255;  ///< A card that is not dealt.
inline constexpr CardCode kNumCards = 52;
inline constexpr int kNumRanks = 13;
inline constexpr int kNumSuits = 4;

inline constexpr Street kFlop = 0;
inline constexpr Street kTurn = 1;
inline constexpr Street kRiver = 2;

/// The seats; every table by seat has `kOop` first. OOP acts first on every street.
using Seat = std::uint8_t;
inline constexpr Seat kOop = 0;
inline constexpr Seat kIp = 1;
constexpr Seat opponent_of(Seat seat) {
  return static_cast<Seat>(1 - seat);
}

template <typename T>
using BySeat = std::array<T, 2>;

/// The community cards. The flop keeps the order in which the user gave it.
struct Board {
  std::array<CardCode, 3> flop{kNoCard, kNoCard, kNoCard};
  CardCode turn = kNoCard;
  CardCode river = kNoCard;

  bool operator==(const Board&) const = default;
};

constexpr std::uint8_t rank_of(CardCode code) {
  return static_cast<std::uint8_t>(code >> 2);
}
constexpr std::uint8_t suit_of(CardCode code) {
  return static_cast<std::uint8_t>(code & 3);
}
constexpr CardCode make_card(int rank, int suit) {
  return static_cast<CardCode>(rank * 4 + suit);
}

/// The set of one card; empty for `kNoCard`.
constexpr CardMask mask_of(CardCode code) {
  return code < kNumCards ? CardMask{1} << code : CardMask{0};
}

/// The latest street of which the board holds a card.
constexpr Street street_of(const Board& board) {
  return board.river != kNoCard ? kRiver : board.turn != kNoCard ? kTurn : kFlop;
}

/// 0..12 from a rank character in either case. Throws `std::invalid_argument`.
std::uint8_t rank_from_char(char c);
/// 0..3 from a suit character in either case. Throws `std::invalid_argument`.
std::uint8_t suit_from_char(char c);
/// "23456789TJQKA"[rank]. Throws `std::out_of_range`.
char rank_to_char(std::uint8_t rank);
/// Throws `std::out_of_range` unless the code is in 0..51.
void check_card_code(CardCode code);
/// A card from two characters such as "Ah". Throws `std::invalid_argument`.
CardCode parse_card(std::string_view token);
/// Canonical text: rank, then suit in lower case. Throws `std::out_of_range`.
std::string card_to_string(CardCode code);
/// Three different cards; white space is ignored. Throws `std::invalid_argument`.
std::array<CardCode, 3> parse_flop(std::string_view text);
/// "flop" 0, "turn" 1, "river" 2; any other text gives 0.
Street street_from_string(std::string_view text);
/// Throws on a board with undealt flop cards, equal cards, or a river without a turn.
void validate_board(const Board& board);
/// A board from 6, 8 or 10 characters without separators; a single character without its partner
/// and whatever stands behind the river are not read. Throws as the functions above do.
Board parse_board(std::string_view text);

}  // namespace velmora
