// Vectors of the processor at hand, for loops in which several nodes go side by side: each has a
// lane of its own, so that its sums keep the order that they have when it goes alone.
#pragma once

#include <cstddef>
#include <cstring>

#include "multiversion.h"

namespace velmora {

template <typename T, int N>
struct VectorOf {
  typedef T Type __attribute__((vector_size(N * sizeof(T))));
};
template <typename T, int N>
using Vector = typename VectorOf<T, N>::Type;

/// `L` lanes of single precision in vectors of `W` floats.
template <int L, int W>
struct FloatLanes {
  static constexpr int kParts = L / W;
  using Part = Vector<float, W>;

  Part part[kParts];

  [[gnu::always_inline]] static FloatLanes load(const float* from) {
    FloatLanes lanes;
    for (int k = 0; k < kParts; ++k) std::memcpy(&lanes.part[k], from + k * W, sizeof(Part));
    return lanes;
  }
  [[gnu::always_inline]] void store(float* to) const {
    for (int k = 0; k < kParts; ++k) std::memcpy(to + k * W, &part[k], sizeof(Part));
  }
  [[gnu::always_inline]] FloatLanes operator+(const FloatLanes& y) const {
    FloatLanes lanes;
    for (int k = 0; k < kParts; ++k) lanes.part[k] = part[k] + y.part[k];
    return lanes;
  }
};

/// `L` lanes of double precision in vectors of `W` doubles.
template <int L, int W>
struct Lanes {
  static_assert(L % W == 0);
  static constexpr int kParts = L / W;
  using Part = Vector<double, W>;
  using Floats = FloatLanes<L, W>;

  Part part[kParts];

  [[gnu::always_inline]] static Lanes zero() {
    Lanes lanes;
    for (int k = 0; k < kParts; ++k) lanes.part[k] = Part{};
    return lanes;
  }
  [[gnu::always_inline]] static Lanes all(double x) {
    Lanes lanes;
    for (int k = 0; k < kParts; ++k) lanes.part[k] = Part{} + x;
    return lanes;
  }
  [[gnu::always_inline]] static Lanes load(const double* from) {
    Lanes lanes;
    for (int k = 0; k < kParts; ++k) std::memcpy(&lanes.part[k], from + k * W, sizeof(Part));
    return lanes;
  }
  [[gnu::always_inline]] void store(double* to) const {
    for (int k = 0; k < kParts; ++k) std::memcpy(to + k * W, &part[k], sizeof(Part));
  }
  /// Each float exactly.
  [[gnu::always_inline]] static Lanes widen(const float* from) {
    Lanes lanes;
    for (int k = 0; k < kParts; ++k) widen_part(from + k * W, lanes.part[k]);
    return lanes;
  }
  /// Rounded to single precision.
  [[gnu::always_inline]] Floats narrow() const {
    Floats lanes;
    for (int k = 0; k < kParts; ++k) narrow_part(part[k], lanes.part[k]);
    return lanes;
  }

  [[gnu::always_inline]] Lanes operator+(const Lanes& y) const {
    Lanes lanes;
    for (int k = 0; k < kParts; ++k) lanes.part[k] = part[k] + y.part[k];
    return lanes;
  }
  [[gnu::always_inline]] Lanes operator-(const Lanes& y) const {
    Lanes lanes;
    for (int k = 0; k < kParts; ++k) lanes.part[k] = part[k] - y.part[k];
    return lanes;
  }
  [[gnu::always_inline]] Lanes operator*(const Lanes& y) const {
    Lanes lanes;
    for (int k = 0; k < kParts; ++k) lanes.part[k] = part[k] * y.part[k];
    return lanes;
  }
  /// 0 in the lanes in which `x` is 0.
  [[gnu::always_inline]] Lanes where_not_zero(const Lanes& x) const {
    Lanes lanes;
    for (int k = 0; k < kParts; ++k) lanes.part[k] = x.part[k] == 0.0 ? Part{} : part[k];
    return lanes;
  }
  [[gnu::always_inline]] Lanes at_least_zero() const {
    Lanes lanes;
    for (int k = 0; k < kParts; ++k) lanes.part[k] = part[k] > 0.0 ? part[k] : Part{};
    return lanes;
  }
  /// The quotient by `divisor`, or `otherwise` where that is not above 0.
  [[gnu::always_inline]] Lanes over_or(const Lanes& divisor, const Lanes& otherwise) const {
    Lanes lanes;
    for (int k = 0; k < kParts; ++k) {
      const Part quotient = part[k] / (divisor.part[k] > 0.0 ? divisor.part[k] : Part{} + 1.0);
      lanes.part[k] = divisor.part[k] > 0.0 ? quotient : otherwise.part[k];
    }
    return lanes;
  }

 private:
  // GCC 12 takes conversions of eight apart, so the instruction is written out for those. Written
  // element by element it would even drop the rounding of a narrowing that is widened again.
  [[gnu::always_inline]] static void widen_part(const float* from, Part& wide) {
#if defined(__x86_64__)
    if constexpr (W == 8) {
      Part converted;
      __asm__("vcvtps2pd %1, %0"
              : "=v"(converted)
              : "m"(*reinterpret_cast<const float(*)[W]>(from)));
      wide = converted;
    } else
#endif
    {
      typename Floats::Part narrow;
      std::memcpy(&narrow, from, sizeof(narrow));
      wide = __builtin_convertvector(narrow, Part);
    }
  }
  [[gnu::always_inline]] static void narrow_part(const Part& wide, typename Floats::Part& narrow) {
#if defined(__x86_64__)
    if constexpr (W == 8) {
      typename Floats::Part converted;
      __asm__("vcvtpd2ps %1, %0" : "=v"(converted) : "v"(wide));
      narrow = converted;
    } else
#endif
    {
      narrow = __builtin_convertvector(wide, typename Floats::Part);
    }
  }
};

/// Two squares of 4 by 4 floats side by side, turned each by itself.
using Row4 = Vector<float, 4>;
using Row8 = Vector<float, 8>;

[[gnu::always_inline]] inline void transpose(Row8* row) {
  Row8 pairs[4];
  for (int i = 0; i < 2; ++i) {
    pairs[i] = __builtin_shufflevector(row[2 * i], row[2 * i + 1], 0, 8, 1, 9, 4, 12, 5, 13);
    pairs[i + 2] = __builtin_shufflevector(row[2 * i], row[2 * i + 1], 2, 10, 3, 11, 6, 14, 7, 15);
  }
  for (int i = 0; i < 2; ++i) {
    const Row8& a = pairs[2 * i];
    const Row8& b = pairs[2 * i + 1];
    row[2 * i] = __builtin_shufflevector(a, b, 0, 1, 8, 9, 4, 5, 12, 13);
    row[2 * i + 1] = __builtin_shufflevector(a, b, 2, 3, 10, 11, 6, 7, 14, 15);
  }
}

[[gnu::always_inline]] inline void load_halves(Row8& row, const float* low, const float* high) {
  Row4 a, b;
  std::memcpy(&a, low, sizeof(a));
  std::memcpy(&b, high, sizeof(b));
  row = __builtin_shufflevector(a, b, 0, 1, 2, 3, 4, 5, 6, 7);
}

/// Rows of `L` lanes into a block of one float of each lane for each hand, four hands at a time.
template <int L>
VELMORA_BODY interleave(const float* const* rows, std::size_t hands, float* block) {
  for (std::size_t h = 0; h < hands; h += 4) {
    Row8 square[4];
    for (int i = 0; i < 4; ++i) load_halves(square[i], rows[i] + h, rows[(i + 4) % L] + h);
    transpose(square);
    for (std::size_t i = 0; i < 4; ++i) {
      std::memcpy(block + (h + i) * L, &square[i], sizeof(float) * L);
    }
  }
}

/// And back, eight hands at a time, of which `hands` is a multiple.
template <int L>
VELMORA_BODY deinterleave(const float* block, std::size_t hands, float* const* rows) {
  for (std::size_t h = 0; h < hands; h += 8) {
    for (std::size_t lane = 0; lane < L; lane += 4) {
      Row8 square[4];
      for (std::size_t i = 0; i < 4; ++i) {
        const float* const hand = block + (h + i) * L + lane;
        load_halves(square[i], hand, hand + 4 * L);
      }
      transpose(square);
      for (std::size_t i = 0; i < 4; ++i) {
        std::memcpy(rows[lane + i] + h, &square[i], sizeof(Row8));
      }
    }
  }
}

}  // namespace velmora
