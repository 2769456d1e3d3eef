// Where exhausted memory is an answer and not the end of the program.
#pragma once

namespace velmora_app {

/// While one exists, faults on its thread are caught and end as a failed run or an empty estimate.
class FaultScope {
 public:
  FaultScope();
  ~FaultScope();
  FaultScope(const FaultScope&) = delete;
  FaultScope& operator=(const FaultScope&) = delete;
};

/// True within a scope, and in the shares of a parallel loop, which hand their faults to the loop's
/// caller. A program whose out-of-memory handler ends it asks this first, and throws
/// `std::bad_alloc` instead.
bool faults_are_caught();

}  // namespace velmora_app
