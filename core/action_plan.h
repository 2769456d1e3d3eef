// The betting tree of a spot: every sequence of actions and dealt cards, as a flat list of nodes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "bet_size.h"
#include "card_context.h"
#include "cards.h"
#include "huge_pages.h"
#include "plan_counts.h"

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

}  // namespace velmora
