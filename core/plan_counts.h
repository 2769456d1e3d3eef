// The size of a betting tree, found without building it.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

namespace velmora {

class CardContext;
struct GameSettings;
struct PlanPoint;

/// Counts saturate at the largest 64-bit number.
struct PlanCounts {
  std::uint64_t nodes = 0;
  std::uint64_t decision_nodes = 0;            ///< Those with at least one action.
  std::array<std::uint64_t, 2> action_rows{};  ///< By seat: actions over its decision nodes.

  void add(const PlanCounts& other);
};

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

 private:
  struct Memo;

  PlanCounts visit(const PlanPoint& point, std::size_t depth);
  /// Notes that so many sizes are about to be tried at a node. False if that is too much.
  bool may_expand(const PlanPoint& point);

  const GameSettings& settings_;
  const CardContext& cards_;
  std::unique_ptr<Memo> memo_;
  std::uint64_t sizes_tried_ = 0;
  std::size_t held_children_ = 0;  ///< Along the path, by the recursion.
  bool complete_ = true;
};

/// The counts of the whole tree of a spot. Throws as `PlanCounter::count`.
PlanCounts count_plan(const GameSettings& settings, const CardContext& cards);

}  // namespace velmora
