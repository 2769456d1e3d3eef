#include "hand_eval.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <random>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "faults.h"

namespace velmora {
namespace {

using Seven = std::array<CardCode, 7>;

/// A five-card hand as a list that compares as hands do: the category, then the ranks by how often
/// they occur and by height.
std::vector<int> rank_five(const std::array<CardCode, 5>& cards) {
  std::map<int, int> counts;
  bool flush = true;
  for (const CardCode card : cards) {
    ++counts[card / 4];
    flush = flush && card % 4 == cards[0] % 4;
  }
  std::vector<std::pair<int, int>> groups;
  for (const auto& [rank, count] : counts) groups.emplace_back(count, rank);
  std::sort(groups.rbegin(), groups.rend());
  std::vector<int> ranks;
  for (const auto& group : groups) ranks.push_back(group.second);

  bool straight = ranks.size() == 5 && ranks[0] - ranks[4] == 4;
  if (ranks == std::vector<int>{12, 3, 2, 1, 0}) {
    straight = true;
    ranks = {3, 2, 1, 0, -1};
  }
  int category = 0;
  if (straight && flush) {
    category = 8;
  } else if (groups[0].first == 4) {
    category = 7;
  } else if (groups[0].first == 3 && groups[1].first == 2) {
    category = 6;
  } else if (flush) {
    category = 5;
  } else if (straight) {
    category = 4;
  } else if (groups[0].first == 3) {
    category = 3;
  } else if (groups[0].first == 2) {
    category = groups[1].first == 2 ? 2 : 1;
  }
  ranks.insert(ranks.begin(), category);
  return ranks;
}

/// The best of the 21 hands of five cards.
std::vector<int> best_of_21(const Seven& cards) {
  std::vector<int> best;
  for (std::size_t out1 = 0; out1 < 7; ++out1) {
    for (std::size_t out2 = out1 + 1; out2 < 7; ++out2) {
      std::array<CardCode, 5> five{};
      std::size_t count = 0;
      for (std::size_t i = 0; i < 7; ++i) {
        if (i != out1 && i != out2) five[count++] = cards[i];
      }
      best = std::max(best, rank_five(five));
    }
  }
  return best;
}

// Every comparison must come out as between the best five-card hands, ties included.
TEST(HandEval, ComparesAsTheBestOf21FiveCardHands) {
  std::mt19937 random(20);
  std::array<CardCode, kNumCards> deck{};
  std::iota(deck.begin(), deck.end(), CardCode{0});
  for (int i = 0; i < 12000; ++i) {
    // A narrow deck now and then makes the rare categories and ties frequent.
    const std::size_t deck_size = i % 4 == 0 ? 20 : kNumCards;
    std::sort(deck.begin(), deck.end());
    for (std::size_t k = 0; k < 9; ++k) std::swap(deck[k], deck[k + random() % (deck_size - k)]);
    // Two pockets on one board.
    Seven one{};
    Seven two{};
    std::copy_n(deck.begin(), 7, one.begin());
    std::copy_n(deck.begin() + 2, 7, two.begin());
    const auto best_one = best_of_21(one);
    const auto best_two = best_of_21(two);
    const HandStrength value_one = evaluate_seven(one);
    const HandStrength value_two = evaluate_seven(two);
    ASSERT_EQ(value_one >> 26, static_cast<HandStrength>(best_one[0]));
    ASSERT_EQ(value_one < value_two, best_one < best_two) << i;
    ASSERT_EQ(value_one == value_two, best_one == best_two) << i;
  }
}

TEST(HandEval, FrequenciesOfAllSevenCardHands) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "133,784,560 hands take too long under a sanitizer";
#endif
  std::array<std::uint64_t, 16> counts{};
  Seven cards{};
  const auto visit = [&](auto&& self, std::size_t place, int first) -> void {
    for (int code = first; code < kNumCards; ++code) {
      cards[place] = static_cast<CardCode>(code);
      if (place == 6) {
        ++counts[evaluate_seven(cards) >> 26];
      } else {
        self(self, place + 1, code + 1);
      }
    }
  };
  visit(visit, 0, 0);
  EXPECT_EQ(counts,
            (std::array<std::uint64_t, 16>{23'294'460, 58'627'800, 31'433'400, 6'461'620, 6'180'020,
                                           4'047'644, 3'473'184, 224'848, 41'584}));
}

}  // namespace
}  // namespace velmora
