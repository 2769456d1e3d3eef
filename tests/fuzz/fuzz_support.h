// What the fuzzers share: their input as text or as a file, and checks that can't be compiled away.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace fuzz {

inline std::string_view text_of(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Ends the program, for the fuzzer to keep the input, unless the condition holds.
inline void check(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "check failed: %s\n", what);
  std::abort();
}

/// Runs a parser. True if it took the text; a refusal must be a fault of the model with a text, and
/// anything else that it throws ends the program.
template <typename Parse>
bool takes(const Parse& parse) {
  try {
    parse();
    return true;
  } catch (const std::invalid_argument& fault) {
    check(*fault.what() != '\0', "a fault has a text");
  } catch (const std::out_of_range& fault) {
    check(*fault.what() != '\0', "a fault has a text");
  }
  return false;
}

/// A file in memory, for what reads files by their names.
class MemoryFile {
 public:
  explicit MemoryFile(std::string_view content) : file_(memfd_create("fuzz", MFD_CLOEXEC)) {
    check(file_ >= 0 &&
              write(file_, content.data(), content.size()) == static_cast<ssize_t>(content.size()),
          "a file in memory");
  }
  ~MemoryFile() { close(file_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::string path() const { return "/proc/self/fd/" + std::to_string(file_); }

 private:
  int file_;
};

}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
