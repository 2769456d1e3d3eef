#include "solver_state.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "multiversion.h"

namespace velmora {
namespace {

constexpr float kSteps = 32767.0F;

}  // namespace

// A half is rounded away from zero: adding it in double precision is exact for every float.
VELMORA_BODY quantize_row_body(std::int16_t* __restrict q, const float* __restrict x, std::size_t n,
                               float scale) {
  for (std::size_t i = 0; i < n; ++i) {
    const float share = x[i] / scale;
    const float held = share < -1.0F ? -1.0F : share > 1.0F ? 1.0F : share;
    const float steps = held * kSteps;
    const double half = steps < 0.0F ? -0.5 : 0.5;
    q[i] = static_cast<std::int16_t>(static_cast<std::int32_t>(static_cast<double>(steps) + half));
  }
}
VELMORA_MULTIVERSION(quantize_row, (std::int16_t * q, const float* x, std::size_t n, float scale),
                     (q, x, n, scale))

VELMORA_BODY dequantize_row_body(float* __restrict x, const std::int16_t* __restrict q,
                                 std::size_t n, float scale) {
  for (std::size_t i = 0; i < n; ++i) x[i] = static_cast<float>(q[i]) / kSteps * scale;
}
VELMORA_MULTIVERSION(dequantize_row, (float* x, const std::int16_t* q, std::size_t n, float scale),
                     (x, q, n, scale))

void quantize_block(std::size_t num_actions, std::size_t num_hands, const float* floats,
                    std::int16_t* out_q, float& out_scale) {
  const std::size_t stride = padded(num_hands);
  float greatest = 0;
  for (std::size_t a = 0; a < num_actions; ++a) {
    for (std::size_t h = 0; h < num_hands; ++h) {
      greatest = std::max(greatest, std::fabs(floats[a * stride + h]));
    }
  }
  std::memset(out_q, 0, num_actions * stride * sizeof(std::int16_t));
  if (static_cast<double>(greatest) <= 1e-9) {
    out_scale = 1.0F;
    return;
  }
  out_scale = greatest;
  for (std::size_t a = 0; a < num_actions; ++a) {
    quantize_row(out_q + a * stride, floats + a * stride, num_hands, greatest);
  }
}

void dequantize_block(std::size_t num_actions, std::size_t num_hands, const std::int16_t* q,
                      float scale, float* out_floats) {
  dequantize_row(out_floats, q, num_actions * padded(num_hands), scale);
}

double SolverState::bytes_for(const PlanCounts& counts, const CardContext& cards, bool compressed) {
  double bytes = static_cast<double>(counts.nodes) * (sizeof(NodeState) + sizeof(std::uint8_t));
  for (const Seat seat : {kOop, kIp}) {
    const std::size_t cell = compressed ? sizeof(std::int16_t) : sizeof(float);
    bytes += 2.0 * static_cast<double>(counts.action_rows[seat]) *
             static_cast<double>(padded(cards.num_hands(seat)) * cell);
  }
  return bytes;
}

void SolverState::prepare(const Game& game, bool compressed, WorkerPool* pool) {
  *this = SolverState();
  compressed_ = compressed;
  const std::span<const PlanNode> nodes = game.nodes();

  // Step 1. Two equal children of a chance node would be one table written from two branches.
  parallel_safe_.assign(nodes.size(), 1);
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (nodes[i].kind != NodeKind::kChance) continue;
    const std::span<const NodeIndex> children = nodes[i].children;
    for (std::size_t c = 0; c < children.size(); ++c) {
      const auto rest = children.subspan(c + 1);
      if (std::find(rest.begin(), rest.end(), children[c]) != rest.end()) parallel_safe_[i] = 0;
    }
  }

  // Step 2. Shapes and places.
  nodes_ = PageArray<NodeState>(nodes.size());
  BySeat<std::size_t> cells{};
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    NodeState& state = nodes_[i];
    state.regrets_scale = 1.0F;
    state.strategy_sums_scale = 1.0F;
    if (nodes[i].kind != NodeKind::kDecision || nodes[i].actions.empty()) continue;
    state.seat = nodes[i].seat;
    state.num_actions = static_cast<std::uint32_t>(nodes[i].actions.size());
    state.num_hands = static_cast<std::uint32_t>(game.num_hands(state.seat));
    state.first_cell = cells[state.seat];
    state.active = true;
    cells[state.seat] += state.cells();
  }

  // Step 3. Tables of zeros. Fresh pages read as zeros; writing them claims them now.
  const auto claim = [pool](auto& table, std::size_t size) {
    table = std::remove_reference_t<decltype(table)>(size);
    using Cell = std::remove_reference_t<decltype(table[0])>;
    parallel_for(pool, size, [&table](std::size_t begin, std::size_t end) {
      std::memset(table.data() + begin, 0, (end - begin) * sizeof(Cell));
    });
  };
  const auto claim_all = [&](auto& arenas) {
    for (const Seat seat : {kOop, kIp}) {
      claim(arenas.regrets[seat], cells[seat] + stagger(seat, false));
      claim(arenas.strategy_sums[seat], cells[seat] + stagger(seat, true));
    }
  };
  if (compressed) {
    claim_all(quantized_);
  } else {
    claim_all(plain_);
  }
}

namespace {

const float* expand_table(const NodeState& state, const std::int16_t* q, float scale,
                          ScratchStack& scratch) {
  float* const floats = scratch.take<float>(state.cells());
  dequantize_block(state.num_actions, state.num_hands, q, scale, floats);
  return floats;
}

}  // namespace

std::size_t SolverState::place(const NodeState& state, bool sums) {
  return state.first_cell + stagger(state.seat, sums);
}

void SolverState::list_tables(std::size_t first, std::size_t last, bool sums,
                              MemoryAhead& ahead) const {
  const NodeState& begin = nodes_[first];
  const std::size_t cells = nodes_[last].first_cell + nodes_[last].cells() - begin.first_cell;
  const auto list = [&]<typename Cell>(const Arenas<Cell>& arenas) {
    const auto& arena = (sums ? arenas.strategy_sums : arenas.regrets)[begin.seat];
    ahead.add(arena.data() + place(begin, sums), cells * sizeof(Cell));
  };
  if (compressed_) {
    list(quantized_);
  } else {
    list(plain_);
  }
}

const float* SolverState::regrets(const NodeState& state, ScratchStack& scratch) const {
  const std::size_t cell = place(state, false);
  if (!compressed_) return plain_.regrets[state.seat].data() + cell;
  return expand_table(state, quantized_.regrets[state.seat].data() + cell, state.regrets_scale,
                      scratch);
}

const float* SolverState::strategy_sums(const NodeState& state, ScratchStack& scratch) const {
  const std::size_t cell = place(state, true);
  if (!compressed_) return plain_.strategy_sums[state.seat].data() + cell;
  return expand_table(state, quantized_.strategy_sums[state.seat].data() + cell,
                      state.strategy_sums_scale, scratch);
}

float* SolverState::ensure_regrets(const NodeState& state, ScratchStack& scratch) {
  return const_cast<float*>(std::as_const(*this).regrets(state, scratch));
}

float* SolverState::ensure_strategy_sums(const NodeState& state, ScratchStack& scratch) {
  return const_cast<float*>(std::as_const(*this).strategy_sums(state, scratch));
}

void SolverState::store_regrets(std::size_t node, const float* regrets) {
  if (!compressed_) return;
  NodeState& state = nodes_[node];
  quantize_block(state.num_actions, state.num_hands, regrets,
                 quantized_.regrets[state.seat].data() + place(state, false), state.regrets_scale);
}

void SolverState::store_strategy_sums(std::size_t node, const float* sums) {
  if (!compressed_) return;
  NodeState& state = nodes_[node];
  quantize_block(state.num_actions, state.num_hands, sums,
                 quantized_.strategy_sums[state.seat].data() + place(state, true),
                 state.strategy_sums_scale);
}

}  // namespace velmora
