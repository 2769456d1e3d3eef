// The betting tree of a spot: every sequence of actions and dealt cards, as a flat list of nodes,
// and its size, counted without building it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "bet_size.h"
#include "card_context.h"
#include "cards.h"
#include "huge_pages.h"

namespace velmora {

enum class ActionKind : std::uint8_t {
  kNone = 0,  ///< No action yet.
  kFold = 1,
  kCheck = 2,
  kCall = 3,    ///< Amount: chips that the caller puts in.
  kBet = 4,     ///< Amount: the street total that is reached.
  kRaise = 5,   ///< Amount: the street total that is reached.
  kAllIn = 6,   ///< A bet or raise for the whole stack; amount as for these.
  kChance = 7,  ///< A dealt card; amount: its code.
};

struct Action {
  ActionKind kind = ActionKind::kNone;
  std::int32_t amount = 0;

  bool operator==(const Action&) const = default;
};

enum class NodeKind : std::uint8_t {
  kDecision = 0,
  kChance = 1,    ///< Stands on the street that it deals.
  kTerminal = 2,  ///< A fold or a showdown.
};

/// Position in the node list; the root is 0. Kept in 32 bits, since a tree has millions of nodes.
using NodeIndex = std::uint32_t;

/// One node. Its lists are views into the plan's.
struct PlanNode {
  NodeKind kind = NodeKind::kDecision;
  /// Who acts; in a terminal node reached by a fold, who folded; OOP in all others.
  Seat seat = kOop;
  Street street = kFlop;
  /// True on a terminal node where both seats are all-in and a board card is still to come. Its
  /// children deal that card, for the result queries; the solver does not walk them.
  bool runout = false;
  std::int32_t commit = 0;  ///< Chips that each seat has put in and the other has matched.
  std::span<const Action> actions;
  std::span<const NodeIndex> children;         ///< Parallel to `actions`.
  std::int32_t pot = 0;                        ///< Starting pot and uncalled bets included.
  std::array<std::int32_t, 2> invested{};      ///< By seat: chips put in since the root.
  ActionKind last_action = ActionKind::kNone;  ///< Of a player; dealt cards do not count.
  Seat last_actor = kOop;
  CardCode turn = kNoCard;  ///< Dealt on the way here or on the board.
  CardCode river = kNoCard;
};

/// The spot without cards and ranges.
struct GameSettings {
  Street street = kFlop;             ///< Of the root.
  std::int32_t starting_pot = 0;     ///< Chips.
  std::int32_t effective_stack = 0;  ///< Chips behind for each seat.
  double rake_fraction = 0;          ///< 0.05 for 5%.
  double rake_cap = 0;               ///< Chips; 0 means no rake.
  std::array<StreetSizing, 3> sizing;
  /// By seat: an all-in joins the list where it is at most this fraction of the pot; 0 for off.
  std::array<double, 2> jam_threshold{};
  double force_all_in_threshold = 0;
  double merge_threshold = 0;
};

/// Counts saturate at the largest 64-bit number.
struct PlanCounts {
  std::uint64_t nodes = 0;
  std::uint64_t decision_nodes = 0;            ///< Those with at least one action.
  std::array<std::uint64_t, 2> action_rows{};  ///< By seat: actions over its decision nodes.

  void add(const PlanCounts& other);
};

struct PlanPoint;

/// Builds the whole tree in its constructor; read-only afterwards. Nodes are numbered as a
/// sequential depth-first walk meets them, whatever the number of build threads, so equal inputs
/// give trees that are equal in every field.
class ActionPlan {
 public:
  /// `cards` must outlive the plan. Throws `std::logic_error` on an unknown street,
  /// `std::length_error` on a tree beyond the limits of `count_plan`, `std::bad_alloc`.
  ActionPlan(GameSettings settings, const CardContext& cards);

  const GameSettings& settings() const { return settings_; }
  std::span<const PlanNode> nodes() const { return nodes_; }
  std::size_t node_count() const { return nodes_.size(); }
  const PlanCounts& counts() const { return counts_; }
  /// Bytes of the node list with its action and child lists.
  std::size_t memory_bytes() const;
  /// The same for a tree of so many nodes, of which each but the root is the child of one action.
  static double bytes_for(double nodes) {
    return nodes * (sizeof(PlanNode) + sizeof(Action) + sizeof(NodeIndex));
  }

 private:
  GameSettings settings_;
  PlanCounts counts_;
  PageArray<PlanNode> nodes_;
  PageArray<Action> actions_;
  PageArray<NodeIndex> children_;
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
