// Rows of floats as the kernels want them: each begins on a multiple of 8 floats and is padded up
// to one, so that vector loops need no remainder.
#pragma once

#include <cstddef>
#include <new>
#include <span>
#include <vector>

namespace velmora {

inline constexpr std::size_t kRowPadding = 8;

/// Floats that a row of `length` entries takes.
constexpr std::size_t padded(std::size_t length) {
  return (length + kRowPadding - 1) / kRowPadding * kRowPadding;
}

template <typename T>
struct CacheLineAllocator {
  using value_type = T;
  static constexpr std::align_val_t kAlignment{64};

  CacheLineAllocator() = default;
  template <typename U>
  CacheLineAllocator(const CacheLineAllocator<U>&) {}  // NOLINT: converts by design

  T* allocate(std::size_t n) { return static_cast<T*>(::operator new(n * sizeof(T), kAlignment)); }
  void deallocate(T* p, std::size_t) noexcept { ::operator delete(p, kAlignment); }
  bool operator==(const CacheLineAllocator&) const { return true; }
};

/// A list of floats that only ever grows; new cells are 0.
class FloatList {
 public:
  /// A row of at least `length` entries, padded. Entries keep what they held.
  std::span<float> row(std::size_t length) {
    grow(padded(length));
    return {cells_.data(), length};
  }
  /// Space for `count` padded rows one behind the other.
  float* rows(std::size_t count, std::size_t length) {
    grow(count * padded(length));
    return cells_.data();
  }

 private:
  void grow(std::size_t cells) {
    if (cells_.size() < cells) cells_.resize(cells);
  }

  std::vector<float, CacheLineAllocator<float>> cells_;
};

}  // namespace velmora
