// Every kernel on every instruction set of this machine, against a plain loop.
#include "kernels.h"

#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "instruction_set.h"
#include "rows.h"
#include "solver_state.h"

namespace {

constexpr std::size_t kActions = 3;
constexpr std::size_t kHands = 136;  // A block and a bit of the loops that sum in blocks.
constexpr std::size_t kCells = kActions * kHands;

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

struct Kernel {
  const char* name;
  std::function<void(Row&)> run;        ///< Writes its output over the row.
  std::function<void(Row&)> reference;  ///< A plain loop with the same rounding.
};

std::vector<Kernel> kernels() {
  static const Row regrets = random_row(kCells, 1);
  static const Row values = random_row(kCells, 2);
  static const Row strategy = random_row(kCells, 3, 0.0F);
  static const Row row = random_row(kHands, 4);
  return {
      {"regret_match",
       [](Row& out) {
         Row denominators(kHands);
         out.resize(kCells);
         velmora::regret_match(out.data(), denominators.data(), regrets.data(), kActions, kHands);
       },
       [](Row& out) {
         out.resize(kCells);
         for (std::size_t h = 0; h < kHands; ++h) {
           float sum = 0;
           for (std::size_t a = 0; a < kActions; ++a) sum += std::fmax(regrets[a * kHands + h], 0);
           for (std::size_t a = 0; a < kActions; ++a) {
             out[a * kHands + h] =
                 sum > 0 ? std::fmax(regrets[a * kHands + h], 0) / sum : 1.0F / kActions;
           }
         }
       }},
      {"weighted_action_sum",
       [](Row& out) {
         velmora::weighted_action_sum(out.data(), strategy.data(), values.data(), kActions, kHands);
       },
       [](Row& out) {
         for (std::size_t h = 0; h < kHands; ++h) {
           out[h] = 0;
           for (std::size_t a = 0; a < kActions; ++a) {
             out[h] += strategy[a * kHands + h] * values[a * kHands + h];
           }
         }
       }},
      {"update_strategy_sum",
       [](Row& out) {
         out = values;
         velmora::update_strategy_sum(out.data(), strategy.data(), 0.3F, kCells);
       },
       [](Row& out) {
         out = values;
         for (std::size_t i = 0; i < kCells; ++i) out[i] = out[i] * 0.3F + strategy[i];
       }},
      {"update_regrets",
       [](Row& out) {
         out = regrets;
         velmora::update_regrets(out.data(), values.data(), row.data(), kActions, kHands, 0.7F,
                                 0.5F);
       },
       [](Row& out) {
         out = regrets;
         for (std::size_t i = 0; i < kCells; ++i) {
           out[i] = (out[i] >= 0 ? 0.7F : 0.5F) * out[i] + values[i];
           out[i] -= row[i % kHands];
         }
       }},
      {"row_multiply",
       [](Row& out) { velmora::row_multiply(out.data(), row.data(), values.data(), kHands); },
       [](Row& out) {
         for (std::size_t h = 0; h < kHands; ++h) out[h] = row[h] * values[h];
       }},
      {"scale_row", [](Row& out) { velmora::scale_row(out.data(), row.data(), 0.1F, kHands); },
       [](Row& out) {
         for (std::size_t h = 0; h < kHands; ++h) out[h] = row[h] * 0.1F;
       }},
      {"add_rows", [](Row& out) { velmora::add_rows(out.data(), values.data(), kActions, kHands); },
       [](Row& out) {
         for (std::size_t i = 0; i < kCells; ++i) out[i % kHands] += values[i];
       }},
      {"axpy_row", [](Row& out) { velmora::axpy_row(out.data(), row.data(), kHands, 1.0F); },
       [](Row& out) {
         for (std::size_t h = 0; h < kHands; ++h) out[h] += row[h];
       }},
      {"axpy_row by 0",
       [](Row& out) {
         const Row infinite(kHands, std::numeric_limits<float>::infinity());
         velmora::axpy_row(out.data(), infinite.data(), kHands, 0.0F);
       },
       [](Row&) {}},
      {"sum_actions",
       [](Row& out) { velmora::sum_actions(out.data(), values.data(), kActions, kHands); },
       [](Row& out) {
         for (std::size_t h = 0; h < kHands; ++h) {
           double sum = 0;
           for (std::size_t a = 0; a < kActions; ++a) sum += double{values[a * kHands + h]};
           out[h] = static_cast<float>(sum);
         }
       }},
      {"average_strategy_rows",
       [](Row& out) {
         out.resize(kCells);
         velmora::average_strategy_rows(out.data(), regrets.data(), kActions, kHands);
       },
       [](Row& out) {
         out.resize(kCells);
         for (std::size_t h = 0; h < kHands; ++h) {
           double sum = 0;
           for (std::size_t a = 0; a < kActions; ++a) {
             sum += double{std::fmax(regrets[a * kHands + h], 0.0F)};
           }
           for (std::size_t a = 0; a < kActions; ++a) {
             const double x = double{std::fmax(regrets[a * kHands + h], 0.0F)};
             out[a * kHands + h] = static_cast<float>(sum > 0 ? x / sum : 1.0 / kActions);
           }
         }
       }},
      {"expected_values",
       [](Row& out) {
         velmora::expected_values(out.data(), strategy.data(), values.data(), kActions, kHands);
       },
       [](Row& out) {
         for (std::size_t h = 0; h < kHands; ++h) {
           double sum = 0;
           for (std::size_t a = 0; a < kActions; ++a) {
             sum += double{strategy[a * kHands + h]} * double{values[a * kHands + h]};
           }
           out[h] = static_cast<float>(sum);
         }
       }},
      {"best_values",
       [](Row& out) { velmora::best_values(out.data(), values.data(), kActions, kHands); },
       [](Row& out) {
         for (std::size_t h = 0; h < kHands; ++h) {
           out[h] = std::max({values[h], values[kHands + h], values[2 * kHands + h]});
         }
       }},
  };
}

TEST(Kernels, GiveTheSameNumbersOnEveryInstructionSet) {
  const velmora::InstructionSet strongest = velmora::instruction_set();
  for (const velmora::InstructionSet set : velmora::supported_instruction_sets()) {
    velmora::use_instruction_set(set);
    for (const Kernel& kernel : kernels()) {
      Row result(kHands, 0.25F);
      Row reference(kHands, 0.25F);
      kernel.run(result);
      kernel.reference(reference);
      EXPECT_EQ(result, reference) << kernel.name << " on " << velmora::instruction_set_name(set);
    }
  }
  velmora::use_instruction_set(strongest);
}

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
