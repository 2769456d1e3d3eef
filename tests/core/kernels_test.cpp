// Every kernel on every instruction set of this machine, against the plain loops.
#include "kernels.h"

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "instruction_set.h"
#include "plain_kernels.h"
#include "rows.h"
#include "solver_state.h"

namespace {

namespace plain = velmora_plain;

constexpr std::size_t kHands = 1336;
constexpr std::size_t kMostActions = 8;  // More than the fused kernels take.

using Row = std::vector<float>;

/// Regrets, sums and values as a solve has them: both signs, zeros, and hands with nothing.
Row random_row(std::size_t n, unsigned seed, float least = -4.0F) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<float> value(least, 4.0F);
  Row row(n);
  for (float& x : row) x = random() % 5 == 0 ? 0.0F : value(random);
  for (std::size_t i = 0; i < n; i += 7) row[i] = 0.0F;
  return row;
}

/// The tables of a node of `actions` actions, and its children's values in rows of their own.
struct NodeRows {
  explicit NodeRows(std::size_t num_actions)
      : actions(num_actions),
        regrets(random_row(num_actions * kHands, 1)),
        sums(random_row(num_actions * kHands, 2)),
        values(random_row(num_actions * kHands, 3)),
        reach(random_row(kHands, 4, 0.0F)),
        strategy(num_actions * kHands),
        denominators(kHands) {
    for (std::size_t a = 0; a < actions; ++a) {
      apart.emplace_back(values.begin() + static_cast<std::ptrdiff_t>(a * kHands),
                         values.begin() + static_cast<std::ptrdiff_t>((a + 1) * kHands));
    }
    for (const Row& row : apart) rows.push_back(row.data());
    plain::regret_match(strategy.data(), denominators.data(), regrets.data(), actions, kHands,
                        kHands);
  }

  std::size_t actions;
  Row regrets, sums, values, reach, strategy, denominators;
  std::vector<Row> apart;
  std::vector<const float*> rows;
};

class Kernels : public testing::TestWithParam<velmora::InstructionSet> {
 protected:
  void SetUp() override { velmora::use_instruction_set(GetParam()); }
  void TearDown() override { velmora::use_instruction_set(strongest_); }

 private:
  velmora::InstructionSet strongest_ = velmora::instruction_set();
};

TEST_P(Kernels, LearnTheSameInOneStepAndInMany) {
  for (std::size_t A = 1; A <= kMostActions; ++A) {
    SCOPED_TRACE(A);
    const NodeRows node(A);
    Row result(kHands), sums = node.sums, regrets = node.regrets;
    plain::weighted_action_sum(result.data(), node.strategy.data(), node.values.data(), A, kHands,
                               kHands);
    plain::update_strategy_sum(sums.data(), node.strategy.data(), 0.3F, A * kHands);
    plain::update_regrets(regrets.data(), node.values.data(), result.data(), A, kHands, kHands,
                          0.7F, 0.5F);

    Row strategy(A * kHands), denominators(kHands), own(kHands);
    Row own_sums = node.sums, own_regrets = node.regrets;
    velmora::regret_match(strategy.data(), denominators.data(), own_regrets.data(), A, kHands);
    velmora::weighted_action_sum(own.data(), strategy.data(), node.rows.data(), A, kHands);
    velmora::update_strategy_sum(own_sums.data(), strategy.data(), 0.3F, A * kHands);
    velmora::update_regrets(own_regrets.data(), node.rows.data(), own.data(), A, kHands, 0.7F,
                            0.5F);
    EXPECT_EQ(strategy, node.strategy);
    EXPECT_EQ(denominators, node.denominators);
    EXPECT_EQ(own, result);
    EXPECT_EQ(own_sums, sums);
    EXPECT_EQ(own_regrets, regrets);

    if (!velmora::has_fused_kernels(A)) continue;
    own_sums = node.sums;
    own_regrets = node.regrets;
    velmora::learn_fused(own.data(), own_regrets.data(), own_sums.data(), node.rows.data(), A,
                         kHands, 0.7F, 0.5F, 0.3F, own_regrets.data(), own_sums.data());
    EXPECT_EQ(own, result);
    EXPECT_EQ(own_sums, sums);
    EXPECT_EQ(own_regrets, regrets);
  }
}

TEST_P(Kernels, SplitReachAndTellWhatLives) {
  for (std::size_t A = 1; A <= kMostActions; ++A) {
    SCOPED_TRACE(A);
    NodeRows node(A);
    // The last action is never taken in one table and by one hand only in the other.
    std::fill(node.regrets.end() - kHands, node.regrets.end(), -1.0F);
    std::fill(node.sums.end() - kHands, node.sums.end(), 0.0F);
    for (std::size_t h = 0; A > 1 && h < kHands; ++h) node.regrets[h] = node.sums[h] = 1.0F;
    node.sums.back() = node.reach.back() = 1.0F;
    Row average(A * kHands), expected(A * kHands), out(A * kHands), strategy(A * kHands);
    plain::regret_match(node.strategy.data(), node.denominators.data(), node.regrets.data(), A,
                        kHands, kHands);
    plain::average_strategy(average.data(), node.sums.data(), A, kHands, kHands);
    velmora::average_strategy_rows(strategy.data(), node.sums.data(), A, kHands);
    EXPECT_EQ(strategy, average);

    for (const bool averages : {false, true}) {
      const Row& from = averages ? average : node.strategy;
      for (std::size_t a = 0; a < A; ++a) {
        plain::row_multiply(&expected[a * kHands], &from[a * kHands], node.reach.data(), kHands);
      }
      bool live[kMostActions];
      const auto check = [&] {
        EXPECT_EQ(out, expected);
        for (std::size_t a = 0; a < A; ++a) {
          const auto row = expected.begin() + static_cast<std::ptrdiff_t>(a * kHands);
          EXPECT_EQ(live[a], std::any_of(row, row + kHands, [](float x) { return x != 0; })) << a;
        }
      };
      velmora::split_rows(out.data(), live, from.data(), node.reach.data(), A, kHands);
      check();
      if (!velmora::has_fused_kernels(A)) continue;
      std::fill(out.begin(), out.end(), 9.0F);
      if (averages) {
        velmora::split_average_fused(out.data(), live, node.sums.data(), node.reach.data(), A,
                                     kHands);
      } else {
        velmora::split_reach_fused(out.data(), live, node.regrets.data(), node.reach.data(), A,
                                   kHands);
      }
      check();
    }
  }
}

TEST_P(Kernels, SumAndRespond) {
  for (std::size_t A = 1; A <= kMostActions; ++A) {
    SCOPED_TRACE(A);
    const NodeRows node(A);
    Row expected(kHands), out(kHands), average(A * kHands);
    plain::sum_actions(expected.data(), node.values.data(), A, kHands, kHands);
    velmora::sum_actions(out.data(), node.rows.data(), A, kHands);
    EXPECT_EQ(out, expected);
    plain::best_values(expected.data(), node.values.data(), nullptr, A, kHands, kHands);
    velmora::best_values(out.data(), node.rows.data(), A, kHands);
    EXPECT_EQ(out, expected);
    plain::average_strategy(average.data(), node.sums.data(), A, kHands, kHands);
    plain::expected_values(expected.data(), average.data(), node.values.data(), A, kHands, kHands);
    velmora::expected_values(out.data(), average.data(), node.rows.data(), A, kHands);
    EXPECT_EQ(out, expected);
    if (!velmora::has_fused_kernels(A)) continue;
    velmora::average_values_fused(out.data(), node.sums.data(), node.rows.data(), A, kHands);
    EXPECT_EQ(out, expected);
  }
}

TEST_P(Kernels, ScaleAndAddRows) {
  const NodeRows node(3);
  Row expected = node.reach, out = node.reach;
  for (std::size_t a = 0; a < 3; ++a) plain::add_row(expected.data(), node.rows[a], kHands);
  velmora::add_rows(out.data(), node.values.data(), 3, kHands);
  EXPECT_EQ(out, expected);
  plain::scale_row(expected.data(), node.reach.data(), 0.1F, kHands);
  velmora::scale_row(out.data(), node.reach.data(), 0.1F, kHands);
  EXPECT_EQ(out, expected);
}

INSTANTIATE_TEST_SUITE_P(InstructionSets, Kernels,
                         testing::ValuesIn(velmora::supported_instruction_sets()),
                         [](const auto& set) {
                           return std::string(velmora::instruction_set_name(set.param));
                         });

TEST(CompressedStorage, RoundsToTheNearestStepOfTheGreatestMagnitude) {
  // Four hands, so that half of each row is padding; the padding's value must not set the scale.
  struct Case {
    std::vector<float> hands;
    float scale;
    std::vector<std::int16_t> q;
  };
  const float half = 0.5F / 32767.0F;
  for (const Case& c : {Case{{2.0F, -1.0F, 0.0F, 1.0F}, 2.0F, {32767, -16384, 0, 16384}},
                        Case{{0.0F, 0.0F, 0.0F, 0.0F}, 1.0F, {0, 0, 0, 0}},
                        Case{{1e-9F, -1e-10F, 0.0F, 0.0F}, 1.0F, {0, 0, 0, 0}},
                        Case{{1.0F, half, -half, 0.4F * half}, 1.0F, {32767, 1, -1, 0}}}) {
    Row floats(velmora::padded(4), 9.0F);
    std::copy(c.hands.begin(), c.hands.end(), floats.begin());
    std::vector<std::int16_t> q(floats.size(), 99);
    float scale = -1;
    velmora::quantize_block(1, 4, floats.data(), q.data(), scale);
    EXPECT_EQ(scale, c.scale);
    EXPECT_THAT(std::vector(q.begin(), q.begin() + 4), testing::ElementsAreArray(c.q));
    EXPECT_THAT(std::vector(q.begin() + 4, q.end()), testing::Each(0));

    Row back(floats.size(), 9.0F);
    velmora::dequantize_block(1, 4, q.data(), scale, back.data());
    for (std::size_t h = 0; h < 4; ++h) {
      EXPECT_EQ(back[h], static_cast<float>(c.q[h]) / 32767.0F * c.scale);
      EXPECT_NEAR(back[h], c.hands[h], c.scale / 32767.0F);
    }
  }
}

}  // namespace
