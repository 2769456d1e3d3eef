// An environment variable for the length of a scope.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace velmora_test {

/// Sets a variable, or takes it away where there is no value, and puts back what was there. Only
/// while no other thread runs.
class ScopedEnvironment {
 public:
  ScopedEnvironment(const char* name, const std::optional<std::string>& value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    set(value);
  }
  ~ScopedEnvironment() { set(before_); }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

 private:
  void set(const std::optional<std::string>& value) {
    if (value) {
      setenv(name_, value->c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }

  const char* name_;
  std::optional<std::string> before_;
};

}  // namespace velmora_test
