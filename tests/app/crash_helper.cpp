// Installs the crash hooks and dies: velmora_crash_helper APP_LOG TEMP_LOG WAY
// The one way that it survives ends with the status 42.
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <new>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <thread>

#include <QDebug>

#include "fault_scope.h"
#include "system/crash_lines.h"
#include "system/logging.h"

namespace {

constexpr int kSurvived = 42;

void writeToAddress16() {
  volatile std::uintptr_t address = 16;
  *reinterpret_cast<volatile int*>(address) = 1;
}

void divideByZero() {
  volatile int seven = 7, zero = 0;
  seven = seven / zero;
}

// Not a tail call, and each call keeps a page of the stack.
int recurse(int depth, int limit) {
  if (depth == limit) return 0;
  volatile char page[4096];
  page[0] = static_cast<char>(depth);
  return recurse(depth + 1, limit) + page[0];
}

void exhaustMemory() {
  volatile std::size_t size = PTRDIFF_MAX;
  ::operator delete(::operator new(size));
}

/// As a solve does on its thread: it must live to tell that the spot doesn't fit.
void exhaustMemoryInSolve() {
  const velmora_app::FaultScope scope;
  try {
    exhaustMemory();
  } catch (const std::bad_alloc&) {
    std::exit(kSurvived);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 4) return EXIT_FAILURE;
  const rlimit noCore = {0, 0};
  setrlimit(RLIMIT_CORE, &noCore);

  const LogPaths paths{QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2])};
  setCrashLinePaths(paths.appDirLogPath, paths.tempLogPath);
  installCrashHooks();
  const std::map<std::string, void (*)()> ways{
      {"address", writeToAddress16},
      {"thread", [] { std::thread(writeToAddress16).join(); }},
      {"overflow", [] { recurse(0, INT_MAX); }},
      {"division", divideByZero},
      {"sent SIGSEGV", [] { std::raise(SIGSEGV); }},
      {"sent SIGBUS", [] { std::raise(SIGBUS); }},
      {"sent SIGILL", [] { std::raise(SIGILL); }},
      {"sent SIGABRT", [] { std::raise(SIGABRT); }},
      {"abort", [] { std::abort(); }},
      {"exception", [] { throw std::runtime_error("uncaught"); }},
      {"memory", exhaustMemory},
      {"memory in a solve", exhaustMemoryInSolve},
  };
  if (const auto way = ways.find(argv[3]); way != ways.end()) way->second();
  if (std::strcmp(argv[3], "fatal message") == 0) {
    LogFiles files(paths);
    files.open();
    qFatal("the end");
  }
  return EXIT_SUCCESS;  // It should not get here.
}
