#include "cards.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "faults.h"

namespace velmora {
namespace {

std::string text_of(const Board& board) {
  std::string text;
  for (const CardCode code : board.flop) text += card_to_string(code);
  for (const CardCode code : {board.turn, board.river}) {
    text += code == kNoCard ? "-" : card_to_string(code);
  }
  return text;
}

TEST(Cards, EveryCodeHasOneTextInRankAndSuitOrder) {
  std::set<std::string> texts;
  for (int code = 0; code < kNumCards; ++code) {
    const auto card = static_cast<CardCode>(code);
    const std::string text = card_to_string(card);
    texts.insert(text);
    EXPECT_EQ(parse_card(text), card);
    std::string shouted = text;
    std::transform(text.begin(), text.end(), shouted.begin(), ::toupper);
    EXPECT_EQ(parse_card(shouted), card);
    std::transform(text.begin(), text.end(), shouted.begin(), ::tolower);
    EXPECT_EQ(parse_card(shouted), card);
    EXPECT_EQ(text[0], rank_to_char(rank_of(card)));
  }
  EXPECT_EQ(texts.size(), 52U);
  EXPECT_EQ(parse_card("2c"), 0);
  EXPECT_EQ(parse_card("2d"), 1);
  EXPECT_EQ(parse_card("3c"), 4);
  EXPECT_EQ(parse_card("Th"), 34);
  EXPECT_EQ(parse_card("As"), 51);
}

TEST(Cards, FaultsOfCardsAndFlops) {
  faults::expect(parse_card, {{"", "invalid: Card token must consist of two characters"},
                              {"Ahh", "invalid: Card token must consist of two characters"},
                              {"1c", "invalid: Invalid rank character"},
                              {"Ax", "invalid: Invalid suit character"}});
  faults::expect(parse_flop, {{"", "invalid: Flop string must contain exactly three cards"},
                              {"AhKsQdT", "invalid: Flop string must contain exactly three cards"},
                              {"AhAhQd", "invalid: Flop cards must be unique"},
                              {" Ah Ks\tQd ", "none"},
                              {"A\vh\fK\rs\nQd", "none"}});
  EXPECT_EQ(faults::of([] { rank_to_char(13); }), "range: Rank is out of range");
  for (const int code : {52, 100, 255}) {
    const auto card = static_cast<CardCode>(code);
    EXPECT_EQ(faults::of([&] { check_card_code(card); }), "range: Card code must be in [0, 52)");
    EXPECT_EQ(faults::of([&] { card_to_string(card); }), "range: Card code must be in [0, 52)");
    EXPECT_EQ(mask_of(card), 0U);
  }
}

TEST(Cards, BoardTexts) {
  const std::vector<std::pair<std::string, std::string>> boards{
      {"ahkSqD", "AhKsQd--"},        {"2cAs3d", "2cAs3d--"},     {"AhKsQdT", "AhKsQd--"},
      {"AhKsQdTc", "AhKsQdTc-"},     {"AhKsQdTc5", "AhKsQdTc-"}, {"AhKsQdTc5d", "AhKsQdTc5d"},
      {"AhKsQdTc5d??", "AhKsQdTc5d"}};
  for (const auto& [text, expected] : boards) {
    EXPECT_EQ(text_of(parse_board(text)), expected);
  }
  faults::expect(parse_board,
                 {{"", "invalid: Board must include at least a flop (6 chars, e.g. AhKsQd)"},
                  {"AhKsQ", "invalid: Board must include at least a flop (6 chars, e.g. AhKsQd)"},
                  {" Ah Ks\tQd ", "invalid: Flop string must contain exactly three cards"},
                  {"AhKsQd T", "invalid: Invalid rank character"},
                  {"AhKsQdTcT1", "invalid: Invalid suit character"}});

  EXPECT_EQ(street_of(parse_board("AhKsQd")), kFlop);
  EXPECT_EQ(street_of(parse_board("AhKsQdTc")), kTurn);
  EXPECT_EQ(street_of(parse_board("AhKsQdTc5d")), kRiver);
  for (const auto& [text, street] : std::vector<std::pair<std::string, Street>>{
           {"flop", 0}, {"turn", 1}, {"river", 2}, {"preflop", 0}, {"", 0}, {"Turn", 0}}) {
    EXPECT_EQ(street_from_string(text), street) << text;
  }
}

TEST(Cards, RulesOfABoardInTheirOrder) {
  const CardCode bad = 52;
  const CardCode none = kNoCard;
  const std::vector<std::pair<Board, std::string>> boards{
      {{{0, 1, 2}, none, none}, "none"},
      {{{0, 1, 2}, 3, 4}, "none"},
      {{{0, 0, none}, none, none}, "invalid: Flop cards must be defined"},
      {{{bad, none, 0}, none, none}, "range: Card code must be in [0, 52)"},
      {{{0, 0, bad}, none, none}, "range: Card code must be in [0, 52)"},
      {{{7, 3, 7}, bad, none}, "invalid: Flop cards must be unique"},
      {{{0, 1, 2}, bad, none}, "range: Card code must be in [0, 52)"},
      {{{0, 1, 2}, 1, bad}, "invalid: Turn conflicts with flop"},
      {{{0, 1, 2}, 3, bad}, "range: Card code must be in [0, 52)"},
      {{{0, 1, 2}, 3, 2}, "invalid: River conflicts with existing cards"},
      {{{0, 1, 2}, 3, 3}, "invalid: River conflicts with existing cards"},
      {{{0, 1, 2}, none, 3}, "invalid: River cannot be dealt without a turn"}};
  for (std::size_t i = 0; i < boards.size(); ++i) {
    EXPECT_EQ(faults::of([&] { validate_board(boards[i].first); }), boards[i].second) << i;
  }
}

}  // namespace
}  // namespace velmora
