// Fetches memory into the cache before it is needed, beside other work.
#pragma once

#include <cstddef>
#include <vector>

namespace velmora {

/// A list of blocks of memory that will be used soon. A loop that leaves the memory idle makes a
/// `Cursor` and steps it now and then; each step asks for one cache line.
class MemoryAhead {
 public:
  void add(const void* begin, std::size_t bytes) {
    const char* const first = static_cast<const char*>(begin);
    blocks_.push_back({first, first + bytes});
  }

  /// The place in the list, kept by the loop itself so that it stays in registers; the list gets it
  /// back on destruction.
  class Cursor {
   public:
    explicit Cursor(MemoryAhead& list)
        : list_(list), at_(list.current_.begin), end_(list.current_.end) {}
    ~Cursor() { list_.current_ = {at_, end_}; }
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;

    [[gnu::always_inline]] void step() {
      if (at_ < end_) {
        __builtin_prefetch(at_, 0, 2);
        at_ += kCacheLine;
      }
    }
    /// Goes on to the next block if this one is done, to be called from time to time.
    void refill() {
      if (at_ >= end_ && list_.next_ < list_.blocks_.size()) {
        at_ = list_.blocks_[list_.next_].begin;
        end_ = list_.blocks_[list_.next_].end;
        ++list_.next_;
      }
    }

   private:
    MemoryAhead& list_;
    const char* at_;
    const char* end_;
  };

 private:
  static constexpr std::size_t kCacheLine = 64;

  struct Block {
    const char* begin = nullptr;
    const char* end = nullptr;
  };

  std::vector<Block> blocks_;
  std::size_t next_ = 0;
  Block current_;
};

}  // namespace velmora
