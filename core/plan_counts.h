// The size of a betting tree, found without building it.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

namespace velmora {

class CardContext;
enum class NodeKind : std::uint8_t;
struct GameSettings;
struct PlanPoint;

/// Counts saturate at the largest 64-bit number.
struct PlanCounts {
  std::uint64_t nodes = 0;
  std::uint64_t decision_nodes = 0;            ///< Those with at least one action.
  std::array<std::uint64_t, 2> action_rows{};  ///< By seat: actions over its decision nodes.

  void add(const PlanCounts& other);
};

/// The betting trees of one street, which a traversal holds in memory while it walks them: one for
/// each way to deal the street's card, whichever card that is. Single precision will do: a sum goes
/// up the tree, so its error stays at a few units in the last place for each level.
struct StreetCounts {
  float nodes = 0;
  float largest = 0;                   ///< Nodes of the largest tree.
  float deals = 0;                     ///< Chance nodes, at which the street ends.
  float cards = 0;                     ///< Children of these.
  std::array<float, 2> decisions{};    ///< By seat: those with at least one action.
  std::array<float, 2> action_rows{};  ///< By seat: their actions.
  std::array<float, 2> single_rows{};  ///< By seat: of these, the only ones of their node.

  float terminals() const { return nodes - decisions[0] - decisions[1] - deals; }
  void add(const StreetCounts& other);
};
/// The street of the root, the one after it, and the last.
using BettingTrees = std::array<StreetCounts, 3>;

/// Edges of a recursion from the root to a leaf, at most.
inline constexpr std::size_t kMaxPlanDepth = 4000;

/// Counts subtrees. Equal betting states are counted once, whichever cards and actions led to them,
/// so that a spot that no machine could hold is measured as quickly as a small one. Time and memory
/// are bounded whatever the spot: some seconds and a few hundred megabytes.
class PlanCounter {
 public:
  /// Both arguments must outlive the counter.
  PlanCounter(const GameSettings& settings, const CardContext& cards);
  ~PlanCounter();

  /// The counts of the subtree at a point. Throws `std::length_error` if the tree below it is
  /// deeper than `kMaxPlanDepth` or has more betting states than can be looked at,
  /// `std::logic_error` on an unknown street.
  PlanCounts count(const PlanPoint& point);
  /// The same for a tree of too many states, of which it gives what was counted so far.
  PlanCounts count_at_least(const PlanPoint& point);
  /// False once there were too many states: the counts are lower bounds.
  bool complete() const { return complete_; }
  /// The betting trees of the point that was counted last.
  const BettingTrees& betting_trees() const { return trees_; }

 private:
  struct Subtree {
    PlanCounts counts;
    BettingTrees trees;
  };
  struct Level;
  struct Memo;

  /// Counts into the level of the depth. The levels below it are overwritten.
  void visit(const PlanPoint& point, std::size_t depth);
  /// Begins to count at a point. False if there is nothing below it to be counted.
  bool enter(const PlanPoint& point, Level& level);
  /// Adds the counts below a child to those of its node, of this kind.
  static void add_child(NodeKind kind, bool first, const Subtree& below, Subtree& tree);
  /// Notes that so many sizes are about to be tried at a node. False if that is too much.
  bool may_expand(const PlanPoint& point);

  const GameSettings& settings_;
  const CardContext& cards_;
  std::unique_ptr<Memo> memo_;
  std::uint64_t sizes_tried_ = 0;
  std::size_t held_children_ = 0;  ///< Along the path, by the recursion.
  bool complete_ = true;
  BettingTrees trees_;
};

/// The counts of the whole tree of a spot. Throws as `PlanCounter::count`.
PlanCounts count_plan(const GameSettings& settings, const CardContext& cards);

}  // namespace velmora
