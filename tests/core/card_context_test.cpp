#include "card_context.h"

#include <algorithm>
#include <cmath>
#include <malloc.h>
#include <map>
#include <optional>
#include <set>
#include <tuple>

#include <gtest/gtest.h>

#include "faults.h"
#include "hand_eval.h"
#include "scoped_environment.h"

namespace velmora {
namespace {

using velmora_test::ScopedEnvironment;

// Few hands that meet each other in every way: shared pockets, shared cards, boards that pair them,
// weights between 0 and 1.
const char* const kOopRange = "AA,KK:0.5,QJs,76s:0.3,72o:0.1,AsKs:0.9";
const char* const kIpRange = "KK,QQ:0.25,QJs:0.7,AKo:0.6,76s,55:0.4";

CardContext make_context(const std::string& board, const std::string& oop = kOopRange,
                         const std::string& ip = kIpRange, SuitFolding folding = SuitFolding::kOn) {
  return {parse_board(board), {parse_range(oop), parse_range(ip)}, folding};
}

bool is_in(CardCode card, const std::vector<CardCode>& cards) {
  return std::find(cards.begin(), cards.end(), card) != cards.end();
}

std::vector<CardCode> deck_without(const std::vector<CardCode>& dead) {
  std::vector<CardCode> deck;
  for (CardCode card = 0; card < kNumCards; ++card) {
    if (!is_in(card, dead)) deck.push_back(card);
  }
  return deck;
}

bool holds(Pocket pocket, CardCode card) {
  return low_card(pocket) == card || high_card(pocket) == card;
}

bool conflict(Pocket x, Pocket y) {
  return holds(x, low_card(y)) || holds(x, high_card(y));
}

const std::vector<std::string> kBoards = {"Ah7c2s",   "Kh7h2h",     "QcQd5h",  "7s6s5s",
                                          "Ah7c2s7d", "Ks7h2hKd5c", "QcQd5hQh"};

TEST(CardContext, HandsAreTheRangeOffTheBoard) {
  for (const std::string& text : kBoards) {
    const CardContext cards = make_context(text);
    const std::vector<CardCode> board = cards.board_cards();
    ASSERT_EQ(board.size(), text.size() / 2);
    for (std::size_t i = 0; i < board.size(); ++i) {
      EXPECT_EQ(board[i], parse_card(text.substr(2 * i, 2)));
    }
    BySeat<std::map<Pocket, std::size_t>> place;
    for (const Seat seat : {kOop, kIp}) {
      std::vector<std::pair<Pocket, float>> expected;
      for (CardCode a = 0; a < kNumCards; ++a) {
        for (CardCode b = static_cast<CardCode>(a + 1); b < kNumCards; ++b) {
          const float weight = get_weight(cards.range_weights()[seat], a, b);
          if (weight > 0 && !is_in(a, board) && !is_in(b, board)) {
            expected.emplace_back(make_pocket(a, b), weight);
          }
        }
      }
      ASSERT_EQ(cards.num_hands(seat), expected.size()) << text;
      for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(cards.pockets(seat)[i], expected[i].first) << text;
        EXPECT_EQ(cards.hand_weights(seat)[i], expected[i].second) << text;
        place[seat][expected[i].first] = i;
      }
    }
    for (const Seat seat : {kOop, kIp}) {
      ASSERT_EQ(cards.same_hand_index(seat).size(), cards.num_hands(seat));
      for (const auto& [pocket, i] : place[seat]) {
        const auto twin = place[opponent_of(seat)].find(pocket);
        EXPECT_EQ(cards.same_hand_index(seat)[i],
                  twin == place[opponent_of(seat)].end() ? kNoHand : twin->second)
            << text;
      }
    }
  }
}

/// Every pair of codes, also those of cards that are not dealt or do not exist: what is possible on
/// the board has full lists, all else empty ones.
TEST(CardContext, ListsOfEveryRunoutHoldTheLiveHandsByStrength) {
  for (const std::string& text : kBoards) {
    const CardContext cards = make_context(text);
    const Board& board = cards.board();
    const std::vector<CardCode> flop(board.flop.begin(), board.flop.end());
    for (CardCode a = 0; a <= kNumCards; ++a) {
      for (CardCode b = 0; b <= kNumCards; ++b) {
        const bool fits_turn = board.turn == kNoCard || a == board.turn || b == board.turn;
        const bool fits_river = board.river == kNoCard || a == board.river || b == board.river;
        const bool possible = a != b && a < kNumCards && b < kNumCards && !is_in(a, flop) &&
                              !is_in(b, flop) && fits_turn && fits_river;
        for (const Seat seat : {kOop, kIp}) {
          const StrengthList& list = cards.strength_table(a, b)[seat];
          if (!possible) {
            ASSERT_TRUE(list.empty()) << text;
            continue;
          }
          std::set<std::pair<std::uint32_t, HandIndex>> ranked;
          LiveHandList live;
          for (std::size_t i = 0; i < cards.num_hands(seat); ++i) {
            const Pocket pocket = cards.pockets(seat)[i];
            if (holds(pocket, a) || holds(pocket, b)) continue;
            const auto hand = static_cast<HandIndex>(i);
            live.push_back({hand, low_card(pocket), high_card(pocket)});
            const std::array<CardCode, 7> seven = {
                b, high_card(pocket), flop[2], a, low_card(pocket), flop[0], flop[1]};
            ranked.emplace(evaluate_seven(seven) + 1, hand);
          }
          StrengthList expected = {{0, kNoHand, 0, 0}};
          for (const auto& [strength, hand] : ranked) {
            const Pocket pocket = cards.pockets(seat)[hand];
            expected.push_back({strength, hand, low_card(pocket), high_card(pocket)});
          }
          expected.push_back({0xFFFFFFFF, kNoHand, 0, 0});
          ASSERT_EQ(list, expected) << text;
          ASSERT_EQ(cards.live_hands(seat, a, b), live) << text;
          ASSERT_EQ(cards.live_hands(seat, b, a), live) << text;
        }
      }
    }
    EXPECT_TRUE(cards.strength_table(kNoCard, 8)[kOop].empty());
    EXPECT_TRUE(cards.strength_table(8, kNoCard)[kIp].empty());

    for (const Seat seat : {kOop, kIp}) {
      EXPECT_EQ(cards.live_hands(seat, kNoCard, kNoCard).size(), cards.num_hands(seat));
      for (const CardCode turn : deck_without(flop)) {
        if (board.turn != kNoCard && turn != board.turn) continue;
        std::vector<HandIndex> expected;
        for (std::size_t i = 0; i < cards.num_hands(seat); ++i) {
          if (!holds(cards.pockets(seat)[i], turn)) expected.push_back(static_cast<HandIndex>(i));
        }
        std::vector<HandIndex> found;
        for (const LiveHand& hand : cards.live_hands(seat, turn, kNoCard)) {
          found.push_back(hand.hand);
        }
        EXPECT_EQ(found, expected) << text;
      }
    }
  }
}

TEST(CardContext, MatchupWeightsAreThoseOfThePairsThatCanMeet) {
  const std::vector<std::tuple<std::string, std::string, std::string>> spots = {
      {"Ah7c2s", kOopRange, kIpRange},      {"Kh7h2h", kIpRange, kOopRange},
      {"Ks7h2hKd5c", kOopRange, kOopRange}, {"QcQd5h", "100%", "AA,72o:0.01"},
      {"2c3d4h", "AsAh", "AsAd,KK:0.5"},    {"2c3d4h", "AsAh", "AsAd,AhAc"}};
  for (const auto& [board, oop, ip] : spots) {
    const CardContext cards(parse_board(board), {parse_range_text(oop), parse_range_text(ip)});
    BySeat<std::vector<double>> met = {std::vector<double>(cards.num_hands(kOop)),
                                       std::vector<double>(cards.num_hands(kIp))};
    double total = 0;
    for (std::size_t i = 0; i < met[kOop].size(); ++i) {
      for (std::size_t j = 0; j < met[kIp].size(); ++j) {
        if (conflict(cards.pockets(kOop)[i], cards.pockets(kIp)[j])) continue;
        const double product = static_cast<double>(cards.hand_weights(kOop)[i]) *
                               static_cast<double>(cards.hand_weights(kIp)[j]);
        met[kOop][i] += product;
        met[kIp][j] += product;
        total += product;
      }
    }
    EXPECT_NEAR(cards.total_matchup_weight(), total, 1e-9 * total) << board;
    for (const Seat seat : {kOop, kIp}) {
      ASSERT_EQ(cards.matchup_weights(seat).size(), met[seat].size());
      ASSERT_EQ(cards.matchup_shares(seat).size(), met[seat].size());
      double shares = 0;
      for (std::size_t i = 0; i < met[seat].size(); ++i) {
        EXPECT_NEAR(cards.matchup_weights(seat)[i], met[seat][i], 1e-6 * met[seat][i] + 1e-12);
        const double share = total > 0 ? met[seat][i] / total : 0;
        EXPECT_NEAR(cards.matchup_shares(seat)[i], share, 1e-6 * share + 1e-12);
        shares += static_cast<double>(cards.matchup_shares(seat)[i]);
      }
      EXPECT_NEAR(shares, total > 0 ? 1 : 0, 1e-5) << board;
    }
  }
}

TEST(CardContext, FaultsOfBoardsAndRanges) {
  faults::expect([](const std::string& board) { return make_context(board); },
                 {{"AhKsQd", "none"},
                  {"AhKsQdKs", "invalid: Turn conflicts with flop"},
                  {"AhKsQdKcAh", "invalid: River conflicts with existing cards"},
                  {"AhKsQdKcKc", "invalid: River conflicts with existing cards"}});
  Board no_turn = parse_board("AhKsQd");
  no_turn.river = 0;
  const BySeat<PocketWeights> ranges = {parse_range(kOopRange), parse_range(kIpRange)};
  EXPECT_EQ(faults::of([&] { CardContext(no_turn, ranges); }),
            "invalid: River cannot be dealt without a turn");
  EXPECT_EQ(faults::of([&] { CardContext(Board{}, ranges); }),
            "invalid: Flop cards must be defined");

  const std::string empty = "invalid: Player range empty after filtering board cards";
  const auto with_ranges = [](const std::string& oop, const std::string& ip) {
    return faults::of([&] { make_context("AsAhAd", oop, ip); });
  };
  EXPECT_EQ(with_ranges("AsAh,AsAd,AhAd", "KK"), empty);
  EXPECT_EQ(with_ranges("KK", "AsAh,AsAd,AhAd"), empty);
  EXPECT_EQ(with_ranges("KK:0", "QQ"), empty);
  EXPECT_EQ(with_ranges("", "QQ"), empty);
  EXPECT_EQ(with_ranges("AK", "AK"), "none");
}

TEST(CardContext, TablesAreSharedWhileASpotIsAlive) {
  std::optional<CardContext> first(make_context("Ah7c2s"));
  const CardContext equal = make_context("Ah7c2s");
  EXPECT_EQ(first->cache_key(), equal.cache_key());
  EXPECT_EQ(&first->pockets(kOop), &equal.pockets(kOop));

  const CardContext others[] = {make_context("7cAh2s"),  // The order of the flop counts.
                                make_context("Ah7c2sKd"),
                                make_context("Ah7c2s", kIpRange, kOopRange),
                                make_context("Ah7c2s", std::string(kOopRange) + ",22:0.01"),
                                make_context("Ah7c2s", kOopRange, kIpRange, SuitFolding::kOff)};
  for (const CardContext& other : others) EXPECT_NE(&other.pockets(kOop), &equal.pockets(kOop));
  for (std::size_t i = 0; i < 4; ++i) EXPECT_NE(others[i].cache_key(), equal.cache_key()) << i;

  // The tables outlive the context that made them, and no longer than the last that uses them.
  const std::vector<Pocket> pockets = equal.pockets(kIp);
  first.reset();
  EXPECT_EQ(equal.pockets(kIp), pockets);
  const auto river_list = [] {
    return make_context("Td9c2h").strength_table(parse_card("As"), parse_card("Ac"))[kOop];
  };
  EXPECT_EQ(river_list(), river_list());
}

TEST(CardContext, NothingStaysOfASpotThatIsGone) {
  const auto build = [](int weight) {
    make_context("Ah7c2sKd9h", "AA,KK:0." + std::to_string(1000 + weight), "QQ");
  };
  build(0);  // What is set up once.
  const std::size_t before = mallinfo2().uordblks;
  for (int i = 1; i <= 200; ++i) build(i);
  EXPECT_LT(mallinfo2().uordblks, before + 10'000);
}

TEST(CardContext, WorkersChangeNoTable) {
  const char* const variable = "VELMORA_CARDCTX_MAX_WORKERS";
  const auto build = [&](const char* workers) {
    const ScopedEnvironment environment(variable, workers);
    return make_context("Kh7h2h");
  };
  // Alive at the same time, the second would share the tables of the first: without folding it has
  // its own.
  const ScopedEnvironment environment(variable, "3");
  const CardContext three = make_context("Kh7h2h", kOopRange, kIpRange, SuitFolding::kOff);
  const CardContext one = build("1");
  ASSERT_NE(&one.pockets(kOop), &three.pockets(kOop));
  for (const Seat seat : {kOop, kIp}) {
    EXPECT_EQ(one.pockets(seat), three.pockets(seat));
    EXPECT_EQ(one.matchup_shares(seat), three.matchup_shares(seat));
    for (CardCode a = 0; a < kNumCards; ++a) {
      for (CardCode b = 0; b < a; ++b) {
        ASSERT_EQ(one.strength_table(a, b)[seat], three.strength_table(a, b)[seat]);
        ASSERT_EQ(one.live_hands(seat, a, b), three.live_hands(seat, a, b));
      }
    }
  }
  EXPECT_EQ(one.total_matchup_weight(), three.total_matchup_weight());
  EXPECT_EQ(card_context_max_workers(), 3U);
}

}  // namespace
}  // namespace velmora
