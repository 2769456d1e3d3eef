// Actions as the user reads them and as the pages key them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "action_plan.h"

namespace velmora_app {

/// "none", "fold", "check", "call", "bet", "raise", "allin", "chance".
std::string_view action_kind_name(velmora::ActionKind kind);
/// Text for display, such as "Check" or "Bet 33%". `pot` (chips) is the base of the percentage of
/// the street total that a bet or raise reaches; below 1 there is no percentage.
std::string action_label(const velmora::Action& action, std::int32_t pot);
/// Key, such as "check" or "bet 33%"; `pot` as above.
std::string action_key(const velmora::Action& action, std::int32_t pot);

}  // namespace velmora_app
