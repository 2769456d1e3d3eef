// The solver's loops over rows of floats. `n` is a number of cells; a table of A actions holds A
// rows of H cells, one behind the other. H and n are multiples of 8: rows are padded, and what
// stands in the padding is computed along and read by nobody. Each product and each sum is rounded
// by itself, in the order told, so results are equal on every instruction set.
#pragma once

#include <cstddef>

namespace velmora {

/// Regret matching: for each hand its positive regrets over their sum, or 1 / A where it has none.
/// `denominators` (H cells) receives the sums.
void regret_match(float* strategy, float* denominators, const float* regrets, std::size_t A,
                  std::size_t H);
/// result[h] = sum over a of strategy[a][h] * values[a][h], in single precision.
void weighted_action_sum(float* result, const float* strategy, const float* values, std::size_t A,
                         std::size_t H);
/// sums[i] = sums[i] * gamma + strategy[i].
void update_strategy_sum(float* sums, const float* strategy, float gamma, std::size_t n);
/// Discounts each regret by alpha (if it is not negative) or beta, adds values[a][h], then
/// subtracts result[h].
void update_regrets(float* regrets, const float* values, const float* result, std::size_t A,
                    std::size_t H, float alpha, float beta);
/// out[i] = x[i] * y[i].
void row_multiply(float* out, const float* x, const float* y, std::size_t n);
/// out[i] = x[i] * factor.
void scale_row(float* out, const float* x, float factor, std::size_t n);
/// Adds `count` rows of n cells to `sum`, row by row, in single precision.
void add_rows(float* sum, const float* rows, std::size_t count, std::size_t n);
/// y[i] += factor * x[i]; nothing if the factor is 0.
void axpy_row(float* y, const float* x, std::size_t n, float factor);
/// result[h] = sum over a of values[a][h], added in double precision.
void sum_actions(float* result, const float* values, std::size_t A, std::size_t H);
/// The average strategy: for each hand its sums, held to 0 at the bottom, over their total in
/// double precision, or 1 / A where the total is 0.
void average_strategy_rows(float* strategy, const float* sums, std::size_t A, std::size_t H);
/// result[h] = sum over a of strategy[a][h] * values[a][h], in double precision.
void expected_values(float* result, const float* strategy, const float* values, std::size_t A,
                     std::size_t H);
/// result[h] = the greatest of values[a][h].
void best_values(float* result, const float* values, std::size_t A, std::size_t H);

}  // namespace velmora
