#include "action_plan.h"

#include <algorithm>
#include <deque>
#include <limits>
#include <optional>
#include <stdexcept>
#include <unordered_map>
#include <utility>
#include <vector>

#include "betting_rules.h"
#include "worker_pool.h"

namespace velmora {
namespace {

/// Where the next node and the next edge go. A subtree of n nodes takes n consecutive places in the
/// node list and, from the edge place at its start, n - 1 edges.
struct Cursor {
  std::size_t node = 0;
  std::size_t edge = 0;
};

/// A subtree below a dealt card whose place is known before it is built.
struct Subtree {
  PlanPoint point;
  Cursor cursor;
};

class PlanBuilder {
 public:
  PlanBuilder(const GameSettings& settings, const CardContext& cards, PageArray<PlanNode>& nodes,
              PageArray<Action>& actions, PageArray<NodeIndex>& children)
      : settings_(settings), cards_(cards), nodes_(nodes), actions_(actions), children_(children) {}

  /// Writes the betting of the first street in order and, in parallel, what lies below the cards
  /// that it leads to: `counter` gives the places that each of them takes.
  void build(PlanCounter& counter, std::size_t workers) {
    Cursor cursor;
    const std::size_t end = nodes_.size();
    std::vector<Subtree> below;
    fill(root_point(settings_, cards_.board()), cursor, [&](const PlanPoint& point) {
      below.push_back({point, cursor});
      const std::size_t nodes = counter.count(point).nodes;
      cursor.node += nodes;
      cursor.edge += nodes - 1;
    });
    if (cursor.node != end) throw std::logic_error("Betting tree has another size than counted");

    workers = std::min(workers, below.size());
    std::optional<WorkerPool> pool;
    if (workers >= 2) pool.emplace(workers - 1);
    parallel_for(pool ? &*pool : nullptr, below.size(), [&](std::size_t begin, std::size_t stop) {
      for (std::size_t i = begin; i < stop; ++i) fill_all(below[i].point, below[i].cursor);
    });
  }

 private:
  /// Writes the subtree of a point at the cursor and moves it behind. `on_card` takes over each
  /// subtree below a dealt card.
  template <typename OnCard>
  void fill(const PlanPoint& point, Cursor& cursor, const OnCard& on_card) {
    const bool deals = point.node.kind != NodeKind::kDecision;
    const std::vector<PlanChild> children = write_node(point, cursor);
    const std::size_t first_edge = cursor.edge - children.size();
    for (std::size_t i = 0; i < children.size(); ++i) {
      actions_[first_edge + i] = children[i].action;
      children_[first_edge + i] = static_cast<NodeIndex>(cursor.node);
      if (deals) {
        on_card(children[i].point);
      } else {
        fill(children[i].point, cursor, on_card);
      }
    }
  }

  void fill_all(const PlanPoint& point, Cursor& cursor) {
    fill(point, cursor, [this, &cursor](const PlanPoint& dealt) { fill_all(dealt, cursor); });
  }

  std::vector<PlanChild> write_node(const PlanPoint& point, Cursor& cursor) {
    std::vector<PlanChild> children = expand(settings_, cards_, point);
    PlanNode& node = nodes_[cursor.node++];
    node = point.node;
    node.actions = {actions_.data() + cursor.edge, children.size()};
    node.children = {children_.data() + cursor.edge, children.size()};
    cursor.edge += children.size();
    return children;
  }

  const GameSettings& settings_;
  const CardContext& cards_;
  PageArray<PlanNode>& nodes_;
  PageArray<Action>& actions_;
  PageArray<NodeIndex>& children_;
};

}  // namespace

ActionPlan::ActionPlan(GameSettings settings, const CardContext& cards)
    : settings_(std::move(settings)) {
  PlanCounter counter(settings_, cards);
  counts_ = counter.count(root_point(settings_, cards.board()));
  if (counts_.nodes > std::numeric_limits<NodeIndex>::max()) throw std::bad_alloc();
  nodes_ = PageArray<PlanNode>(counts_.nodes);
  actions_ = PageArray<Action>(counts_.nodes - 1);
  children_ = PageArray<NodeIndex>(counts_.nodes - 1);
  PlanBuilder(settings_, cards, nodes_, actions_, children_)
      .build(counter, worker_limit("VELMORA_ACTIONPLAN_MAX_WORKERS"));
}

std::size_t ActionPlan::memory_bytes() const {
  return nodes_.size() * sizeof(PlanNode) + actions_.size() * sizeof(Action) +
         children_.size() * sizeof(NodeIndex);
}

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
