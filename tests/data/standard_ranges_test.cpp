// What must hold of equilibrium charts, whatever model they come from.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "library_reader.h"

namespace velmora {
namespace {

using ::testing::AllOf;
using ::testing::Ge;
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

TEST(StandardRanges, HoldEveryRowOnce) {
  for (const char* seat : kSeats) {
    const auto rows = static_cast<std::ptrdiff_t>(rows_of(seat).size());
    EXPECT_EQ(rows, std::string_view(seat) == "oop" ? 230 : 225);
    EXPECT_EQ(std::distance(ranges_of(seat).begin(), ranges_of(seat).end()), rows);  // By name.
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

}  // namespace
}  // namespace velmora
