// Vectors of the processor at hand, for loops in which several nodes go side by side: each has a
// lane of its own, so that its sums keep the order that they have when it goes alone.
#pragma once

#include <cstring>

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

}  // namespace velmora
