// Rows of several lanes into blocks, in which the lanes of a hand stand side by side, and back.
#pragma once

#include <cstddef>
#include <cstring>

#include "lane_vectors.h"
#include "multiversion.h"

namespace velmora {

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
