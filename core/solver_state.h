// What the solver learns: cumulative regrets and cumulative strategy of every decision node.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "game.h"
#include "huge_pages.h"
#include "memory_ahead.h"
#include "rows.h"
#include "scratch.h"
#include "worker_pool.h"

namespace velmora {

/// The place and shape of a node's tables. A table is action-major with one padded row of hands for
/// each action; a hand keeps its index at every node of the seat, also where a dealt card blocks
/// it, and has regrets of 0 there.
struct NodeState {
  std::size_t first_cell;  ///< In the arenas of the seat.
  std::uint32_t num_actions;
  std::uint32_t num_hands;    ///< Length of the acting seat's pocket list.
  float regrets_scale;        ///< Of the compressed form; 1 at the start.
  float strategy_sums_scale;  ///< Likewise.
  Seat seat;                  ///< Who acts.
  bool active;                ///< A decision node with at least one action; else all is 0.

  std::size_t row_length() const { return padded(num_hands); }
  std::size_t cells() const { return num_actions * row_length(); }
};

/// 16-bit form of a table of `num_actions` padded rows: cells are steps of a 32767th of the
/// greatest magnitude, which becomes the scale. Padding becomes 0.
void quantize_block(std::size_t num_actions, std::size_t num_hands, const float* floats,
                    std::int16_t* out_q, float& out_scale);
/// The floats of a quantised table.
void dequantize_block(std::size_t num_actions, std::size_t num_hands, const std::int16_t* q,
                      float scale, float* out_floats);

/// The tables of all nodes, with an arena for the regrets of each seat and one for its strategy
/// sums, in node order, which is about the order in which the traversals walk. Plain tables are
/// single floats. Compressed ones are 16-bit integers at rest and are expanded into the visitor's
/// scratch memory while it works on them, so reading never changes them.
class SolverState {
 public:
  /// Allocates and clears the tables of a game; anything learnt before is dropped. Pages are
  /// claimed here, so memory use stays flat afterwards. Throws `std::bad_alloc`.
  void prepare(const Game& game, bool compressed, WorkerPool* pool);

  std::size_t size() const { return nodes_.size(); }
  const NodeState& node(std::size_t index) const { return nodes_[index]; }
  bool compressed() const { return compressed_; }
  /// False at a chance node with two edges to one child: its branches share tables.
  bool parallel_safe(std::size_t node) const { return parallel_safe_[node] != 0; }

  /// A node's regrets in float form; `scratch` lends the space where they are compressed.
  const float* regrets(const NodeState& state, ScratchStack& scratch) const;
  const float* strategy_sums(const NodeState& state, ScratchStack& scratch) const;

  /// The same for the traversal that changes them; `store_*` takes changes back into compressed
  /// storage and does nothing for plain tables.
  float* ensure_regrets(const NodeState& state, ScratchStack& scratch);
  float* ensure_strategy_sums(const NodeState& state, ScratchStack& scratch);
  void store_regrets(std::size_t node, const float* regrets);
  void store_strategy_sums(std::size_t node, const float* sums);

  /// Asks for the records of `count` nodes.
  void fetch_nodes(std::size_t first, std::size_t count) const {
    const char* const begin = reinterpret_cast<const char*>(nodes_.data() + first);
    for (std::size_t i = 0; i < count * sizeof(NodeState); i += 64) __builtin_prefetch(begin + i);
  }
  /// Lists the regrets or the strategy sums of one seat's nodes from `first` to `last`.
  void list_tables(std::size_t first, std::size_t last, bool sums, MemoryAhead& ahead) const;

  /// Bytes that `prepare` allocates for a tree of these counts: padded tables and node records.
  static double bytes_for(const PlanCounts& counts, const CardContext& cards, bool compressed);

 private:
  PageArray<NodeState> nodes_;
  std::vector<std::uint8_t> parallel_safe_;
  template <typename Cell>
  struct Arenas {
    BySeat<PageArray<Cell>> regrets;
    BySeat<PageArray<Cell>> strategy_sums;
  };

  /// Cells by which an arena begins after its first page, different for each: equal rows of two
  /// tables that are worked on together would else fall on the same few places of the cache.
  static std::size_t stagger(Seat seat, bool sums) {
    return (1 + 2 * std::size_t{seat} + std::size_t{sums}) * kStaggerCells;
  }
  static constexpr std::size_t kStaggerCells = 272;
  /// First cell of a node's table in its arena.
  static std::size_t place(const NodeState& state, bool sums);

  Arenas<float> plain_;
  Arenas<std::int16_t> quantized_;
  bool compressed_ = false;
};

}  // namespace velmora
