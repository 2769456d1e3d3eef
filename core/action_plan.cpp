#include "action_plan.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <stdexcept>
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
  /// that it leads to: `counter` tells how much room each of them takes.
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

}  // namespace velmora
