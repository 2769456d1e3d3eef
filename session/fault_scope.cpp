#include "fault_scope.h"

#include "worker_pool.h"

namespace velmora_app {
namespace {

thread_local int scopes = 0;

}  // namespace

FaultScope::FaultScope() {
  ++scopes;
}
FaultScope::~FaultScope() {
  --scopes;
}

bool faults_are_caught() {
  return scopes > 0 || velmora::WorkerPool::in_worker();
}

}  // namespace velmora_app
