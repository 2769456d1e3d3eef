#include "plan_counts.h"

#include <algorithm>
#include <deque>
#include <limits>
#include <stdexcept>
#include <unordered_map>

#include "betting_rules.h"

namespace velmora {
namespace {

/// Betting states that a counter remembers, at most. A spot that has more of them has no tree that
/// could be built: below a flop each stands for some two thousand nodes.
constexpr std::size_t kMaxStates = 2'000'000;
/// Sizes that a counter tries at all its nodes together: what bounds its time.
constexpr std::uint64_t kMaxSizesTried = 10'000'000;
/// Children that the recursion holds from the root to where it is: what bounds its memory.
constexpr std::size_t kMaxHeldChildren = 1'000'000;

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

void StreetCounts::add(const StreetCounts& other) {
  nodes += other.nodes;
  largest = std::max(largest, other.largest);
  deals += other.deals;
  cards += other.cards;
  for (std::size_t seat = 0; seat < 2; ++seat) {
    decisions[seat] += other.decisions[seat];
    action_rows[seat] += other.action_rows[seat];
    single_rows[seat] += other.single_rows[seat];
  }
}

/// What the recursion knows at a depth. Not on the call stack, which a deep tree would fill.
struct PlanCounter::Level {
  Subtree tree;
  StateKey key;
  std::vector<PlanChild> children;
};

struct PlanCounter::Memo {
  std::deque<Level> levels;
  std::unordered_map<StateKey, Subtree, StateHash> subtrees;
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

PlanCounts PlanCounter::count(const PlanPoint& point) {
  const PlanCounts counts = count_at_least(point);
  if (!complete_) throw std::length_error("Betting tree is too large");
  return counts;
}

PlanCounts PlanCounter::count_at_least(const PlanPoint& point) {
  held_children_ = 0;
  visit(point, 0);
  const Subtree& tree = memo_->levels[0].tree;
  trees_ = tree.trees;
  trees_[0].largest = trees_[0].nodes;
  return tree.counts;
}

bool PlanCounter::may_expand(const PlanPoint& point) {
  if (point.node.kind == NodeKind::kDecision && point.node.street <= kRiver) {
    const SeatSizing& sizing = settings_.sizing[point.node.street].seats[point.node.seat];
    sizes_tried_ += sizing.bets.size() + sizing.raises.size();
  }
  return ++sizes_tried_ <= kMaxSizesTried && held_children_ <= kMaxHeldChildren &&
         memo_->subtrees.size() < kMaxStates;
}

void PlanCounter::visit(const PlanPoint& point, std::size_t depth) {
  if (depth > kMaxPlanDepth) throw std::length_error("Betting tree is too deep");
  if (memo_->levels.size() <= depth) memo_->levels.emplace_back();
  Level& level = memo_->levels[depth];
  if (!enter(point, level)) return;
  for (std::size_t i = 0; i < level.children.size(); ++i) {
    visit(level.children[i].point, depth + 1);
    add_child(point.node.kind, i == 0, memo_->levels[depth + 1].tree, level.tree);
    if (!complete_) return;
  }
  held_children_ -= level.children.size();
  memo_->subtrees.emplace(level.key, level.tree);
}

// Neither of the next two may be inlined into the recursion: that would fill the stack again.
[[gnu::noinline]] bool PlanCounter::enter(const PlanPoint& point, Level& level) {
  const PlanNode& node = point.node;
  const BuildContext& context = point.context;
  Subtree& tree = level.tree;
  tree = {};
  tree.counts.nodes = 1;
  tree.trees[0].nodes = 1;
  if (node.kind == NodeKind::kTerminal && !node.runout) return false;

  level.key = {
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
  if (const auto known = memo_->subtrees.find(level.key); known != memo_->subtrees.end()) {
    tree = known->second;
    return false;
  }
  if (!may_expand(point)) {
    complete_ = false;
    return false;
  }
  level.children = expand(settings_, cards_, point);
  const std::size_t num_children = level.children.size();
  held_children_ += num_children;
  if (node.kind == NodeKind::kDecision && num_children > 0) {
    tree.counts.decision_nodes = 1;
    tree.counts.action_rows[node.seat] = num_children;
    tree.trees[0].decisions[node.seat] = 1;
    tree.trees[0].action_rows[node.seat] = static_cast<float>(num_children);
    tree.trees[0].single_rows[node.seat] = num_children == 1 ? 1.0F : 0.0F;
  } else if (node.kind == NodeKind::kChance) {
    tree.trees[0].deals = 1;
    tree.trees[0].cards = static_cast<float>(num_children);
  }
  return true;
}

[[gnu::noinline]] void PlanCounter::add_child(NodeKind kind, bool first, const Subtree& below,
                                              Subtree& tree) {
  tree.counts.add(below.counts);
  if (kind == NodeKind::kDecision) {
    for (std::size_t i = 0; i < tree.trees.size(); ++i) tree.trees[i].add(below.trees[i]);
  } else if (kind == NodeKind::kChance && first) {
    // The trees below the other cards are the same. Those of a run-out are not walked.
    for (std::size_t i = 1; i < tree.trees.size(); ++i) tree.trees[i] = below.trees[i - 1];
    tree.trees[1].largest = tree.trees[1].nodes;
  }
}

PlanCounts count_plan(const GameSettings& settings, const CardContext& cards) {
  return PlanCounter(settings, cards).count(root_point(settings, cards.board()));
}

}  // namespace velmora
