#include <vector>

#include <gtest/gtest.h>

#include "results/actions.h"

namespace velmora_app {
namespace {

using velmora::Action;
using velmora::ActionKind;

TEST(ActionText, LabelsAndKeys) {
  struct Case {
    Action action;
    std::int32_t pot;
    const char* label;
    const char* key;
  };
  const Case cases[] = {
      {{ActionKind::kCheck, 0}, 100, "Check", "check"},
      {{ActionKind::kCall, 50}, 100, "Call", "call"},
      {{ActionKind::kAllIn, 1000}, 100, "All-In", "allin"},
      {{ActionKind::kChance, 51}, 100, "As", "chance"},
      {{ActionKind::kChance, 0}, 0, "2c", "chance"},
      {{ActionKind::kBet, 33}, 100, "Bet 33%", "bet 33%"},
      {{ActionKind::kBet, 12}, 7, "Bet 171%", "bet 171%"},
      {{ActionKind::kRaise, 150}, 200, "Raise 75%", "raise 75%"},
      {{ActionKind::kRaise, 2147483647}, 1, "Raise 214748364700%", "raise 214748364700%"},
      // No pot, no percentage.
      {{ActionKind::kBet, 10}, 0, "Bet", "bet"},
      {{ActionKind::kRaise, 10}, -5, "Raise", "raise"},
      {{ActionKind::kNone, 0}, 100, "Action", "none"},
      {{static_cast<ActionKind>(8), 0}, 100, "Action", "none"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(action_label(c.action, c.pot), c.label);
    EXPECT_EQ(action_key(c.action, c.pot), c.key);
  }
}

}  // namespace
}  // namespace velmora_app
