#include "plan_counts.h"

#include <limits>
#include <stdexcept>
#include <unordered_map>

#include "betting_rules.h"

namespace velmora {
namespace {

/// Betting states that a counter remembers, at most. A spot that has more of them has no tree that
/// could be built: below a flop each stands for some two thousand nodes.
constexpr std::size_t kMaxStates = 2'000'000;

void add_saturating(std::uint64_t& sum, std::uint64_t x) {
  sum = x > std::numeric_limits<std::uint64_t>::max() - sum
            ? std::numeric_limits<std::uint64_t>::max()
            : sum + x;
}

/// What the shape of a subtree depends on. Of the cards, that is the number of those to come.
using StateKey = std::array<std::int32_t, 9>;

struct StateHash {
  std::size_t operator()(const StateKey& key) const {
    std::size_t hash = 0;
    for (const std::int32_t part : key) {
      hash = (hash ^ static_cast<std::uint32_t>(part)) * 0x9E3779B97F4A7C15;
      hash ^= hash >> 29;
    }
    return hash;
  }
};

}  // namespace

void PlanCounts::add(const PlanCounts& other) {
  add_saturating(nodes, other.nodes);
  add_saturating(decision_nodes, other.decision_nodes);
  add_saturating(action_rows[0], other.action_rows[0]);
  add_saturating(action_rows[1], other.action_rows[1]);
}

struct PlanCounter::Memo {
  std::unordered_map<StateKey, PlanCounts, StateHash> counts;
  std::array<std::int32_t, kNumCards> river_cards;  ///< By turn card; -1 while not counted.

  /// -1 before the turn, else the number of river cards to come, 0 once the river is dealt.
  std::int32_t cards_to_come(const BuildContext& context, const CardContext& cards) {
    if (context.turn == kNoCard) return -1;
    if (context.river != kNoCard) return 0;
    std::int32_t& count = river_cards[context.turn];
    if (count < 0) count = static_cast<std::int32_t>(chance_cards(context, cards).size());
    return count;
  }
};

PlanCounter::PlanCounter(const GameSettings& settings, const CardContext& cards)
    : settings_(settings), cards_(cards), memo_(std::make_unique<Memo>()) {
  memo_->river_cards.fill(-1);
}

PlanCounter::~PlanCounter() = default;

PlanCounts PlanCounter::count(const PlanPoint& point, std::size_t depth) {
  if (depth > kMaxPlanDepth) throw std::length_error("Betting tree is too deep");
  const PlanNode& node = point.node;
  const BuildContext& context = point.context;
  PlanCounts counts;
  counts.nodes = 1;
  if (node.kind == NodeKind::kTerminal && !node.runout) return counts;

  const StateKey key = {
      static_cast<std::int32_t>(node.kind) | (node.seat << 4) | (node.street << 8) |
          (context.aggressor << 12) | (static_cast<std::int32_t>(context.last_edge) << 16) |
          (static_cast<std::int32_t>(context.all_in) << 20),
      context.raises,
      context.stacks[0],
      context.stacks[1],
      context.street_bet,
      context.pot,
      node.commit,
      memo_->cards_to_come(context, cards_),
      node.runout,
  };
  if (const auto known = memo_->counts.find(key); known != memo_->counts.end()) {
    return known->second;
  }

  const std::vector<PlanChild> children = expand(settings_, cards_, point);
  if (node.kind == NodeKind::kDecision && !children.empty()) {
    counts.decision_nodes = 1;
    counts.action_rows[node.seat] = children.size();
  }
  for (const PlanChild& child : children) counts.add(count(child.point, depth + 1));
  if (memo_->counts.size() >= kMaxStates) throw std::length_error("Betting tree is too large");
  memo_->counts.emplace(key, counts);
  return counts;
}

PlanCounts count_plan(const GameSettings& settings, const CardContext& cards) {
  return PlanCounter(settings, cards).count(root_point(settings, cards.board()));
}

}  // namespace velmora
