// The solver's loops over rows of floats. `n` is a number of cells; a table of A actions holds A
// rows of H cells, one behind the other, while `values` are A rows of H cells anywhere. H and n are
// multiples of 8: rows are padded, and what stands in the padding is computed along and read by
// nobody. Each product and each sum is rounded by itself, in the order given, so results are equal
// on every instruction set.
#pragma once

#include <cstddef>

namespace velmora {

/// The rows of a node's children, by action.
using ValueRows = const float* const*;

/// Regret matching: for each hand its positive regrets over their sum, or 1 / A where it has none.
/// `denominators` (H cells) receives the sums.
void regret_match(float* strategy, float* denominators, const float* regrets, std::size_t A,
                  std::size_t H);
/// result[h] = sum over a of strategy[a][h] * values[a][h], in single precision.
void weighted_action_sum(float* result, const float* strategy, ValueRows values, std::size_t A,
                         std::size_t H);
/// sums[i] = sums[i] * gamma + strategy[i].
void update_strategy_sum(float* sums, const float* strategy, float gamma, std::size_t n);
/// Discounts each regret by alpha (if it is not negative) or beta, adds values[a][h], then
/// subtracts result[h].
void update_regrets(float* regrets, ValueRows values, const float* result, std::size_t A,
                    std::size_t H, float alpha, float beta);
/// out[a][h] = strategy[a][h] * reach[h]. `live[a]` says whether anything of row a is not 0.
void split_rows(float* out, bool* live, const float* strategy, const float* reach, std::size_t A,
                std::size_t H);
/// out[i] = x[i] * factor.
void scale_row(float* out, const float* x, float factor, std::size_t n);
/// Adds `count` rows of n cells to `sum`, row by row, in single precision.
void add_rows(float* sum, const float* rows, std::size_t count, std::size_t n);
/// result[h] = sum over a of values[a][h], added in double precision.
void sum_actions(float* result, ValueRows values, std::size_t A, std::size_t H);
/// The average strategy: for each hand its sums, held to 0 at the bottom, over their total in
/// double precision, or 1 / A where the total is 0.
void average_strategy_rows(float* strategy, const float* sums, std::size_t A, std::size_t H);
/// result[h] = sum over a of strategy[a][h] * values[a][h], in double precision.
void expected_values(float* result, const float* strategy, ValueRows values, std::size_t A,
                     std::size_t H);
/// result[h] = the greatest of values[a][h].
void best_values(float* result, ValueRows values, std::size_t A, std::size_t H);

// The same in one pass, with what lies between kept in registers, for the usual numbers of actions.

constexpr bool has_fused_kernels(std::size_t num_actions) {
  return num_actions >= 2 && num_actions <= 6;
}
/// `regret_match`, `weighted_action_sum`, `update_strategy_sum` and `update_regrets`. Meanwhile the
/// tables of the node that comes next are fetched; any addresses will do.
void learn_fused(float* result, float* regrets, float* sums, ValueRows values, std::size_t A,
                 std::size_t H, float alpha, float beta, float gamma, const float* next_regrets,
                 const float* next_sums);
/// `regret_match` and `split_rows`.
void split_reach_fused(float* out, bool* live, const float* regrets, const float* reach,
                       std::size_t A, std::size_t H);
/// `average_strategy_rows` and `split_rows`.
void split_average_fused(float* out, bool* live, const float* sums, const float* reach,
                         std::size_t A, std::size_t H);
/// `average_strategy_rows` and `expected_values`.
void average_values_fused(float* result, const float* sums, ValueRows values, std::size_t A,
                          std::size_t H);

}  // namespace velmora
