// One walk through the betting tree for one seat. A traversal carries both ranges at once: rows of
// reach by hand of the other seat go down, rows of values by hand of the traversing seat come up.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "game.h"
#include "kernels.h"
#include "memory_ahead.h"
#include "payoffs.h"
#include "scratch.h"
#include "solver_state.h"
#include "street_shape.h"
#include "worker_pool.h"

namespace velmora {

/// Factors of one iteration.
struct DiscountParams {
  float alpha_t = 0;  ///< Of regrets that are not negative.
  float beta_t = 0;   ///< Of negative regrets.
  float gamma_t = 0;  ///< Of the strategy sums.
};

/// What a seat that is measured plays against the other seat's average strategy.
enum class Response : std::uint8_t { kAverage, kBest };

/// The streets are walked one after the other, each in three sweeps over its betting tree: down,
/// for the reach of every node; across, for the values of the terminal nodes, many at a time, and
/// of the deals, which are streets again; and up, for the values of the decision nodes. Several
/// trees that stand on the same board, below different betting lines, are swept together, so that
/// their terminal nodes fill the lanes of the processor. A node's own arithmetic and the order of
/// its sums are those of a recursive walk.
///
/// A traversal has one value for each hand, or two where a seat's best response and its average
/// strategy are wanted together: reach and payoffs are the same for both.
class Traversal {
 public:
  static constexpr std::size_t kMostResponses = 2;

  /// A traversal that learns: both seats play by their regrets, those of `seat` change.
  Traversal(const Game& game, SolverState& states, Seat seat, const DiscountParams& discount,
            WorkerPool* pool, std::span<ScratchStack> scratch);
  /// One that only reads; `responses` holds one or two out of `kAverage` and `kBest`.
  Traversal(const Game& game, const SolverState& states, Seat seat,
            std::span<const Response> responses, WorkerPool* pool, std::span<ScratchStack> scratch);

  /// Bytes of scratch memory that a traversal from the root takes from the machine, over all of
  /// `workers` threads: the same rows and records that the sweeps take, one for each node of a
  /// street. `responses` is 1 for one that learns.
  static double scratch_bytes(const CardContext& cards, const BettingTrees& trees, Seat seat,
                              bool learns, std::size_t responses, std::size_t workers);

  /// Values of all hands at a node, by response, against a reach. Rows are padded (see `rows.h`).
  /// `scratch` must have one stack for each worker of the pool, the caller included; without a pool
  /// everything runs on the calling thread.
  void run(const StreetShape& shape, NodeIndex root, const float* reach,
           std::span<float* const> results);

 private:
  using Rows = std::array<float*, kMostResponses>;

  /// A street's tree to walk: where it stands, what arrives, where its values go. A null reach is
  /// one of all zeros.
  struct Line {
    const StreetShape* shape;
    NodeIndex root;
    const float* reach;
    Rows results;
  };
  /// What a sweep knows of a node.
  struct Slot {
    NodeIndex node;
    const float* reach;
    Rows values;
  };
  /// A chance node of a sweep.
  struct Deal {
    const StreetShape* below;
    const PlanNode* node;
    const float* reach;  ///< Times the chance of a card.
    Rows rows;           ///< One row for each dealt card.
    Rows results;
  };
  struct Worker {
    ScratchStack& scratch;
    bool may_fan_out;
  };

  /// Walks trees on one board. `next` are the ones that will follow, if that is known.
  void walk(std::span<const Line> lines, std::span<const Line> next, const Worker& worker);

  /// Bytes of the rows and records of the trees of a street when all are walked together.
  static double street_bytes(const CardContext& cards, const StreetCounts& trees, Seat seat,
                             std::size_t responses);

  void sweep_down(const Line& line, Slot* slots, ScratchStack& scratch);
  void split_reach(NodeIndex node, std::size_t num_actions, const float* reach, float* rows,
                   bool* live, ScratchStack& scratch);

  void sweep_across(std::span<const Line> lines, std::span<const Line> next, Slot* slots,
                    const Worker& worker);
  std::span<Deal> list_deals(std::span<const Line> lines, Slot* slots, ScratchStack& scratch);
  void deal_cards(std::span<const Deal> deals, std::size_t begin, std::size_t end,
                  ScratchStack& scratch);
  std::span<Line> lines_below(std::span<const Deal> deals, std::size_t card,
                              ScratchStack& scratch) const;
  void list_tables(std::span<const Line> lines, std::span<const Line> next,
                   MemoryAhead& ahead) const;
  void add_up(const Deal& deal, std::size_t response, ScratchStack& scratch);

  void sweep_up(const Line& line, const Slot* slots, ScratchStack& scratch);
  void learn(NodeIndex node, NodeIndex next, ValueRows values, float* result,
             ScratchStack& scratch);
  void respond(Response response, NodeIndex node, ValueRows values, float* result,
               ScratchStack& scratch);

  std::size_t own_row() const { return padded(game_.num_hands(seat_)); }
  std::size_t opp_row() const { return padded(game_.num_hands(opponent_of(seat_))); }

  const Game& game_;
  const SolverState& states_;
  SolverState* learning_;  ///< Null if the traversal only reads.
  Seat seat_;
  std::array<Response, kMostResponses> responses_{};
  std::size_t num_responses_;
  DiscountParams discount_;
  WorkerPool* pool_;
  std::span<ScratchStack> scratch_;
};

}  // namespace velmora
