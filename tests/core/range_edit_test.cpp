#include <algorithm>
#include <map>
#include <random>

#include <gtest/gtest.h>

#include "range.h"

namespace velmora {
namespace {

/// "AA 1,KK 0.5" of the classes with a weight above 0, by label.
std::string shown(const std::string& text) {
  std::map<std::string, float> weights;
  for (const auto& [label, weight] : hand_class_weights(text)) {
    if (weight > 0) weights.emplace(label, weight);
  }
  std::string list;
  for (const auto& [label, weight] : weights) {
    std::string number = std::to_string(weight);
    number.erase(number.find_last_not_of('0') + 1);
    if (number.back() == '.') number.pop_back();
    list += (list.empty() ? "" : ",") + label + " " + number;
  }
  return list;
}

TEST(RangeEdit, AMatrixShowsWhatTheParserReads) {
  const std::map<std::string, std::string> cases{
      {"", ""},
      {"54s-76s", "54s 1,65s 1,76s 1"},
      // The mean over the combos of a class: 1 of 12, 2 of 4, 3 of 6.
      {"AhKd", "AKo 0.083333"},
      {"AhKh, AsKs", "AKs 0.5"},
      {"AsAh, AsAd, AsAc", "AA 0.5"},
      {"AA, AsAh:0.4", "AA 0.9"},
      // A token that can't be read adds nothing; the others stay in sight while it is typed.
      {"AA, K", "AA 1"},
      {"AA:abc, KK", "KK 1"},
      {"QQ, 50%", "QQ 1"},
      {"120%", ""}};
  for (const auto& [text, weights] : cases) EXPECT_EQ(shown(text), weights) << text;
  const auto half = hand_class_weights(" 50% ");
  EXPECT_TRUE(
      std::all_of(half.begin(), half.end(), [](const auto& c) { return c.weight == 0.5F; }));
}

TEST(RangeEdit, Combos) {
  EXPECT_EQ(range_combos("AhKd"), 1);
  EXPECT_EQ(range_combos("AA, AKs:0.5, KQo"), 6 + 2 + 12);
  EXPECT_EQ(range_combos("100%"), 1326);
  for (const char* text :
       {"50%", "AA", "AhKd", "random", "AA, KKs", "", ",", "AA:0", "0%", "AA, AA:0"}) {
    const std::string range(text);
    EXPECT_EQ(range_has_hand(range), range == "50%" || range == "AA" || range == "AhKd") << range;
  }
}

TEST(RangeEdit, PaintingAHand) {
  struct Case {
    std::string text, label;
    double weight;
    std::string with;
  };
  const std::vector<Case> adding{{"", "88", 1, "88"},
                                 {"AA", "88", 0.5, "AA, 88:0.5"},
                                 {"AA", "88", 0.33333, "AA, 88:0.333"},
                                 {"AA KK\tQQ,,JJ : 0.5", "88", 1, "AA, KK, QQ, JJ:0.5, 88"},
                                 {"AA, K", "88", 1, "AA, K, 88"},
                                 {"0%", "AKs", 0.5, "AKs:0.5"}};
  for (const Case& c : adding) EXPECT_EQ(with_hand(c.text, c.label, c.weight), c.with) << c.text;

  const std::vector<std::array<std::string, 3>> removing{
      {"22+, AKs", "77", "AKs"},    {"KK,A5s-A2s:0.5", "A3s", "KK"},
      {"AK, AA", "AKo", "AA"},      {"AhKd, AhKh, KK", "AKo", "AhKh, KK"},
      {"54s-98s, AA", "76s", "AA"}, {"foo, AA:0, KK, AA:0.5", "AA", "foo, KK"},
      {"100%", "AKs", ""}};
  for (const auto& [text, label, left] : removing)
    EXPECT_EQ(without_hand(text, label), left) << text;
}

TEST(RangeEdit, AFileReadsLikeTheSameTextTyped) {
  const std::map<std::string, std::string> cases{{"AA,KK,QQ:0.5", "AA, KK, QQ:0.5"},
                                                 {"AA\r\nKK:0.5\rQQ\n\n", "AA, KK:0.5, QQ"},
                                                 {"AA KK\nQQ : 0.5", "AA, KK, QQ:0.5"},
                                                 {"Ah Kd", "AhKd"},
                                                 {"\n50%\n", "50%"},
                                                 {" \n", ""}};
  for (const auto& [text, line] : cases) EXPECT_EQ(imported_range_text(text), line) << text;
  EXPECT_EQ(range_fault(imported_range_text("# my range\nAA")),
            "'#myrange': Invalid combo pattern length");
}

TEST(RangeEdit, AFaultNamesItsToken) {
  const std::map<std::string, std::string> cases{
      {"AA, 99-22, 50%", "'50%': Invalid rank character"},
      {"AA, KKs, K", "'KKs': Pair cannot have suitedness suffix"},
      {"AA:x", "'AA:x': Weight must be a number from 0 to 1"},
      {"AA:2", "'AA:2': Weight must be within [0, 1]"},
      {"120%", "'120%': Weight must be within [0, 1]"},
      {"100%", ""},
      {"", ""}};
  for (const auto& [text, fault] : cases) EXPECT_EQ(range_fault(text), fault) << text;
}

// Whatever stands in a field: painting puts a hand in and takes it out again.
TEST(RangeEdit, AnyTextCanBePaintedOn) {
  std::mt19937 random(7);
  const std::string alphabet = "AKQJT9842shdco+-:,, 05.%x";
  for (int i = 0; i < 20000; ++i) {
    std::string text(random() % 14, ' ');
    for (char& c : text) c = alphabet[random() % alphabet.size()];
    const std::string with = with_hand(text, "T9s", 1);
    ASSERT_NE(shown(with).find("T9s 1"), std::string::npos) << text;
    ASSERT_EQ(shown(without_hand(with, "T9s")).find("T9s"), std::string::npos) << text;
    const std::string line = imported_range_text(text);
    if (!range_fault(text).empty()) continue;
    ASSERT_EQ(range_fault(line), "") << text;
    ASSERT_EQ(parse_range_text(line), parse_range_text(text)) << text;
  }
}

}  // namespace
}  // namespace velmora
