#include "range.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "faults.h"

namespace velmora {
namespace {

/// The grid classes in which every pocket has the same positive weight, such as "AKs" or
/// "AKs:0.5"; a class with mixed weights gives "AKs?".
std::set<std::string> classes_of(const PocketWeights& weights) {
  std::map<std::string, std::set<float>> by_label;
  for (std::size_t i = 0; i < kNumPockets; ++i) {
    const auto [a, b] = pocket_cards(i);
    by_label[hand_class_label(make_pocket(a, b))].insert(weights[i]);
  }
  std::set<std::string> classes;
  for (const auto& [label, values] : by_label) {
    if (values.size() > 1) {
      classes.insert(label + "?");
    } else if (const float weight = *values.begin(); weight > 0) {
      std::string text = std::to_string(weight);
      text.resize(text.find_last_not_of("0") + 1);
      classes.insert(weight == 1 ? label : label + ":" + text);
    }
  }
  return classes;
}

using Classes = std::set<std::string>;

std::size_t pockets_in(const PocketWeights& weights) {
  return kNumPockets - static_cast<std::size_t>(std::count(weights.begin(), weights.end(), 0.0F));
}

TEST(Range, ExpressionsCoverTheirClasses) {
  const Classes all_pairs{"22", "33", "44", "55", "66", "77", "88",
                          "99", "TT", "JJ", "QQ", "KK", "AA"};
  const std::vector<std::pair<std::string, Classes>> cases{
      {"", {}},
      {",, ,", {}},
      {" A\tK s , ", {"AKs"}},
      {"88+", {"88", "99", "TT", "JJ", "QQ", "KK", "AA"}},
      {"AKs+", {"AKs"}},
      {"KTs+", {"KTs", "KJs", "KQs"}},
      {"JTo+", {"JTo", "QJo", "KQo", "AKo"}},
      {"QJ+", {"QJs", "QJo", "KQs", "KQo", "AKs", "AKo"}},
      {"99-66", {"99", "88", "77", "66"}},
      {"AA-22", all_pairs},
      {"T9s-54s", {"T9s", "98s", "87s", "76s", "65s", "54s"}},
      {"AJs-A8s", {"AJs", "ATs", "A9s", "A8s"}},
      {"A2s-A5s", {"A5s", "A4s", "A3s", "A2s"}},
      {"K9-Q8", {"K9s", "K9o", "Q8s", "Q8o"}},
      {"K9s-Q7s", {"K9s", "K8s", "K7s", "Q9s", "Q8s", "Q7s"}},
      // The step 77 of the span is no hand of two ranks and is left out.
      {"98s-72s",
       {"98s", "97s", "96s", "95s", "94s", "93s", "92s", "87s", "86s", "85s", "84s", "83s", "82s",
        "76s", "75s", "74s", "73s", "72s"}},
      {"87o-75o", {"87o", "86o", "85o", "76o", "75o"}},
      {"AA,AA:0", {}},
      {"AKs:0.5,AK", {"AKs", "AKo"}},
      {"AK,AKs:0.5", {"AKs:0.5", "AKo"}},
      {"ATo:75e-2,AJo:0x1p-2,AQo:+.5", {"ATo:0.75", "AJo:0.25", "AQo:0.5"}},
      {"AsKs:0.5", {"AKs?"}},
      {"88+,A5s-A2s:0.5,AJo+,KQo",
       {"88", "99", "TT", "JJ", "QQ", "KK", "AA", "A5s:0.5", "A4s:0.5", "A3s:0.5", "A2s:0.5", "AJo",
        "AQo", "AKo", "KQo"}}};
  for (const auto& [text, classes] : cases) {
    EXPECT_EQ(classes_of(parse_range(text)), classes) << text;
  }

  // Exact combos: one pocket a step, in the suits of the first pattern.
  const PocketWeights steps = parse_range("AsQh+,TcTd-8c8h:0.5");
  EXPECT_EQ(pockets_in(steps), 5U);
  for (const auto& [a, b, weight] :
       std::vector<std::tuple<const char*, const char*, float>>{{"As", "Qh", 1.0F},
                                                                {"As", "Kh", 1.0F},
                                                                {"Tc", "Td", 0.5F},
                                                                {"9c", "9d", 0.5F},
                                                                {"8c", "8d", 0.5F}}) {
    EXPECT_EQ(get_weight(steps, parse_card(a), parse_card(b)), weight) << a << b;
  }
}

TEST(Range, FaultsOfRanges) {
  faults::expect(parse_range, {{"AA:", "invalid: Weight string is empty"},
                               {"AA:x", "invalid: invalid stof argument"},
                               {"AA:1e99", "range: stof argument out of range"},
                               {"AA:1:0", "invalid: Weight string contains invalid characters"},
                               {"AA:50%", "invalid: Weight string contains invalid characters"},
                               {"AA:1.01", "invalid: Weight must be within [0, 1]"},
                               {"AA:nan", "invalid: Weight must be within [0, 1]"},
                               {":0.5", "invalid: Missing range expression"},
                               {"+", "invalid: Expected trailing '+'"},
                               {"AKs-AQo", "invalid: Suitedness mismatch in range"},
                               {"K9-Q7", "invalid: Unsupported range expression"},
                               {"AA-K2", "invalid: Unsupported range expression"},
                               {"AsKs-QsTs", "invalid: Unsupported range expression"},
                               {"AsKs-AsAh", "invalid: Cards must differ"},
                               {"AA-", "invalid: Empty combo"},
                               {"A", "invalid: Invalid combo pattern length"},
                               {"KA", "invalid: First rank must be >= second rank"},
                               {"AsAs", "invalid: Duplicate cards are not allowed"},
                               {"AKx", "invalid: Invalid suitedness suffix"},
                               {"AAs", "invalid: Pair cannot have suitedness suffix"},
                               {"1K", "invalid: Invalid rank character"},
                               {"AKso", "invalid: Invalid suit character"},
                               {"AA,random", "invalid: Invalid combo pattern length"}});
  faults::expect(parse_combo_pattern,
                 {{"", "invalid: Empty combo"}, {" AK", "invalid: Invalid rank character"}});
  EXPECT_EQ(faults::of([] {
              expand_pattern({12, 12, Suitedness::kExact, 1, 1});
            }),
            "invalid: Cards must differ");
}

TEST(Range, PercentTexts) {
  for (const auto& [text, weight] :
       std::vector<std::pair<std::string, float>>{{"50%", 0.5F},
                                                  {" 50.%\n", 0.5F},
                                                  {"100%", 1.0F},
                                                  {"0%", 0.0F},
                                                  {".5%", 0.005F},
                                                  {"1.2.3%", 0.012F}}) {
    const PocketWeights weights = parse_range_text(text);
    EXPECT_EQ(std::count(weights.begin(), weights.end(), weight), 1326) << text;
  }
  EXPECT_EQ(classes_of(parse_range_text(" AKs ")), Classes{"AKs"});
  EXPECT_EQ(classes_of(parse_range_text("")), Classes{});
  faults::expect(
      parse_range_text,
      {{"120%", "invalid: Weight must be within [0, 1]"},
       {" .% ", "invalid: Invalid percent range '.%' (expected like '50%')"},
       {std::string(400, '9') + "%",
        "invalid: Invalid percent range '" + std::string(400, '9') + "%' (expected like '50%')"},
       {"%", "invalid: Invalid combo pattern length"},
       {"5%%", "invalid: Invalid rank character"},
       {"AA 50%", "invalid: Invalid combo pattern length"}});
}

TEST(Range, SuitSymmetry) {
  PocketWeights weights = parse_range("AA,AhKh:0.5,AsKs:0.5");
  EXPECT_TRUE(is_suit_symmetric(weights, 2, 3));
  EXPECT_TRUE(is_suit_symmetric(weights, 0, 1));
  EXPECT_FALSE(is_suit_symmetric(weights, 0, 2));
  EXPECT_TRUE(is_suit_symmetric(parse_range("AhKs,AsKh"), 3, 2));
  EXPECT_FALSE(is_suit_symmetric(parse_range("AhKs,AsKc"), 3, 2));
  weights[0] = std::nanf("");
  EXPECT_FALSE(is_suit_symmetric(weights, 2, 3));
}

TEST(Range, StrictNumbers) {
  for (const auto& [text, number] : std::vector<std::pair<std::string, double>>{
           {"2.5", 2.5}, {" -1e3", -1000}, {"+.5", 0.5}, {"0x10", 16}}) {
    EXPECT_EQ(parse_double_strict(text), number);
  }
  const auto double_fault = [](const std::string& text, const std::string& hex) {
    return "invalid: Failed to parse floating-point number from '" + text + "' (hex=" + hex + ")";
  };
  faults::expect(parse_double_strict, {{"", double_fault("", "")},
                                       {"1,5", double_fault("1,5", "312c35")},
                                       {"1e999", double_fault("1e999", "3165393939")},
                                       {"\xff\n", double_fault("\xff\n", "ff0a")},
                                       {std::string("1\0", 2),
                                        "invalid: Failed to parse floating-point number from '1"}});

  EXPECT_EQ(parse_int_strict("2147483647"), 2147483647);
  EXPECT_EQ(parse_int_strict(" -2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(parse_int_strict("+7"), 7);
  faults::expect(parse_int_strict, {{"", "invalid: Failed to parse integer from ''"},
                                    {"1.5", "invalid: Failed to parse integer from '1.5'"},
                                    {"99999999999999999999",
                                     "invalid: Failed to parse integer from "
                                     "'99999999999999999999'"},
                                    {"2147483648", "range: Integer value is out of range"}});
}

}  // namespace
}  // namespace velmora
