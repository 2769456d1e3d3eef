#include "failing_allocator.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>
#include <sys/mman.h>

namespace failing_allocator {
namespace {

constexpr std::uint64_t kNone = std::numeric_limits<std::uint64_t>::max();

std::atomic<std::uint64_t> first_failing = kNone;
std::atomic<std::uint64_t> last_failing = 0;
std::atomic<std::uint64_t> counted = 0;
std::atomic<std::int64_t> used = 0;
thread_local int exemptions = 0;

bool fails() {
  if (exemptions > 0) return false;
  const std::uint64_t number = counted++;
  return number >= first_failing && number <= last_failing;
}

void* allocated(void* memory) {
  if (memory == nullptr) throw std::bad_alloc();
  ++used;
  return memory;
}

void* allocate(std::size_t bytes) {
  return allocated(fails() ? nullptr : std::malloc(bytes == 0 ? 1 : bytes));
}

void* allocate_aligned(std::size_t bytes, std::size_t alignment) {
  const std::size_t rounded = (bytes + alignment - 1) / alignment * alignment;
  return allocated(fails() ? nullptr : std::aligned_alloc(alignment, rounded));
}

void release(void* memory) {
  if (memory != nullptr) --used;
  std::free(memory);
}

}  // namespace

void start(std::uint64_t failing, Outage outage) {
  counted = 0;
  last_failing = outage == Outage::kOnce ? failing : kNone;
  first_failing = failing;
}

std::uint64_t stop() {
  first_failing = kNone;
  last_failing = 0;
  return counted;
}

std::int64_t in_use() {
  return used;
}

Exempt::Exempt() {
  ++exemptions;
}
Exempt::~Exempt() {
  --exemptions;
}

}  // namespace failing_allocator

namespace fa = failing_allocator;

// The linker sends every mmap of the program's own code here (--wrap), but not those of the C
// library.
extern "C" void* __real_mmap(void*, std::size_t, int, int, int, off_t);
extern "C" int __real_munmap(void*, std::size_t);
extern "C" void* __wrap_mmap(void* at, std::size_t bytes, int protection, int flags, int file,
                             off_t offset) {
  if (fa::fails()) return MAP_FAILED;
  void* const pages = __real_mmap(at, bytes, protection, flags, file, offset);
  if (pages != MAP_FAILED) ++fa::used;
  return pages;
}
extern "C" int __wrap_munmap(void* pages, std::size_t bytes) {
  --fa::used;
  return __real_munmap(pages, bytes);
}

void* operator new(std::size_t bytes) {
  return fa::allocate(bytes);
}
void* operator new(std::size_t bytes, std::align_val_t alignment) {
  return fa::allocate_aligned(bytes, static_cast<std::size_t>(alignment));
}
/// Never fails: who asks in this way, as the sorts of the standard library do, has another way.
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
  const fa::Exempt asks_nicely;
  return fa::allocate(bytes);
}
void operator delete(void* memory) noexcept {
  fa::release(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  fa::release(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
  fa::release(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
  fa::release(memory);
}
