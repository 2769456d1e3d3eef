#include "system/crash_lines.h"

#include <algorithm>
#include <array>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <new>
#include <unistd.h>

#include <QByteArray>
#include <QFile>

#include "fault_scope.h"

namespace {

// Filled before the hooks are installed: a handler can neither convert nor allocate.
using PathBuffer = std::array<char, PATH_MAX>;
PathBuffer appDirLogPath;
PathBuffer tempLogPath;

alignas(16) std::array<char, 65'536> signalStack;

constexpr std::array kHandledSignals{SIGABRT, SIGSEGV, SIGBUS, SIGILL, SIGFPE};

/// A line made without the heap, the locale or any other state.
class Line {
 public:
  Line& text(std::string_view text) {
    for (const char c : text) {
      put(c);
    }
    return *this;
  }
  Line& number(std::uint64_t value, unsigned base) {
    std::array<char, 20> digits;
    std::size_t count = 0;
    do {
      digits[count++] = "0123456789abcdef"[value % base];
      value /= base;
    } while (value != 0);
    while (count > 0) {
      put(digits[--count]);
    }
    return *this;
  }
  std::string_view view() const { return {text_.data(), size_}; }

 private:
  void put(char c) {
    if (size_ < text_.size()) text_[size_++] = c;
  }

  std::array<char, 128> text_;
  std::size_t size_ = 0;
};

// All handled signals are blocked while this runs: a fault in here ends the process at once, and
// the signal raised at the end takes effect on the way out.
void onSignal(int signal, siginfo_t* info, void* /*context*/) {
  const auto number = static_cast<std::uint64_t>(signal);
  if (signal != SIGABRT) {
    // A signal that another process sent has no address.
    const bool isFault = info != nullptr && info->si_code > 0;
    const auto address = isFault ? reinterpret_cast<std::uintptr_t>(info->si_addr) : 0;
    Line line;
    line.text("FATAL: Vectored exception code=0x").number(number, 16);
    line.text(" addr=").number(address, 16);
    writeCrashLine(line.view());
  }
  Line line;
  line.text("FATAL: C signal received sig=").number(number, 10);
  writeCrashLine(line.view());

  struct sigaction action = {};
  action.sa_handler = SIG_DFL;
  sigaction(signal, &action, nullptr);
  raise(signal);
}

[[noreturn]] void onTerminate() {
  writeCrashLine("FATAL: std::terminate() called");
  std::abort();
}

// A spot that doesn't fit ends as a failed solve; memory exhausted anywhere else ends the program.
[[noreturn]] void onOutOfMemory() {
  if (velmora_app::faults_are_caught()) throw std::bad_alloc();
  writeCrashLine("FATAL: std::new_handler invoked (out of memory)");
  std::abort();
}

void keepPath(const QString& path, PathBuffer& buffer) {
  const QByteArray name = QFile::encodeName(path);
  // No file can be opened by a longer name.
  const bool fits = name.size() < PATH_MAX;
  std::memcpy(buffer.data(), fits ? name.constData() : "", fits ? name.size() + 1 : 1);
}

}  // namespace

void setCrashLinePaths(const QString& appDirLog, const QString& tempLog) {
  keepPath(appDirLog, appDirLogPath);
  keepPath(tempLog, tempLogPath);
}

void writeDirect(std::string_view line, const char* path) {
  if (*path == '\0') return;
  const int file = open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
  if (file < 0) return;
  std::array<char, kMaxCrashLineBytes + 2> text;
  const std::size_t size = std::min(line.size(), kMaxCrashLineBytes);
  std::memcpy(text.data(), line.data(), size);
  text[size] = '\r';
  text[size + 1] = '\n';
  [[maybe_unused]] const ssize_t written = write(file, text.data(), size + 2);
  close(file);
}

void writeCrashLine(std::string_view line) {
  writeDirect(line, appDirLogPath.data());
  writeDirect(line, tempLogPath.data());
}

void installCrashHooks() {
  stack_t stack = {};
  stack.ss_sp = signalStack.data();
  stack.ss_size = signalStack.size();
  sigaltstack(&stack, nullptr);

  std::set_terminate(onTerminate);
  std::set_new_handler(onOutOfMemory);

  struct sigaction action = {};
  action.sa_sigaction = onSignal;
  action.sa_flags = SA_SIGINFO | SA_ONSTACK;
  sigemptyset(&action.sa_mask);
  for (const int signal : kHandledSignals) {
    sigaddset(&action.sa_mask, signal);
  }
  for (const int signal : kHandledSignals) {
    sigaction(signal, &action, nullptr);
  }
}
