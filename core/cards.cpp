#include "cards.h"

#include <stdexcept>

#include "text.h"

namespace velmora {

namespace {

constexpr std::string_view kRankChars = "23456789TJQKA";
constexpr std::string_view kSuitChars = "cdhs";

bool has_equal_cards(const std::array<CardCode, 3>& flop) {
  return flop[0] == flop[1] || flop[0] == flop[2] || flop[1] == flop[2];
}

bool contains(const std::array<CardCode, 3>& flop, CardCode code) {
  return flop[0] == code || flop[1] == code || flop[2] == code;
}

}  // namespace

std::uint8_t rank_from_char(char c) {
  switch (to_lower(c)) {
    case 'a': return 12;
    case 'k': return 11;
    case 'q': return 10;
    case 'j': return 9;
    case 't': return 8;
    default: break;
  }
  if (c < '2' || c > '9') throw std::invalid_argument("Invalid rank character");
  return static_cast<std::uint8_t>(c - '2');
}

std::uint8_t suit_from_char(char c) {
  const std::size_t suit = kSuitChars.find(to_lower(c));
  if (suit == std::string_view::npos) throw std::invalid_argument("Invalid suit character");
  return static_cast<std::uint8_t>(suit);
}

char rank_to_char(std::uint8_t rank) {
  if (rank >= kNumRanks) throw std::out_of_range("Rank is out of range");
  return kRankChars[rank];
}

void check_card_code(CardCode code) {
  if (code >= kNumCards) throw std::out_of_range("Card code must be in [0, 52)");
}

CardCode parse_card(std::string_view token) {
  if (token.size() != 2) {
    throw std::invalid_argument("Card token must consist of two characters");
  }
  const std::uint8_t rank = rank_from_char(token[0]);
  return make_card(rank, suit_from_char(token[1]));
}

std::string card_to_string(CardCode code) {
  check_card_code(code);
  return {kRankChars[rank_of(code)], kSuitChars[suit_of(code)]};
}

std::array<CardCode, 3> parse_flop(std::string_view text) {
  const std::string cards = without_space(text);
  if (cards.size() != 6) {
    throw std::invalid_argument("Flop string must contain exactly three cards");
  }
  const std::string_view view = cards;
  std::array<CardCode, 3> flop{};
  for (std::size_t i = 0; i < flop.size(); ++i) flop[i] = parse_card(view.substr(2 * i, 2));
  if (has_equal_cards(flop)) throw std::invalid_argument("Flop cards must be unique");
  return flop;
}

Street street_from_string(std::string_view text) {
  if (text == "turn") return kTurn;
  if (text == "river") return kRiver;
  return kFlop;
}

void validate_board(const Board& board) {
  for (const CardCode code : board.flop) {
    if (code == kNoCard) throw std::invalid_argument("Flop cards must be defined");
    check_card_code(code);
  }
  if (has_equal_cards(board.flop)) throw std::invalid_argument("Flop cards must be unique");
  if (board.turn != kNoCard) {
    check_card_code(board.turn);
    if (contains(board.flop, board.turn)) {
      throw std::invalid_argument("Turn conflicts with flop");
    }
  }
  if (board.river != kNoCard) {
    check_card_code(board.river);
    if (contains(board.flop, board.river) || board.river == board.turn) {
      throw std::invalid_argument("River conflicts with existing cards");
    }
    if (board.turn == kNoCard) {
      throw std::invalid_argument("River cannot be dealt without a turn");
    }
  }
}

Board parse_board(std::string_view text) {
  if (text.size() < 6) {
    throw std::invalid_argument("Board must include at least a flop (6 chars, e.g. AhKsQd)");
  }
  Board board;
  board.flop = parse_flop(text.substr(0, 6));
  if (text.size() >= 8) board.turn = parse_card(text.substr(6, 2));
  if (text.size() >= 10) board.river = parse_card(text.substr(8, 2));
  return board;
}

}  // namespace velmora
