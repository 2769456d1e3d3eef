#include "numbers.h"

#include <cerrno>
#include <cstdlib>
#include <limits>
#include <locale.h>
#include <string>

namespace velmora {

namespace {

// A desktop program sets the user's locale, where a decimal comma may be the rule.
locale_t c_locale() {
  static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
  return locale;
}

template <typename Convert>
auto convert(std::string_view view, Convert convert_text) {
  const std::string text(view);
  const char* const begin = text.c_str();
  char* end = nullptr;
  errno = 0;
  const auto value = convert_text(begin, &end);
  return Conversion<decltype(convert_text(begin, &end))>{value, end != begin, errno == ERANGE,
                                                         end == begin + text.size()};
}

}  // namespace

Conversion<double> convert_double(std::string_view text) {
  return convert(text,
                 [](const char* begin, char** end) { return strtod_l(begin, end, c_locale()); });
}

Conversion<float> convert_float(std::string_view text) {
  return convert(text,
                 [](const char* begin, char** end) { return strtof_l(begin, end, c_locale()); });
}

double parse_double_strict(std::string_view text) {
  const auto number = convert_double(text);
  if (number.found && !number.out_of_range && number.complete) return number.value;
  constexpr std::string_view kHexDigits = "0123456789abcdef";
  std::string hex;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    hex += kHexDigits[byte >> 4];
    hex += kHexDigits[byte & 15];
  }
  throw NumberFault("Failed to parse floating-point number from '" + std::string(text) +
                    "' (hex=" + hex + ")");
}

std::int32_t parse_int_strict(std::string_view text) {
  const auto number = convert(
      text, [](const char* begin, char** end) { return strtoll_l(begin, end, 10, c_locale()); });
  if (!number.found || number.out_of_range || !number.complete) {
    throw NumberFault("Failed to parse integer from '" + std::string(text) + "'");
  }
  if (number.value < std::numeric_limits<std::int32_t>::min() ||
      number.value > std::numeric_limits<std::int32_t>::max()) {
    throw std::out_of_range("Integer value is out of range");
  }
  return static_cast<std::int32_t>(number.value);
}

}  // namespace velmora
