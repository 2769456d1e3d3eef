#include "interrupt.h"

#include <atomic>
#include <csignal>

namespace {

std::atomic<bool> flag = false;
static_assert(std::atomic<bool>::is_always_lock_free, "the handler may touch nothing else");

// The handler leaves the default action in place for the next signal of its kind.
void handle(int signal) {
  flag = true;
  std::signal(signal, SIG_DFL);
}

}  // namespace

void catch_interrupts() {
  std::signal(SIGINT, handle);
  std::signal(SIGTERM, handle);
}

bool interrupted() {
  return flag;
}
