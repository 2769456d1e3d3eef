// Large arrays that are allocated once and live long.
#pragma once

#include <cstddef>
#include <span>
#include <type_traits>
#include <utility>

namespace velmora {

/// Zeroed memory straight from the system, on huge pages where it offers them. Throws
/// `std::bad_alloc`. It does not go through the program's allocator, whose out-of-memory handler
/// may end the program: a spot that doesn't fit must end as a failed solve.
void* allocate_pages(std::size_t bytes);
void free_pages(void* pages, std::size_t bytes) noexcept;

/// An array of trivial records in memory of `allocate_pages`, all bytes 0 at the start. Its pages
/// are taken from the machine when they are first written.
template <typename T>
class PageArray {
  static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

 public:
  PageArray() = default;
  explicit PageArray(std::size_t size)
      : data_(size ? static_cast<T*>(allocate_pages(bytes_of(size))) : nullptr), size_(size) {}
  PageArray(PageArray&& other) noexcept
      : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)) {}
  PageArray& operator=(PageArray&& other) noexcept {
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
    return *this;
  }
  PageArray(const PageArray&) = delete;
  PageArray& operator=(const PageArray&) = delete;
  ~PageArray() {
    if (data_) free_pages(data_, size_ * sizeof(T));
  }

  T* data() { return data_; }
  const T* data() const { return data_; }
  std::size_t size() const { return size_; }
  T& operator[](std::size_t i) { return data_[i]; }
  const T& operator[](std::size_t i) const { return data_[i]; }
  operator std::span<const T>() const { return {data_, size_}; }  // NOLINT: a view of itself

 private:
  static std::size_t bytes_of(std::size_t size) {
    constexpr std::size_t kMost = static_cast<std::size_t>(-1) / 2;
    return size > kMost / sizeof(T) ? kMost : size * sizeof(T);
  }

  T* data_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace velmora
