#include "kernels.h"

#include <algorithm>

#include "multiversion.h"

namespace velmora {
namespace {

/// Hands at a time of the loops that sum over actions in double precision: their sums stay in the
/// first cache, and the inner loops stay long enough to be turned into vector code.
constexpr std::size_t kBlock = 128;

}  // namespace

VELMORA_BODY regret_match_body(float* __restrict strategy, float* __restrict denominators,
                               const float* __restrict regrets, std::size_t A, std::size_t H) {
  for (std::size_t h = 0; h < H; ++h) {
    const float positive = regrets[h] > 0.0F ? regrets[h] : 0.0F;
    strategy[h] = positive;
    denominators[h] = positive;
  }
  for (std::size_t a = 1; a < A; ++a) {
    const float* __restrict regret_row = regrets + a * H;
    float* __restrict row = strategy + a * H;
    for (std::size_t h = 0; h < H; ++h) {
      const float positive = regret_row[h] > 0.0F ? regret_row[h] : 0.0F;
      row[h] = positive;
      denominators[h] += positive;
    }
  }
  const float uniform = 1.0F / static_cast<float>(A);
  for (std::size_t a = 0; a < A; ++a) {
    float* __restrict row = strategy + a * H;
    for (std::size_t h = 0; h < H; ++h) {
      const float d = denominators[h];
      const float quotient = row[h] / (d > 0.0F ? d : 1.0F);
      row[h] = d > 0.0F ? quotient : uniform;
    }
  }
}
VELMORA_MULTIVERSION(regret_match,
                     (float* strategy, float* denominators, const float* regrets, std::size_t A,
                      std::size_t H),
                     (strategy, denominators, regrets, A, H))

VELMORA_BODY weighted_action_sum_body(float* __restrict result, const float* __restrict strategy,
                                      const float* __restrict values, std::size_t A,
                                      std::size_t H) {
  for (std::size_t h = 0; h < H; ++h) result[h] = strategy[h] * values[h];
  for (std::size_t a = 1; a < A; ++a) {
    const float* __restrict s = strategy + a * H;
    const float* __restrict v = values + a * H;
    for (std::size_t h = 0; h < H; ++h) result[h] += s[h] * v[h];
  }
}
VELMORA_MULTIVERSION(weighted_action_sum,
                     (float* result, const float* strategy, const float* values, std::size_t A,
                      std::size_t H),
                     (result, strategy, values, A, H))

VELMORA_BODY update_strategy_sum_body(float* __restrict sums, const float* __restrict strategy,
                                      float gamma, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) sums[i] = sums[i] * gamma + strategy[i];
}
VELMORA_MULTIVERSION(update_strategy_sum,
                     (float* sums, const float* strategy, float gamma, std::size_t n),
                     (sums, strategy, gamma, n))

VELMORA_BODY update_regrets_body(float* __restrict regrets, const float* __restrict values,
                                 const float* __restrict result, std::size_t A, std::size_t H,
                                 float alpha, float beta) {
  for (std::size_t a = 0; a < A; ++a) {
    float* __restrict x = regrets + a * H;
    const float* __restrict v = values + a * H;
    for (std::size_t h = 0; h < H; ++h) {
      const float discounted = (x[h] >= 0.0F ? alpha : beta) * x[h];
      const float added = discounted + v[h];
      x[h] = added - result[h];
    }
  }
}
VELMORA_MULTIVERSION(update_regrets,
                     (float* regrets, const float* values, const float* result, std::size_t A,
                      std::size_t H, float alpha, float beta),
                     (regrets, values, result, A, H, alpha, beta))

VELMORA_BODY row_multiply_body(float* __restrict out, const float* __restrict x,
                               const float* __restrict y, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) out[i] = x[i] * y[i];
}
VELMORA_MULTIVERSION(row_multiply, (float* out, const float* x, const float* y, std::size_t n),
                     (out, x, y, n))

VELMORA_BODY scale_row_body(float* __restrict out, const float* __restrict x, float factor,
                            std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) out[i] = x[i] * factor;
}
VELMORA_MULTIVERSION(scale_row, (float* out, const float* x, float factor, std::size_t n),
                     (out, x, factor, n))

VELMORA_BODY add_rows_body(float* __restrict sum, const float* __restrict rows, std::size_t count,
                           std::size_t n) {
  for (std::size_t r = 0; r < count; ++r) {
    const float* __restrict row = rows + r * n;
    for (std::size_t i = 0; i < n; ++i) sum[i] += row[i];
  }
}
VELMORA_MULTIVERSION(add_rows, (float* sum, const float* rows, std::size_t count, std::size_t n),
                     (sum, rows, count, n))

VELMORA_BODY axpy_row_body(float* __restrict y, const float* __restrict x, std::size_t n,
                           float factor) {
  if (factor == 0.0F) return;
  for (std::size_t i = 0; i < n; ++i) y[i] += factor * x[i];
}
VELMORA_MULTIVERSION(axpy_row, (float* y, const float* x, std::size_t n, float factor),
                     (y, x, n, factor))

VELMORA_BODY sum_actions_body(float* __restrict result, const float* __restrict values,
                              std::size_t A, std::size_t H) {
  for (std::size_t begin = 0; begin < H; begin += kBlock) {
    const std::size_t width = std::min(kBlock, H - begin);
    double sums[kBlock] = {};
    for (std::size_t a = 0; a < A; ++a) {
      const float* __restrict v = values + a * H + begin;
      for (std::size_t i = 0; i < width; ++i) sums[i] += static_cast<double>(v[i]);
    }
    for (std::size_t i = 0; i < width; ++i) result[begin + i] = static_cast<float>(sums[i]);
  }
}
VELMORA_MULTIVERSION(sum_actions,
                     (float* result, const float* values, std::size_t A, std::size_t H),
                     (result, values, A, H))

VELMORA_BODY average_strategy_rows_body(float* __restrict strategy, const float* __restrict sums,
                                        std::size_t A, std::size_t H) {
  const float uniform = static_cast<float>(1.0 / static_cast<double>(A));
  for (std::size_t begin = 0; begin < H; begin += kBlock) {
    const std::size_t width = std::min(kBlock, H - begin);
    double totals[kBlock] = {};
    for (std::size_t a = 0; a < A; ++a) {
      const float* __restrict x = sums + a * H + begin;
      for (std::size_t i = 0; i < width; ++i) {
        totals[i] += static_cast<double>(x[i] > 0.0F ? x[i] : 0.0F);
      }
    }
    for (std::size_t a = 0; a < A; ++a) {
      const float* __restrict x = sums + a * H + begin;
      float* __restrict out = strategy + a * H + begin;
      for (std::size_t i = 0; i < width; ++i) {
        const double share =
            static_cast<double>(x[i] > 0.0F ? x[i] : 0.0F) / (totals[i] > 0.0 ? totals[i] : 1.0);
        out[i] = totals[i] > 0.0 ? static_cast<float>(share) : uniform;
      }
    }
  }
}
VELMORA_MULTIVERSION(average_strategy_rows,
                     (float* strategy, const float* sums, std::size_t A, std::size_t H),
                     (strategy, sums, A, H))

VELMORA_BODY expected_values_body(float* __restrict result, const float* __restrict strategy,
                                  const float* __restrict values, std::size_t A, std::size_t H) {
  for (std::size_t begin = 0; begin < H; begin += kBlock) {
    const std::size_t width = std::min(kBlock, H - begin);
    double sums[kBlock] = {};
    for (std::size_t a = 0; a < A; ++a) {
      const float* __restrict s = strategy + a * H + begin;
      const float* __restrict v = values + a * H + begin;
      for (std::size_t i = 0; i < width; ++i) {
        sums[i] += static_cast<double>(s[i]) * static_cast<double>(v[i]);
      }
    }
    for (std::size_t i = 0; i < width; ++i) result[begin + i] = static_cast<float>(sums[i]);
  }
}
VELMORA_MULTIVERSION(expected_values,
                     (float* result, const float* strategy, const float* values, std::size_t A,
                      std::size_t H),
                     (result, strategy, values, A, H))

VELMORA_BODY best_values_body(float* __restrict result, const float* __restrict values,
                              std::size_t A, std::size_t H) {
  for (std::size_t h = 0; h < H; ++h) result[h] = values[h];
  for (std::size_t a = 1; a < A; ++a) {
    const float* __restrict v = values + a * H;
    for (std::size_t h = 0; h < H; ++h) result[h] = v[h] > result[h] ? v[h] : result[h];
  }
}
VELMORA_MULTIVERSION(best_values,
                     (float* result, const float* values, std::size_t A, std::size_t H),
                     (result, values, A, H))

}  // namespace velmora
