#include "spot_config.h"

#include <limits>

#include <gtest/gtest.h>

using velmora_app::SolveConfig;
using velmora_app::StreetSizingText;

TEST(NormalizedBoard, KeepsPairsThatAreCards) {
  const std::pair<const char*, const char*> cases[] = {
      {" A s\tk\nD 7 H ", "AsKd7h"},
      {"AsXx7h", "As7h"},  // A pair that is no card is dropped,
      {"As__7h", "As7h"},  // as is an empty slot,
      {"AsK7h", "As"},     // but the walk goes on in steps of two,
      {"10sKd7h", ""},     // also where that tears all cards apart,
      {"AsKdQ", "AsKd"},   // and a last single character is not read.
      {"ŁsKd", "Kd"},      // Not the 'A' of its low byte.
  };
  for (const auto& [text, board] : cases) {
    EXPECT_EQ(normalizedBoard(text).toStdString(), board) << text;
  }
}

TEST(MakeSolveConfig, AbsentAndNullKeysKeepTheDefaults) {
  const QVariant null = QVariant::fromValue(nullptr);
  const QVariantMap nulls{{"starting_pot", QVariant()},
                          {"starting_street", null},
                          {"max_iterations", null},
                          {"target_exploitability", null}};
  for (const QVariantMap& map : {QVariantMap(), nulls}) {
    const SolveConfig config = makeSolveConfig(map);
    EXPECT_EQ(config.board + config.oop_range + config.ip_range, "");
    EXPECT_EQ(config.starting_pot, 100);
    EXPECT_EQ(config.effective_stack, 100);
    EXPECT_EQ(config.rake_percent + config.rake_cap, 0);
    EXPECT_EQ(config.starting_street, "flop");
    EXPECT_EQ(config.max_iterations, 2000U);
    EXPECT_EQ(config.target_exploitability, 0.1F);
    EXPECT_EQ(config.thread_count, 1U);
    EXPECT_EQ(config.ip_river, StreetSizingText());
    EXPECT_FALSE(config.oop_add_all_in_jam_threshold_pct);
  }
}

TEST(MakeSolveConfig, ACountIsHeldToItsType) {
  const std::pair<QVariant, std::uint32_t> cases[] = {
      {-5, 0U}, {4'294'967'295U, 4'294'967'295U}, {1e12, 4'294'967'295U}, {"12", 12U}};
  for (const auto& [value, count] : cases) {
    EXPECT_EQ(makeSolveConfig({{"max_iterations", value}}).max_iterations, count)
        << value.toString().toStdString();
  }
}

TEST(MakeSolveConfig, AJamThresholdIsReadOnlyIfEnabled) {
  const SolveConfig config = makeSolveConfig({{"ip_add_all_in_jam_threshold_enabled", true},
                                              {"oop_add_all_in_jam_threshold_enabled", false},
                                              {"oop_add_all_in_jam_threshold_pct", 5}});
  EXPECT_EQ(config.ip_add_all_in_jam_threshold_pct, 0.0);
  EXPECT_FALSE(config.oop_add_all_in_jam_threshold_pct);
}

TEST(SolveConfigMapOfProject, EveryKeyArrivesInItsOwnField) {
  QVariantMap state{
      {"boardText", "qs jh 2h"},     {"oopRangeText", "AA"},   {"ipRangeText", "KK"},
      {"betSizesText", "52"},        {"maxIterations", 400},   {"startingPot", 180},
      {"effectiveStack", 910},       {"threadCount", 12},      {"startingStreet", "turn"},
      {"targetExploitability", 0.5}, {"rakePercent", 5.5},     {"rakeCap", 30},
      {"oopRiverDontDonk", true},    {"ipTurnAddAllIn", true}, {"ipAddAllInIfJamLtEnabled", true},
      {"ipAddAllInIfJamLtPct", 12.5}};
  for (const QString stem : {"oopFlop", "oopTurn", "oopRiver", "ipFlop", "ipTurn", "ipRiver"}) {
    state[stem + "BetSizesText"] = stem + "b";
    state[stem + "RaiseSizesText"] = stem + "r";
  }
  const SolveConfig config = makeSolveConfig(solveConfigMapOfProject(state));
  EXPECT_EQ(config.board, "QsJh2h");
  EXPECT_EQ(config.oop_range, "AA");
  EXPECT_EQ(config.ip_range, "KK");
  EXPECT_EQ(config.max_iterations, 400U);
  EXPECT_EQ(config.starting_pot, 180);
  EXPECT_EQ(config.effective_stack, 910);
  EXPECT_EQ(config.thread_count, 12U);
  EXPECT_EQ(config.starting_street, "turn");
  EXPECT_EQ(config.target_exploitability, 0.9F);
  EXPECT_EQ(config.rake_percent, 5.5);
  EXPECT_EQ(config.rake_cap, 30);
  EXPECT_EQ(config.oop_flop, (StreetSizingText{"oopFlopb", "oopFlopr", false, false}));
  EXPECT_EQ(config.oop_turn, (StreetSizingText{"oopTurnb", "oopTurnr", false, false}));
  EXPECT_EQ(config.oop_river, (StreetSizingText{"oopRiverb", "oopRiverr", false, true}));
  EXPECT_EQ(config.ip_flop, (StreetSizingText{"ipFlopb", "ipFlopr", false, false}));
  EXPECT_EQ(config.ip_turn, (StreetSizingText{"ipTurnb", "ipTurnr", true, false}));
  EXPECT_EQ(config.ip_river, (StreetSizingText{"ipRiverb", "ipRiverr", false, false}));
  EXPECT_EQ(config.ip_add_all_in_jam_threshold_pct, 12.5);
  EXPECT_FALSE(config.oop_add_all_in_jam_threshold_pct);
  EXPECT_EQ(solveConfigMapOfProject({}), QVariantMap());
}

TEST(SolveConfigMapOfProject, TheTargetIsAnAmountOfChips) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const struct {
    QVariant pot;
    QVariant percent;
    double amount;
  } cases[] = {{"180", "0.5", 0.9}, {0, 0.5, 0},       {-5, 0.5, 0}, {100, kNan, 0},
               {100, kInfinity, 0}, {kInfinity, 1, 0}, {kNan, 1, 0}, {100, 0.0, 0}};
  for (const auto& c : cases) {
    const QVariantMap map =
        solveConfigMapOfProject({{"startingPot", c.pot}, {"targetExploitability", c.percent}});
    EXPECT_EQ(map.value("target_exploitability").toDouble(), c.amount)
        << c.pot.toString().toStdString() << " * " << c.percent.toString().toStdString();
  }
}
