#include "hand_categories.h"

#include <algorithm>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hand_eval.h"
#include "spots.h"

namespace velmora {
namespace {

using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using Names = std::vector<std::string_view>;

Pocket pocket_of(std::string_view text) {
  return make_pocket(parse_card(text.substr(0, 2)), parse_card(text.substr(2, 2)));
}

std::vector<CardCode> cards_of(std::string_view text) {
  std::vector<CardCode> cards;
  for (; !text.empty(); text.remove_prefix(2)) cards.push_back(parse_card(text.substr(0, 2)));
  return cards;
}

TEST(HandCategories, OfAPocketOnABoard) {
  const struct {
    const char* board;
    const char* pocket;
    Names names;
  } cases[] = {
      {"AsKd7c", "Ah2h", {"top pair"}},
      {"AsKd7c", "KhQh", {"middle pair"}},
      {"AsKd7c", "7h2h", {"bottom pair"}},
      {"AsKd7c", "QhQd", {"dry pair"}},
      {"9h8d2c", "QhQd", {"overpair"}},
      {"AsKd7c", "7h7d", {"set"}},
      {"AsAd7c", "Ah2h", {"trips"}},
      {"AsAdAc", "2h2d", {"full house"}},
      {"AsKdAc", "KhQs", {"two pair"}},  // One of the pairs is the board's.
      {"AsAd7c7d", "Ah2h", {"full house"}},
      {"7s7d7c2h", "7hAd", {"quads"}},
      {"7s7d7c2h", "AhKd", {"trips"}},  // The board's own.
      // Draws.
      {"Ah9h3c", "Kh2h", {"flush draw"}},
      {"Ah9h3c", "Kh2d", {"back door flush draw"}},
      {"Ah9h3c6s", "Kh2d", {"air"}},
      {"Ah9h3h", "KdQd", {"air"}},  // Three of a suit in which the pocket has no part.
      {"9h8d2c", "7s6s", {"open ended straight draw"}},
      {"9h6d2c", "8s5s", {"gutter"}},
      {"9h7d3c", "6s5s", {"open ended straight draw"}},  // Two gaps count as open-ended.
      {"5h6d7c8s", "AdAh", {"open ended straight draw", "overpair"}},
      {"5h3d4c", "AdKs", {"gutter"}},  // The ace is low.
      {"KhQdJc", "AdTs", {"straight"}},
      {"9h8h2c", "9s8d", {"two pair"}},
      {"9h8h2h", "9s8s", {"two pair"}},
      {"9h8d2h", "9c8h", {"back door flush draw", "two pair"}},
      {"9h8h2h", "9c8d", {"two pair"}},
      {"9h8h2h3h", "9c8d", {"two pair"}},  // Four of a suit, none of them the pocket's.
      {"9h8h2c3d", "9d2h", {"two pair"}},
      {"9h8h2c3h", "9d2h", {"flush draw", "two pair"}},
      {"KhQhJh", "AdTh", {"flush draw", "straight"}},  // A straight, and yet a draw.
      {"KhQhJh", "AhTh", {"straight flush"}},
      {"9h8h2h", "AhKh", {"flush"}},
      {"AhKh9c4d", "9d8d", {"pair"}},
      {"AhKh9c4d", "4h8s", {"bottom pair"}},
      {"AhKh9c4d7s", "9d8s", {"pair"}},
      {"AhKh9c4d7s", "4h3s", {"bottom pair"}},
      // Missed draws, told only of hands that add nothing to the board.
      {"As9d7d3h2c", "KdQd", {"missed FD"}},
      {"As9d3h7d2c", "KdQd", {"missed FD"}},  // Drawn to from the turn on.
      {"As9d7d3hKc", "KdQd", {"middle pair"}},
      {"8s7h2c3dKs", "Td9c", {"missed OESD"}},
      {"8s7h2c3dKs", "JdTc", {"missed gutter"}},
      {"8d7d2c3hKs", "Td9d", {"missed FD", "missed OESD"}},
      {"AsAd9c7h3s", "KdQd", {"air"}},
      {"AsAd9d7h3s", "KdQd", {"missed FD"}},
      {"AsKsQsJsTs", "2d2c", {"straight flush"}},  // The board plays.
  };
  for (const auto& c : cases) {
    const auto game = velmora_test::make_game(
        {.board = c.board, .oop_range = "22-55,66", .ip_range = "22-55,66", .sizes = {}});
    const Names names = hand_categories(*game, game->nodes()[0], pocket_of(c.pocket));
    EXPECT_THAT(names, ElementsAreArray(c.names)) << c.pocket << " on " << c.board;

    // The set tells the same, but for the pair that has no row.
    CategorySet expected = 0;
    for (std::size_t i = 0; i < kHandCategoryNames.size(); ++i) {
      if (std::count(names.begin(), names.end(), kHandCategoryNames[i])) expected |= 1U << i;
    }
    if (names == Names{"pair"}) expected = 1U << 20;
    EXPECT_EQ(category_set(cards_of(c.board), pocket_of(c.pocket)), expected) << c.pocket;
  }
}

TEST(HandCategories, BoardOfANode) {
  const auto game = velmora_test::make_game(
      {.board = "AsKd7c", .oop_range = "22", .ip_range = "33", .sizes = {}});
  PlanNode node = game->nodes()[0];
  EXPECT_EQ(node_board(*game, node), cards_of("AsKd7c"));
  node.turn = parse_card("2h");
  EXPECT_EQ(node_board(*game, node), cards_of("AsKd7c2h"));
  node.river = parse_card("9d");
  EXPECT_EQ(node_board(*game, node), cards_of("AsKd7c2h9d"));
  EXPECT_THAT(hand_categories(*game, node, pocket_of("9c9h")), ElementsAreArray({"set"}));
  node.turn = node.river = kNoCard;
  EXPECT_EQ(category_set(cards_of("AsKd"), pocket_of("9c9h")), 0U);

  // A hand that holds a card of the board isn't there: two cards of one suit and three of the board
  // are no flush if one of them is the same.
  EXPECT_EQ(category_set(cards_of("Qh7h2cAh"), pocket_of("AhKh")), 0U);
  node.turn = parse_card("2h");
  EXPECT_THAT(hand_categories(*game, node, pocket_of("2h2s")), IsEmpty());

  const auto river = velmora_test::make_game(
      {.board = "AsKd7c2h9d", .oop_range = "33", .ip_range = "44", .sizes = {}});
  node.turn = parse_card("3h");  // A node's card takes the place of the board's.
  EXPECT_EQ(node_board(*river, node), cards_of("AsKd7c3h9d"));
}

TEST(HandCategories, AgreeWithTheEvaluatorOnSevenCards) {
  std::mt19937 random(7);
  std::vector<CardCode> deck(kNumCards);
  for (CardCode card = 0; card < kNumCards; ++card) deck[card] = card;
  std::array<int, 9> seen{};
  for (int i = 0; i < 200'000; ++i) {
    for (std::size_t k = 0; k < 7; ++k) std::swap(deck[k], deck[k + random() % (deck.size() - k)]);
    std::array<CardCode, 7> cards{};
    std::copy_n(deck.begin(), 7, cards.begin());
    const std::uint32_t made = made_category(cards);
    ASSERT_EQ(made, evaluate_seven(cards) >> 26);
    ++seen[made];
  }
  EXPECT_THAT(seen, ::testing::Each(::testing::Gt(0)));
  EXPECT_EQ(made_category(cards_of("AsKsQsJs")), 0U);
  EXPECT_EQ(made_category(cards_of("AsKsQsJsTs")), 8U);
  EXPECT_EQ(made_category(cards_of("AsAdAcKsKd2h")), 6U);
  EXPECT_THROW(made_category(std::vector<CardCode>{0, 1, 2, 3, 52}), std::out_of_range);
}

}  // namespace
}  // namespace velmora
