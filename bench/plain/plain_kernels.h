// The solver's arithmetic straight from its rules, one hand after the other: what every faster form
// must match to the bit, and what its speed is measured against.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "game.h"

namespace velmora_plain {

using velmora::Game;
using velmora::LockTable;
using velmora::PlanNode;
using velmora::Seat;

// Tables have one row of `stride` floats for each of A actions, of which the first H count.

void regret_match(float* strategy, float* denominators, const float* regrets, std::size_t A,
                  std::size_t H, std::size_t stride);
void weighted_action_sum(float* result, const float* strategy, const float* values, std::size_t A,
                         std::size_t H, std::size_t stride);
void update_strategy_sum(float* sums, const float* strategy, float gamma, std::size_t n);
void update_regrets(float* regrets, const float* values, const float* result, std::size_t A,
                    std::size_t H, std::size_t stride, float alpha, float beta);
void row_multiply(float* out, const float* x, const float* y, std::size_t n);
void scale_row(float* out, const float* x, float factor, std::size_t n);
void add_row(float* sum, const float* row, std::size_t n);
void sum_actions(float* result, const float* values, std::size_t A, std::size_t H,
                 std::size_t stride);
void average_strategy(float* strategy, const float* sums, std::size_t A, std::size_t H,
                      std::size_t stride);
void expected_values(float* result, const float* strategy, const float* values, std::size_t A,
                     std::size_t H, std::size_t stride);
void best_values(float* result, const float* values, const LockTable* lock, std::size_t A,
                 std::size_t H, std::size_t stride);
void apply_lock(float* strategy, const LockTable& lock, std::size_t A, std::size_t H,
                std::size_t stride);

/// The value of a terminal node for each hand of `seat`; `result` is overwritten.
void terminal_payoff(const Game& game, const PlanNode& node, Seat seat,
                     std::span<const float> reach, std::span<float> result);

}  // namespace velmora_plain
