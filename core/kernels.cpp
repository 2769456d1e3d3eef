#include "kernels.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "lanes.h"
#include "multiversion.h"
#include "rows.h"

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
                                      ValueRows values, std::size_t A, std::size_t H) {
  const float* __restrict first = values[0];
  for (std::size_t h = 0; h < H; ++h) result[h] = strategy[h] * first[h];
  for (std::size_t a = 1; a < A; ++a) {
    const float* __restrict s = strategy + a * H;
    const float* __restrict v = values[a];
    for (std::size_t h = 0; h < H; ++h) result[h] += s[h] * v[h];
  }
}
VELMORA_MULTIVERSION(weighted_action_sum,
                     (float* result, const float* strategy, ValueRows values, std::size_t A,
                      std::size_t H),
                     (result, strategy, values, A, H))

VELMORA_BODY update_strategy_sum_body(float* __restrict sums, const float* __restrict strategy,
                                      float gamma, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) sums[i] = sums[i] * gamma + strategy[i];
}
VELMORA_MULTIVERSION(update_strategy_sum,
                     (float* sums, const float* strategy, float gamma, std::size_t n),
                     (sums, strategy, gamma, n))

VELMORA_BODY update_regrets_body(float* __restrict regrets, ValueRows values,
                                 const float* __restrict result, std::size_t A, std::size_t H,
                                 float alpha, float beta) {
  for (std::size_t a = 0; a < A; ++a) {
    float* __restrict x = regrets + a * H;
    const float* __restrict v = values[a];
    for (std::size_t h = 0; h < H; ++h) {
      const float discounted = (x[h] >= 0.0F ? alpha : beta) * x[h];
      const float added = discounted + v[h];
      x[h] = added - result[h];
    }
  }
}
VELMORA_MULTIVERSION(update_regrets,
                     (float* regrets, ValueRows values, const float* result, std::size_t A,
                      std::size_t H, float alpha, float beta),
                     (regrets, values, result, A, H, alpha, beta))

VELMORA_BODY split_rows_body(float* __restrict out, bool* live, const float* __restrict strategy,
                             const float* __restrict reach, std::size_t A, std::size_t H) {
  for (std::size_t a = 0; a < A; ++a) {
    float* __restrict row = out + a * H;
    const float* __restrict s = strategy + a * H;
    float greatest = 0;
    for (std::size_t h = 0; h < H; ++h) {
      row[h] = s[h] * reach[h];
      greatest = row[h] > greatest ? row[h] : greatest;
    }
    live[a] = greatest > 0.0F;
  }
}
VELMORA_MULTIVERSION(split_rows,
                     (float* out, bool* live, const float* strategy, const float* reach,
                      std::size_t A, std::size_t H),
                     (out, live, strategy, reach, A, H))

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

template <int W>
VELMORA_BODY sum_actions_body(float* __restrict result, ValueRows values, std::size_t A,
                              std::size_t H) {
  using Amounts = Lanes<kRowPadding, W>;
  for (std::size_t h = 0; h < H; h += kRowPadding) {
    Amounts sum = Amounts::zero();
    for (std::size_t a = 0; a < A; ++a) sum = sum + Amounts::widen(values[a] + h);
    sum.narrow().store(result + h);
  }
}
VELMORA_MULTIVERSION_WIDE(sum_actions,
                          (float* result, ValueRows values, std::size_t A, std::size_t H),
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
                                  ValueRows values, std::size_t A, std::size_t H) {
  for (std::size_t begin = 0; begin < H; begin += kBlock) {
    const std::size_t width = std::min(kBlock, H - begin);
    double sums[kBlock] = {};
    for (std::size_t a = 0; a < A; ++a) {
      const float* __restrict s = strategy + a * H + begin;
      const float* __restrict v = values[a] + begin;
      for (std::size_t i = 0; i < width; ++i) {
        sums[i] += static_cast<double>(s[i]) * static_cast<double>(v[i]);
      }
    }
    for (std::size_t i = 0; i < width; ++i) result[begin + i] = static_cast<float>(sums[i]);
  }
}
VELMORA_MULTIVERSION(expected_values,
                     (float* result, const float* strategy, ValueRows values, std::size_t A,
                      std::size_t H),
                     (result, strategy, values, A, H))

VELMORA_BODY best_values_body(float* __restrict result, ValueRows values, std::size_t A,
                              std::size_t H) {
  const float* __restrict first = values[0];
  for (std::size_t h = 0; h < H; ++h) result[h] = first[h];
  for (std::size_t a = 1; a < A; ++a) {
    const float* __restrict v = values[a];
    for (std::size_t h = 0; h < H; ++h) result[h] = v[h] > result[h] ? v[h] : result[h];
  }
}
VELMORA_MULTIVERSION(best_values, (float* result, ValueRows values, std::size_t A, std::size_t H),
                     (result, values, A, H))

// One pass for each number of actions, with `F` hands at a time in vectors.
namespace {

template <typename Row>
[[gnu::always_inline]] inline void load(Row& row, const float* from) {
  std::memcpy(&row, from, sizeof(row));
}
template <typename Row>
[[gnu::always_inline]] inline void store(const Row& row, float* to) {
  std::memcpy(to, &row, sizeof(row));
}

/// Regret matching of a few hands.
template <std::size_t A, typename Row>
[[gnu::always_inline]] inline void match(const Row* regrets, Row* strategy) {
  Row sum{};
  for (std::size_t a = 0; a < A; ++a) {
    strategy[a] = regrets[a] > 0.0F ? regrets[a] : Row{};
    sum = a == 0 ? strategy[0] : sum + strategy[a];
  }
  const Row one = Row{} + 1.0F;
  const Row divisor = sum > 0.0F ? sum : one;
  const Row uniform = Row{} + 1.0F / static_cast<float>(A);
  for (std::size_t a = 0; a < A; ++a) {
    const Row quotient = strategy[a] / divisor;
    strategy[a] = sum > 0.0F ? quotient : uniform;
  }
}

template <std::size_t A, int F>
VELMORA_BODY learn_actions(float* __restrict result, float* __restrict regrets,
                           float* __restrict sums, ValueRows values, std::size_t H,
                           std::size_t begin, std::size_t end, float alpha, float beta, float gamma,
                           const float* next_regrets, const float* next_sums) {
  using Row = Vector<float, F>;
  const Row discount_above = Row{} + alpha;
  const Row discount_below = Row{} + beta;
  const float* rows[A];
  for (std::size_t a = 0; a < A; ++a) rows[a] = values[a];
  for (std::size_t h = begin; h < end; h += F) {
    Row regret[A];
    Row strategy[A];
    Row value[A];
    for (std::size_t a = 0; a < A; ++a) {
      load(regret[a], regrets + a * H + h);
      load(value[a], rows[a] + h);
      __builtin_prefetch(next_regrets + a * H + h, 1);
      __builtin_prefetch(next_sums + a * H + h, 1);
    }
    match<A>(regret, strategy);
    Row mean = strategy[0] * value[0];
    for (std::size_t a = 1; a < A; ++a) mean = mean + strategy[a] * value[a];
    store(mean, result + h);
    for (std::size_t a = 0; a < A; ++a) {
      Row sum;
      load(sum, sums + a * H + h);
      store(Row(sum * gamma + strategy[a]), sums + a * H + h);
      const Row discount = regret[a] >= 0.0F ? discount_above : discount_below;
      store(Row((discount * regret[a] + value[a]) - mean), regrets + a * H + h);
    }
  }
}

template <std::size_t A, int F>
VELMORA_BODY split_reach_actions(float* __restrict out, bool* live, const float* __restrict regrets,
                                 const float* __restrict reach, std::size_t H, std::size_t begin,
                                 std::size_t end) {
  using Row = Vector<float, F>;
  Row greatest[A] = {};
  for (std::size_t h = begin; h < end; h += F) {
    Row regret[A];
    Row strategy[A];
    Row arriving;
    load(arriving, reach + h);
    for (std::size_t a = 0; a < A; ++a) load(regret[a], regrets + a * H + h);
    match<A>(regret, strategy);
    for (std::size_t a = 0; a < A; ++a) {
      const Row split = strategy[a] * arriving;
      greatest[a] = split > greatest[a] ? split : greatest[a];
      store(split, out + a * H + h);
    }
  }
  for (std::size_t a = 0; a < A; ++a) {
    for (int i = 0; i < F; ++i) live[a] = live[a] || greatest[a][i] > 0.0F;
  }
}

/// The average strategy of `F` hands from their sums.
template <std::size_t A, int F, int W>
[[gnu::always_inline]] inline void average(const float* sums, std::size_t H, float (*strategy)[F]) {
  using Amounts = Lanes<F, W>;
  Amounts held[A];
  Amounts total = Amounts::zero();
  for (std::size_t a = 0; a < A; ++a) {
    held[a] = Amounts::widen(sums + a * H).at_least_zero();
    total = total + held[a];
  }
  const Amounts uniform = Amounts::all(1.0 / static_cast<double>(A));
  for (std::size_t a = 0; a < A; ++a) {
    held[a].over_or(total, uniform).narrow().store(strategy[a]);
  }
}

template <std::size_t A, int F, int W>
VELMORA_BODY split_average_actions(float* __restrict out, bool* live, const float* __restrict sums,
                                   const float* __restrict reach, std::size_t H) {
  using Row = Vector<float, F>;
  Row greatest[A] = {};
  std::fill_n(live, A, false);
  for (std::size_t h = 0; h < H; h += F) {
    alignas(64) float strategy[A][F];
    average<A, F, W>(sums + h, H, strategy);
    Row arriving;
    load(arriving, reach + h);
    for (std::size_t a = 0; a < A; ++a) {
      Row share;
      load(share, strategy[a]);
      const Row split = share * arriving;
      greatest[a] = split > greatest[a] ? split : greatest[a];
      store(split, out + a * H + h);
    }
  }
  for (std::size_t a = 0; a < A; ++a) {
    for (int i = 0; i < F; ++i) live[a] = live[a] || greatest[a][i] > 0.0F;
  }
}

template <std::size_t A, int F, int W>
VELMORA_BODY average_values_actions(float* __restrict result, const float* __restrict sums,
                                    ValueRows values, std::size_t H) {
  using Amounts = Lanes<F, W>;
  for (std::size_t h = 0; h < H; h += F) {
    alignas(64) float strategy[A][F];
    average<A, F, W>(sums + h, H, strategy);
    Amounts sum = Amounts::zero();
    for (std::size_t a = 0; a < A; ++a) {
      sum = sum + Amounts::widen(strategy[a]) * Amounts::widen(values[a] + h);
    }
    sum.narrow().store(result + h);
  }
}

/// Floats of a vector that holds `W` doubles.
template <int W>
constexpr int kFloats = 2 * W;
/// As many as rows are padded to, at most.
template <int W>
constexpr int kHalfFloats = W == 2 ? 4 : 8;

/// Calls `run` with the number of actions as a constant.
template <typename Run>
[[gnu::always_inline]] inline void with_actions(std::size_t A, const Run& run) {
  switch (A) {
    case 2: return run(std::integral_constant<std::size_t, 2>());
    case 3: return run(std::integral_constant<std::size_t, 3>());
    case 4: return run(std::integral_constant<std::size_t, 4>());
    case 5: return run(std::integral_constant<std::size_t, 5>());
    case 6: return run(std::integral_constant<std::size_t, 6>());
    default: break;
  }
}

}  // namespace

template <int W>
VELMORA_BODY learn_fused_body(float* result, float* regrets, float* sums, ValueRows values,
                              std::size_t A, std::size_t H, float alpha, float beta, float gamma,
                              const float* next_regrets, const float* next_sums) {
  with_actions(
      A, [&](auto actions) __attribute__((always_inline)) {
        const std::size_t wide = H / kFloats<W> * kFloats<W>;
        learn_actions<actions(), kFloats<W>>(result, regrets, sums, values, H, 0, wide, alpha, beta,
                                             gamma, next_regrets, next_sums);
        if (wide < H) {
          learn_actions<actions(), kRowPadding>(result, regrets, sums, values, H, wide, H, alpha,
                                                beta, gamma, next_regrets, next_sums);
        }
      });
}
VELMORA_MULTIVERSION_WIDE(learn_fused,
                          (float* result, float* regrets, float* sums, ValueRows values,
                           std::size_t A, std::size_t H, float alpha, float beta, float gamma,
                           const float* next_regrets, const float* next_sums),
                          (result, regrets, sums, values, A, H, alpha, beta, gamma, next_regrets,
                           next_sums))

template <int W>
VELMORA_BODY split_reach_fused_body(float* out, bool* live, const float* regrets,
                                    const float* reach, std::size_t A, std::size_t H) {
  with_actions(
      A, [&](auto actions) __attribute__((always_inline)) {
        const std::size_t wide = H / kFloats<W> * kFloats<W>;
        std::fill_n(live, actions(), false);
        split_reach_actions<actions(), kFloats<W>>(out, live, regrets, reach, H, 0, wide);
        if (wide < H) {
          split_reach_actions<actions(), kRowPadding>(out, live, regrets, reach, H, wide, H);
        }
      });
}
VELMORA_MULTIVERSION_WIDE(split_reach_fused,
                          (float* out, bool* live, const float* regrets, const float* reach,
                           std::size_t A, std::size_t H),
                          (out, live, regrets, reach, A, H))

template <int W>
VELMORA_BODY split_average_fused_body(float* out, bool* live, const float* sums, const float* reach,
                                      std::size_t A, std::size_t H) {
  with_actions(
      A, [&](auto actions) __attribute__((always_inline)) {
        split_average_actions<actions(), kHalfFloats<W>, W>(out, live, sums, reach, H);
      });
}
VELMORA_MULTIVERSION_WIDE(split_average_fused,
                          (float* out, bool* live, const float* sums, const float* reach,
                           std::size_t A, std::size_t H),
                          (out, live, sums, reach, A, H))

template <int W>
VELMORA_BODY average_values_fused_body(float* result, const float* sums, ValueRows values,
                                       std::size_t A, std::size_t H) {
  with_actions(
      A, [&](auto actions) __attribute__((always_inline)) {
        average_values_actions<actions(), kHalfFloats<W>, W>(result, sums, values, H);
      });
}
VELMORA_MULTIVERSION_WIDE(average_values_fused,
                          (float* result, const float* sums, ValueRows values, std::size_t A,
                           std::size_t H),
                          (result, sums, values, A, H))

}  // namespace velmora
