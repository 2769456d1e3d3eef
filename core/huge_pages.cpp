#include "huge_pages.h"

#include <new>
#include <sys/mman.h>

namespace velmora {

void* allocate_pages(std::size_t bytes) {
  void* pages = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (pages == MAP_FAILED) throw std::bad_alloc();
#ifdef MADV_HUGEPAGE
  // A refusal costs speed only.
  madvise(pages, bytes, MADV_HUGEPAGE);
#endif
  return pages;
}

void free_pages(void* pages, std::size_t bytes) noexcept {
  munmap(pages, bytes);
}

}  // namespace velmora
