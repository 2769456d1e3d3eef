// Memory that runs out on demand: the program's operator new and the pages of the tables.
#pragma once

#include <cstdint>

namespace failing_allocator {

/// What happens to the allocations after the one that fails.
enum class Outage {
  kOnce,     ///< The next one succeeds.
  kForGood,  ///< All fail until `stop`: nothing is left.
};

/// From now on allocations are counted, from 0 and over all threads, and the one of this number
/// fails.
void start(std::uint64_t failing, Outage outage);
/// Ends that, and gives the number of allocations that were counted.
std::uint64_t stop();

/// Blocks and pages that are in use.
std::int64_t in_use();

/// While one exists the allocations of its thread always succeed and are not counted: they are the
/// test's own.
class Exempt {
 public:
  Exempt();
  ~Exempt();
  Exempt(const Exempt&) = delete;
  Exempt& operator=(const Exempt&) = delete;
};

}  // namespace failing_allocator
