#include "bet_size.h"

#include <gtest/gtest.h>

#include "faults.h"

namespace velmora {

void PrintTo(const BetSize& size, std::ostream* out) {
  *out << "{kind " << static_cast<std::uint32_t>(size.kind) << ", value " << size.value
       << ", limit " << size.max_pot_fraction << ", chips " << size.chips << ", cap "
       << size.raise_cap << ", streets " << size.geometric_streets << "}";
}

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

BetSize percent(double fraction) {
  return {BetSizeKind::kPotPercent, fraction, 0, 0, 0, 0};
}
BetSize multiple(double value) {
  return {BetSizeKind::kRaiseMultiple, value, 0, 0, 0, 0};
}
BetSize chips(int amount, int cap = 0) {
  return {BetSizeKind::kChips, 0, 0, amount, cap, 0};
}
BetSize geometric(int streets, double limit) {
  return {BetSizeKind::kGeometric, 0, limit, 0, 0, streets};
}
const BetSize kAllInSize{BetSizeKind::kAllIn, 0, 0, 0, 0, 0};

TEST(BetSize, FormsOfAToken) {
  const std::vector<std::pair<std::string, BetSize>> cases{{"75%", percent(0.75)},
                                                           {" 33.5% ", percent(0.335)},
                                                           {"2.5x", multiple(2.5)},
                                                           {"100c", chips(100)},
                                                           {"100c3r", chips(100, 3)},
                                                           {"33", chips(33)},
                                                           {"e", geometric(0, kInfinity)},
                                                           {"2e", geometric(2, kInfinity)},
                                                           {"3%120e", geometric(3, 1.2)},
                                                           {"a", kAllInSize},
                                                           {"A", kAllInSize},
                                                           {"?!a", kAllInSize}};
  for (const auto& [token, size] : cases) EXPECT_EQ(parse_bet_size(token, true), size) << token;

  EXPECT_EQ(parse_bet_sizes(" 33% ,, \t, a,2.5x", true),
            (std::vector<BetSize>{percent(0.33), kAllInSize, multiple(2.5)}));
  const SeatSizing seat = parse_seat_sizing("50%", "2x, 50c");
  EXPECT_EQ(seat.bets, std::vector<BetSize>{percent(0.5)});
  EXPECT_EQ(seat.raises, (std::vector<BetSize>{multiple(2), chips(50)}));
}

TEST(BetSize, FaultsOfTokens) {
  const auto in_bets = [](const std::string& token) { return parse_bet_size(token, false); };
  const auto in_raises = [](const std::string& token) { return parse_bet_size(token, true); };
  const auto no_double = [](const std::string& text, const std::string& hex) {
    return "invalid: Failed to parse floating-point number from '" + text + "' (hex=" + hex + ")";
  };
  const auto no_int = [](const std::string& text) {
    return "invalid: Failed to parse integer from '" + text + "'";
  };
  faults::expect(in_bets, {{"", "invalid: Empty bet size token"},
                           {"2x", "invalid: Relative raise (x) is not allowed in this context"},
                           {"100c3r", "invalid: Raise cap is only valid for raises"},
                           {"100c", "none"}});
  faults::expect(in_raises, {{"1x", "invalid: Relative raise must exceed 1.0x"},
                             {"nanx", "invalid: Relative raise must exceed 1.0x"},
                             {"x", no_double("", "")},
                             {"5c3c", "invalid: Raise cap must end with 'r'"},
                             {"100c0r", "invalid: Raise cap must be positive"},
                             {"100c-1r", "invalid: Raise cap must be positive"},
                             {"100r", no_int("100r")},
                             {"1.5c", no_int("1.5")},
                             {"3000000000c", "range: Integer value is out of range"},
                             {"0e", "invalid: Geometric streets must be positive"},
                             {"2%e", no_double("", "")},
                             {"5 %", no_double("5 ", "3520")},
                             {"33$", no_int("33$")}});
}

std::string foreign(const std::string& piece) {
  return "invalid: Sizing: invalid token '" + piece + "'. Use numbers like '33, 75' or '33%, 75%'";
}
std::string no_comma(const std::string& piece) {
  return "invalid: Sizing: separate sizes by commas, as in '33, 75', not '" + piece + "'";
}

TEST(BetSize, NormalForm) {
  struct Case {
    std::string text, plain, with_all_in;
  };
  const std::vector<Case> cases{
      {"", "", "a"},
      {"33, 75", "33%,75%", "33%,75%,a"},
      {"33 %", "33%", "33%,a"},
      {" 33 %, 2.5 x ,100 c,2\te", "33%,2.5x,100c,2e", "33%,2.5x,100c,2e,a"},
      {"a,33", "a,33%", "a,33%"},
      {"100a", "100a", "100a,a"},
      {"2.5X, 100c3R, 2e", "2.5X,100c3R,2e", "2.5X,100c3R,2e,a"}};
  for (const auto& c : cases) {
    EXPECT_EQ(normalize_sizing(c.text, false), c.plain) << c.text;
    EXPECT_EQ(normalize_sizing(c.text, true), c.with_all_in) << c.text;
  }
  faults::expect([](const std::string& text) { return normalize_sizing(text, true); },
                 {{"33,%",
                   "invalid: Sizing: invalid token '%'. Use numbers like '33, 75' or "
                   "'33%, 75%'"},
                  {"c", "invalid: Sizing: invalid token 'c'"},
                  {"33, E", "invalid: Sizing: invalid token 'E'"},
                  {"33, fifty", foreign("fifty")},
                  {"33;75", foreign("33;75")},
                  {"33 75 125", no_comma("33 75 125")},
                  {"50, 33% 75%", no_comma("33% 75%")},
                  {"100c 3r", no_comma("100c 3r")}});
}

TEST(BetSize, TheFaultOfATextNamesItsSize) {
  const auto fault = [](const std::string& text, bool raises) {
    return bet_sizes_fault(text, false, raises);
  };
  for (const char* good : {"33, 75, 125", "33%", "a", "2e, 3%120e", "100c", ""}) {
    EXPECT_EQ(fault(good, false), "") << good;
  }
  EXPECT_EQ(fault("2.5x, 100c3r", true), "");
  EXPECT_EQ(fault("33, 2x", false), "'2x': Relative raise (x) is not allowed in this context");
  EXPECT_EQ(fault("2x, 1x", true), "'1x': Relative raise must exceed 1.0x");
  // What the number parser says of a text is for a log.
  EXPECT_EQ(fault("33.3.3", false),
            "Sizing: invalid token '33.3.3%'. Use numbers like '33, 75' or '33%, 75%'");
  EXPECT_EQ(fault("33 75", false), no_comma("33 75").substr(9));
}

TEST(BetSize, SizesOfAStreet) {
  const StreetSizingText oop{"33, 75", "2x", true, false};
  const StreetSizingText ip{"50", "", false, true};
  StreetSizing sizing = parse_street_sizing("turn", oop, ip);
  const std::vector<BetSize> oop_bets{percent(0.33), percent(0.75), kAllInSize};
  EXPECT_EQ(sizing.seats[kOop].bets, oop_bets);
  EXPECT_EQ(sizing.seats[kOop].raises, (std::vector<BetSize>{multiple(2), kAllInSize}));
  EXPECT_EQ(sizing.seats[kIp].bets, std::vector<BetSize>{percent(0.5)});
  EXPECT_TRUE(sizing.seats[kIp].raises.empty());
  EXPECT_EQ(sizing.donk, oop_bets);

  sizing = parse_street_sizing_bare({"33", "", true, true}, ip);
  ASSERT_TRUE(sizing.donk.has_value());
  EXPECT_TRUE(sizing.donk->empty());
}

}  // namespace
}  // namespace velmora
