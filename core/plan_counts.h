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
/// so that a spot that no machine could hold is measured as quickly as a small one.
class PlanCounter {
 public:
  /// Both arguments must outlive the counter.
  PlanCounter(const GameSettings& settings, const CardContext& cards);
  ~PlanCounter();

  /// The counts of the subtree at a point, which is `depth` edges below the root.
  /// Throws `std::length_error` if the tree is deeper than `kMaxPlanDepth` or has more betting
  /// states than a table of reasonable size holds, `std::logic_error` on an unknown street.
  PlanCounts count(const PlanPoint& point, std::size_t depth = 0);

 private:
  struct Memo;

  const GameSettings& settings_;
  const CardContext& cards_;
  std::unique_ptr<Memo> memo_;
};

/// The counts of the whole tree of a spot.
PlanCounts count_plan(const GameSettings& settings, const CardContext& cards);

}  // namespace velmora
