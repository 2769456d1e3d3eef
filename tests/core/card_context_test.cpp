#include "card_context.h"

#include <malloc.h>
#include <optional>

#include <gtest/gtest.h>

#include "faults.h"
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

TEST(CardContext, ABoardOrARangeWithoutCardsIsRefused) {
  const BySeat<PocketWeights> ranges = {parse_range(kOopRange), parse_range(kIpRange)};
  EXPECT_EQ(faults::of([&] { CardContext(Board{}, ranges); }),
            "invalid: Flop cards must be defined");
  const std::string empty = "invalid: Player range empty after filtering board cards";
  const auto with_ranges = [](const std::string& oop, const std::string& ip) {
    return faults::of([&] { make_context("AsAhAd", oop, ip); });
  };
  EXPECT_EQ(with_ranges("AsAh,AsAd,AhAd", "KK"), empty);
  EXPECT_EQ(with_ranges("KK", "AsAh,AsAd,AhAd"), empty);
  EXPECT_EQ(with_ranges("KK:0", "QQ"), empty);
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

  // The tables outlive the context that made them.
  const std::vector<Pocket> pockets = equal.pockets(kIp);
  first.reset();
  EXPECT_EQ(equal.pockets(kIp), pockets);
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
