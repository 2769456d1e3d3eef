// What must hold of equilibrium charts, whatever model they come from.
#include <regex>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "library_reader.h"

namespace velmora {
namespace {

using ::testing::AllOf;
using ::testing::Ge;
using ::testing::Gt;
using ::testing::Le;

using Names = std::vector<std::string>;

const Names kRakeLevels{"No rake", "50nl rake", "100nl rake", "200nl rake", "500nl rake"};
const Names kOpeners{"UTG", "HJ", "CO", "BTN", "SB"};
constexpr const char* kSeats[] = {"oop", "ip"};

const LibraryRows& rows_of(std::string_view seat) {
  static const LibraryRows oop = standard_rows("oop");
  static const LibraryRows ip = standard_rows("ip");
  return seat == "oop" ? oop : ip;
}
const Ranges& ranges_of(std::string_view seat) {
  static const Ranges oop(rows_of("oop"));
  static const Ranges ip(rows_of("ip"));
  return seat == "oop" ? oop : ip;
}

/// One opener and one who answers, in the seat ("oop" or "ip") of each.
struct Spot {
  std::string prefix;  ///< Of the rows: game and rake.
  std::string opener;
  std::string caller;
  std::string opener_seat;
  std::string caller_seat;

  const PocketWeights& open() const { return ranges_of("ip")[prefix + "RFI " + opener]; }
  const PocketWeights& answer(const std::string& action) const {
    return ranges_of(caller_seat)[prefix + "vs RFI " + opener + ": " + action + " " + caller];
  }
  const PocketWeights& vs_three_bet(const std::string& action) const {
    return ranges_of(
        opener_seat)[prefix + opener + " vs " + caller + " 3bet: " + opener + " " + action];
  }
  const PocketWeights& vs_four_bet() const {
    return ranges_of(
        caller_seat)[prefix + caller + " 3bet vs " + opener + " 4bet: " + caller + " Call"];
  }
};

std::vector<Spot> six_max_spots(const std::string& rake) {
  const Names order{"UTG", "HJ", "CO", "BTN", "SB", "BB"};
  std::vector<Spot> spots;
  for (std::size_t opener = 0; opener < 5; ++opener) {
    for (std::size_t caller = opener + 1; caller < 6; ++caller) {
      const bool opener_in_position = caller >= 4 && opener < 4;
      spots.push_back({rake + " / ", order[opener], order[caller],
                       opener_in_position ? "ip" : "oop", opener_in_position ? "oop" : "ip"});
    }
  }
  return spots;
}

std::vector<Spot> all_spots() {
  std::vector<Spot> spots;
  for (const std::string& rake : kRakeLevels) {
    for (const Spot& spot : six_max_spots(rake)) spots.push_back(spot);
    spots.push_back({"Heads up / " + rake + " / ", "SB", "BB", "ip", "oop"});
  }
  return spots;
}

std::string name_of(const Spot& spot) {
  return spot.prefix + spot.opener + " against " + spot.caller;
}

TEST(StandardRanges, HoldEveryRowOnceUnderItsName) {
  for (const char* seat : kSeats) {
    std::set<std::string> expected;
    for (const Spot& spot : all_spots()) {
      const bool two_players = spot.prefix.starts_with("Heads up");
      if (!two_players || spot.opener_seat == seat)
        expected.insert(spot.prefix + "RFI " + spot.opener);
      if (spot.caller_seat == seat) {
        const std::string answer = spot.prefix + "vs RFI " + spot.opener + ": ";
        expected.insert(answer + "Call " + spot.caller);
        expected.insert(answer + "3bet " + spot.caller);
        expected.insert(spot.prefix + spot.caller + " 3bet vs " + spot.opener +
                        " 4bet: " + spot.caller + " Call");
      } else {
        const std::string answer = spot.prefix + spot.opener + " vs " + spot.caller + " 3bet: ";
        expected.insert(answer + spot.opener + " Call");
        expected.insert(answer + spot.opener + " 4bet");
      }
    }
    Names names;
    for (const auto& row : rows_of(seat)) names.push_back(row.first);
    EXPECT_THAT(names, ::testing::UnorderedElementsAreArray(expected));
  }
  EXPECT_EQ(rows_of("oop").size(), 230);
  EXPECT_EQ(rows_of("ip").size(), 225);
}

TEST(StandardRanges, AreWrittenAsOneLabelAToken) {
  const std::regex token("[2-9TJQKA]{2}[so]?(:0\\.\\d{1,4})?");
  for (const char* seat : kSeats) {
    for (const auto& [name, text] : rows_of(seat)) {
      ASSERT_FALSE(text.empty()) << name;
      std::set<std::string> labels;
      for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(", ", begin), text.size());
        const std::string piece = text.substr(begin, end - begin);
        EXPECT_TRUE(std::regex_match(piece, token)) << name << ": " << piece;
        EXPECT_TRUE(labels.insert(piece.substr(0, piece.find(':'))).second)
            << name << ": " << piece;
        begin = end + 2;
      }
      EXPECT_GT(percent(parse_range(text)), 0) << name;
    }
  }
}

TEST(StandardRanges, OpensWidenTowardsTheButton) {
  for (const std::string& rake : kRakeLevels) {
    const auto open = [&](const std::string& position) {
      return percent(ranges_of("ip")[rake + " / RFI " + position]);
    };
    EXPECT_THAT(open("UTG"), AllOf(Ge(15), Le(20))) << rake;
    EXPECT_GT(open("HJ"), open("UTG")) << rake;
    EXPECT_GT(open("CO"), open("HJ")) << rake;
    EXPECT_GT(open("BTN"), open("CO")) << rake;
    EXPECT_THAT(open("BTN"), AllOf(Ge(40), Le(50))) << rake;
    EXPECT_THAT(open("SB"), AllOf(Ge(35), Le(60))) << rake;
    const double heads_up = percent(ranges_of("ip")["Heads up / " + rake + " / RFI SB"]);
    EXPECT_THAT(heads_up, AllOf(Ge(75), Le(95))) << rake;
    for (const std::string& position : kOpeners) {
      EXPECT_LT(open(position), heads_up) << rake << " " << position;
      EXPECT_EQ(ranges_of("oop")[rake + " / RFI " + position],
                ranges_of("ip")[rake + " / RFI " + position]);
    }
  }
}

TEST(StandardRanges, BetterHandsOpenAtLeastAsOften) {
  constexpr std::string_view kRanks = "AKQJT98765432";
  for (const Spot& spot : all_spots()) {
    const PocketWeights& open = spot.open();
    EXPECT_EQ(weight_of(open, "AA"), 1) << name_of(spot);
    for (std::size_t high = 0; high < kRanks.size(); ++high) {
      if (high > 0) {
        EXPECT_GE(weight_of(open, std::string(2, kRanks[high - 1])),
                  weight_of(open, std::string(2, kRanks[high])))
            << name_of(spot);
      }
      for (std::size_t low = high + 1; low < kRanks.size(); ++low) {
        const std::string ranks{kRanks[high], kRanks[low]};
        EXPECT_GE(weight_of(open, ranks + "s"), weight_of(open, ranks + "o"))
            << name_of(spot) << " " << ranks;
      }
    }
  }
}

TEST(StandardRanges, NoHandDoesMoreThanItCan) {
  PocketWeights always{};
  always.fill(1);
  for (const Spot& spot : all_spots()) {
    EXPECT_TRUE(within(sum(spot.answer("Call"), spot.answer("3bet")), always)) << name_of(spot);
    EXPECT_TRUE(within(sum(spot.vs_three_bet("Call"), spot.vs_three_bet("4bet")), spot.open()))
        << name_of(spot);
    EXPECT_TRUE(within(spot.vs_four_bet(), spot.answer("3bet"))) << name_of(spot);
  }
}

TEST(StandardRanges, BigPairsAreNotFoldedToARaise) {
  for (const Spot& spot : all_spots()) {
    for (const char* pair : {"AA", "KK", "QQ"}) {
      const auto together = [&](const PocketWeights& a, const PocketWeights& b) {
        return weight_of(a, pair) + weight_of(b, pair);
      };
      EXPECT_NEAR(together(spot.answer("Call"), spot.answer("3bet")), 1, 0.0051)
          << name_of(spot) << " " << pair;
      EXPECT_NEAR(together(spot.vs_three_bet("Call"), spot.vs_three_bet("4bet")), 1, 0.0051)
          << name_of(spot) << " " << pair;
    }
  }
}

TEST(StandardRanges, ThreeBetsAndFourBetsHaveThePlausibleSize) {
  for (const Spot& spot : all_spots()) {
    // The small blind opens so wide against one player that all that follows is wide.
    const bool blinds = spot.opener == "SB";
    const double four_bets = percent(spot.vs_three_bet("4bet"));
    EXPECT_THAT(percent(spot.answer("3bet")), AllOf(Ge(4), Le(blinds ? 28 : 15))) << name_of(spot);
    EXPECT_THAT(four_bets, AllOf(Ge(1), Le(blinds ? 10 : 6))) << name_of(spot);
    EXPECT_LT(four_bets, 0.25 * percent(spot.open())) << name_of(spot);
    EXPECT_LT(percent(spot.vs_three_bet("Call")), 0.5 * percent(spot.open())) << name_of(spot);
  }
  for (const std::string& rake : kRakeLevels) {
    const Spot big_blind{rake + " / ", "BTN", "BB", "ip", "oop"};
    EXPECT_THAT(percent(big_blind.answer("Call")) + percent(big_blind.answer("3bet")),
                AllOf(Ge(30), Le(50)))
        << rake;
  }
}

TEST(StandardRanges, MoreRakeMeansTighterCalls) {
  // The smaller the blinds, the more big blinds the house takes.
  const Names by_rake{"No rake", "500nl rake", "200nl rake", "100nl rake", "50nl rake"};
  for (std::size_t spot = 0; spot < six_max_spots("").size(); ++spot) {
    const auto called = [&](const std::string& rake) {
      return percent(six_max_spots(rake)[spot].answer("Call"));
    };
    EXPECT_GT(called("No rake"), called("500nl rake")) << name_of(six_max_spots("")[spot]);
    EXPECT_GT(called("500nl rake"), called("50nl rake")) << name_of(six_max_spots("")[spot]);
  }
  const auto all_calls = [](const std::string& rake) {
    double calls = 0;
    for (const Spot& spot : six_max_spots(rake)) calls += percent(spot.answer("Call"));
    return calls;
  };
  const auto heads_up_calls = [](const std::string& rake) {
    return percent(Spot{"Heads up / " + rake + " / ", "SB", "BB", "ip", "oop"}.answer("Call"));
  };
  for (std::size_t level = 1; level < by_rake.size(); ++level) {
    EXPECT_LT(all_calls(by_rake[level]), all_calls(by_rake[level - 1])) << by_rake[level];
    EXPECT_LT(heads_up_calls(by_rake[level]), heads_up_calls(by_rake[level - 1])) << by_rake[level];
  }
}

TEST(StandardRanges, CallersHoldHandsThatPlayWell) {
  // Against a random hand each hand on the left has less equity than the one on the right.
  const std::pair<const char*, const char*> better_to_play[] = {{"54s", "K4o"}, {"65s", "Q7o"},
                                                                {"76s", "K5o"}, {"87s", "K6o"},
                                                                {"22", "K6o"},  {"T8s", "Q8o"}};
  for (const Spot& spot : all_spots()) {
    if (spot.caller != "BB") continue;
    const PocketWeights defended = sum(spot.answer("Call"), spot.answer("3bet"));
    for (const auto& [left, right] : better_to_play) {
      EXPECT_GE(weight_of(defended, left), weight_of(defended, right))
          << name_of(spot) << " " << left << " " << right;
    }
    PocketWeights suited{};
    PocketWeights offsuit{};
    for (std::size_t i = 0; i < kNumPockets; ++i) {
      const auto [a, b] = pocket_cards(i);
      if (rank_of(a) == rank_of(b)) continue;
      (suit_of(a) == suit_of(b) ? suited : offsuit)[i] = spot.answer("Call")[i];
    }
    // 78 kinds of suited hands make 312 pockets, as many offsuit kinds make 936.
    EXPECT_GT(percent(suited) / 312, 1.3 * percent(offsuit) / 936) << name_of(spot);
  }
}

}  // namespace
}  // namespace velmora
