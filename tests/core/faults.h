// Faults as tables: which call throws which kind with which text.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace faults {

/// "invalid: <text>", "range: <text>", "other: <text>", or "none" if the call returns.
inline std::string of(const std::function<void()>& call) {
  try {
    call();
  } catch (const std::invalid_argument& fault) {
    return std::string("invalid: ") + fault.what();
  } catch (const std::out_of_range& fault) {
    return std::string("range: ") + fault.what();
  } catch (const std::exception& fault) {
    return std::string("other: ") + fault.what();
  }
  return "none";
}

struct Case {
  std::string input;
  std::string fault;
};

template <typename Parse>
void expect(Parse parse, const std::vector<Case>& cases) {
  for (const auto& [input, fault] : cases) {
    EXPECT_EQ(of([&] { static_cast<void>(parse(input)); }), fault) << "input '" << input << "'";
  }
}

}  // namespace faults
