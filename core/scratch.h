// Working memory of the traversals.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <vector>

#include "huge_pages.h"
#include "rows.h"

namespace velmora {

/// Memory that is taken and given back in the order of a stack. It only ever grows, so walking a
/// tree allocates nothing once it has its size. Belongs to one thread at a time.
class ScratchStack {
 public:
  /// Gives back on destruction all that was taken since its construction.
  class Frame {
   public:
    explicit Frame(ScratchStack& stack) : stack_(stack), block_(stack.block_), used_(stack.used_) {}
    ~Frame() {
      stack_.block_ = block_;
      stack_.used_ = used_;
    }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

   private:
    ScratchStack& stack_;
    std::size_t block_;
    std::size_t used_;
  };

  static constexpr double kHugePage = 2 << 20;  ///< Bytes.
  /// Bytes that an item of so many takes.
  static constexpr std::size_t taken_bytes(std::size_t bytes) {
    return (bytes + kCacheLine - 1) / kCacheLine * kCacheLine;
  }
  /// Bytes that a stack takes from the machine when so many are in use at most: whole huge pages.
  static double resident_bytes(double bytes) { return std::ceil(bytes / kHugePage) * kHugePage; }

  /// Space for `count` items that hold anything, on a cache line. Throws `std::bad_alloc`.
  template <typename T>
  T* take(std::size_t count) {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);
    return static_cast<T*>(take_bytes(count * sizeof(T)));
  }

 private:
  /// Some huge pages, of which only those that are used are taken from the machine.
  static constexpr std::size_t kBlockBytes = std::size_t{16} << 20;
  static constexpr std::size_t kCacheLine = 64;

  void* take_bytes(std::size_t bytes) {
    const std::size_t size = taken_bytes(bytes);
    while (block_ < blocks_.size() && blocks_[block_].size() - used_ < size) {
      ++block_;
      used_ = 0;
    }
    if (block_ == blocks_.size()) {
      blocks_.push_back(PageArray<char>(size > kBlockBytes ? size : kBlockBytes));
      used_ = 0;
    }
    void* const space = blocks_[block_].data() + used_;
    used_ += size;
    return space;
  }

  std::vector<PageArray<char>> blocks_;
  std::size_t block_ = 0;  ///< The block in use, which may not be there yet.
  std::size_t used_ = 0;   ///< Bytes of it.
};

}  // namespace velmora
