#include "action_text.h"

#include <array>
#include <cstdio>

#include "cards.h"

namespace velmora_app {

using velmora::Action;
using velmora::ActionKind;

namespace {

/// `text` + "33%"; the percentage rounds as printf does.
std::string with_percent(std::string text, std::int32_t amount, std::int32_t pot) {
  std::array<char, 64> digits{};
  std::snprintf(digits.data(), digits.size(), " %.0f%%", static_cast<double>(amount) / pot * 100.0);
  return text + digits.data();
}

bool has_percent(const Action& action, std::int32_t pot) {
  return (action.kind == ActionKind::kBet || action.kind == ActionKind::kRaise) && pot >= 1;
}

}  // namespace

std::string_view action_kind_name(ActionKind kind) {
  constexpr std::array<std::string_view, 8> kNames = {"none", "fold",  "check", "call",
                                                      "bet",  "raise", "allin", "chance"};
  const auto index = static_cast<std::size_t>(kind);
  return index < kNames.size() ? kNames[index] : kNames[0];
}

std::string action_label(const Action& action, std::int32_t pot) {
  const auto sized = [&](const char* name) {
    return has_percent(action, pot) ? with_percent(name, action.amount, pot) : std::string(name);
  };
  switch (action.kind) {
    case ActionKind::kCheck: return "Check";
    case ActionKind::kCall: return "Call";
    case ActionKind::kFold: return "Fold";
    case ActionKind::kAllIn: return "All-In";
    case ActionKind::kChance:
      return velmora::card_to_string(static_cast<velmora::CardCode>(action.amount));
    case ActionKind::kBet: return sized("Bet");
    case ActionKind::kRaise: return sized("Raise");
    case ActionKind::kNone: break;
  }
  return "Action";
}

std::string action_key(const Action& action, std::int32_t pot) {
  std::string name(action_kind_name(action.kind));
  return has_percent(action, pot) ? with_percent(std::move(name), action.amount, pot) : name;
}

}  // namespace velmora_app
