#include <functional>

#include <gtest/gtest.h>

#include "spot.h"

using velmora_app::check_spot;
using velmora_app::SolveConfig;

namespace {

SolveConfig ready_spot() {
  SolveConfig config;
  config.board = "AsKd7h2c9s";
  config.oop_range = "AA,KK,QJs";
  config.ip_range = "50%";
  for (velmora::StreetSizingText* texts : {&config.oop_flop, &config.oop_turn, &config.oop_river,
                                           &config.ip_flop, &config.ip_turn, &config.ip_river}) {
    *texts = {"33, 75", "2.5x, a", false, false};
  }
  return config;
}

/// "field: sentence" or "field?" for one that is missing, separated by " | ".
std::string told(const std::function<void(SolveConfig&)>& change) {
  SolveConfig config = ready_spot();
  change(config);
  std::string list;
  for (const auto& fault : check_spot(config)) {
    list +=
        (list.empty() ? "" : " | ") + fault.field + (fault.missing ? "?" : ": " + fault.sentence);
  }
  return list;
}

}  // namespace

TEST(SpotCheck, TellsEachFaultAtItsField) {
  const struct {
    std::function<void(SolveConfig&)> change;
    std::string told;
  } cases[] = {
      {[](SolveConfig&) {}, ""},
      {[](SolveConfig& c) { c.board = "as Kd 7h"; }, ""},
      {[](SolveConfig& c) { c.board = ""; }, "board?"},
      {[](SolveConfig& c) { c.board = "AsKd7h__9s"; }, "board?"},
      {[](SolveConfig& c) { c.board = "AhAhAh"; }, "board: Flop cards must be unique"},
      {[](SolveConfig& c) { c.board = "AsKd7h1c"; }, "board: '1c': Invalid rank character"},
      {[](SolveConfig& c) { c.board = "AsKd7h2"; },
       "board: '2': Card token must consist of two characters"},
      {[](SolveConfig& c) { c.oop_range = "", c.ip_range = "0%"; }, "oop_range? | ip_range?"},
      {[](SolveConfig& c) { c.oop_range = "AKx", c.ip_range = "AA:0"; },
       "oop_range: 'AKx': Invalid suitedness suffix | ip_range?"},
      {[](SolveConfig& c) { c.oop_turn.raise_sizes = " ", c.ip_river.bet_sizes = "33 75"; },
       "oop_turn_raise_sizes? | ip_river_bet_sizes: Sizing: separate sizes by commas, as in "
       "'33, 75', not '33 75'"},
      {[](SolveConfig& c) { c.ip_flop.bet_sizes = "2x"; },
       "ip_flop_bet_sizes: '2x': Relative raise (x) is not allowed in this context"},
      {[](SolveConfig& c) { c.starting_pot = 0, c.effective_stack = -1; },
       "starting_pot: The starting pot must be 1 chip or more | "
       "effective_stack: The effective stack must be 1 chip or more"},
      {[](SolveConfig& c) { c.rake_percent = 101, c.rake_cap = -1; },
       "rake_percent: The rake must be from 0% to 100% of the pot | "
       "rake_cap: The rake cap must be 0 chips or more"},
      {[](SolveConfig& c) { c.ip_add_all_in_jam_threshold_pct = -5; },
       "ip_add_all_in_jam_threshold_pct: The limit of the jam must be 0% of the pot or more"},
      {[](SolveConfig& c) { c.ip_range = "AsAh"; },
       "ip_range: The cards of the board leave no hand of this range"},
  };
  for (const auto& c : cases) EXPECT_EQ(told(c.change), c.told);
}
