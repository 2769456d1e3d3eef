// Size texts, and what the betting rules make of them. The first line holds numbers: the pot, the
// stack, the jam threshold and the way down the tree; then follow OOP's bets and raises and IP's.
#include <array>
#include <charconv>
#include <vector>

#include "betting_rules.h"
#include "fuzz_support.h"
#include "range.h"

namespace {

using namespace velmora;

/// The text up to the next end of a line, which is taken off.
std::string_view next_line(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return line;
}

std::int64_t next_number(std::string_view& text) {
  std::int64_t number = 0;
  const auto [stop, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
  if (!text.empty()) text.remove_prefix(1);
  return fault == std::errc() ? number : 0;
}

const CardContext& cards() {
  static const CardContext context(parse_board("AhKd7c"),
                                   {parse_range("QQ,JTs"), parse_range("JJ,T9s")});
  return context;
}

/// One way from the root to a leaf.
void walk(const GameSettings& settings, std::string_view way) {
  PlanPoint point = root_point(settings, cards().board());
  for (int depth = 0; depth < 100; ++depth) {
    const std::vector<PlanChild> children = expand(settings, cards(), point);
    if (children.empty()) return;
    if (point.node.kind == NodeKind::kDecision) {
      std::int32_t last = 0;
      for (const PlanChild& child : children) {
        const Action& action = child.action;
        fuzz::check(action.amount >= 0, "no action costs less than nothing");
        if (action.kind < ActionKind::kBet || action.amount < 1) continue;
        // Without a pot there is nothing to measure two sizes by.
        fuzz::check(action.amount > last || (settings.starting_pot == 0 && action.amount == last),
                    "sizes rise, and none stands twice");
        last = action.amount;
        for (const Seat seat : {kOop, kIp}) {
          fuzz::check(child.point.context.stacks[seat] >= 0, "nobody bets more than there is");
        }
      }
    }
    const auto choice = static_cast<std::uint64_t>(next_number(way)) % children.size();
    point = children[choice].point;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text = fuzz::text_of(data, size);
  fuzz::takes([&] { parse_bet_sizes(text, false); });
  fuzz::takes([&] { parse_bet_sizes(text, true); });
  std::string normal;
  if (fuzz::takes([&] { normal = normalize_sizing(text, true); })) {
    fuzz::check(normalize_sizing(normal, true) == normal, "a normal text stays as it is");
  }

  std::string_view numbers = next_line(text);
  GameSettings settings;
  settings.starting_pot = static_cast<std::int32_t>(next_number(numbers) & 0x7FFFFFFF);
  settings.effective_stack = static_cast<std::int32_t>(next_number(numbers) & 0x7FFFFFFF);
  const std::int64_t flags = next_number(numbers);
  settings.jam_threshold = {static_cast<double>(flags >> 2 & 0xFF) / 100, 0};
  StreetSizingText oop;
  StreetSizingText ip;
  oop.bet_sizes = next_line(text);
  oop.raise_sizes = next_line(text);
  ip.bet_sizes = next_line(text);
  ip.raise_sizes = next_line(text);
  oop.add_all_in = ip.add_all_in = flags & 1;
  oop.dont_donk = flags & 2;
  const bool bare = fuzz::takes([&] { parse_street_sizing_bare(oop, ip); });
  const bool told =
      fuzz::takes([&] { settings.sizing.fill(parse_street_sizing("flop", oop, ip)); });
  fuzz::check(bare == told, "a fault is one with and without its context");
  if (told) walk(settings, numbers);
  return 0;
}
