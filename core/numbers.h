// Numbers in the notations, read as the C locale reads them whatever the user's is.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace velmora {

/// A text stands where a number should.
class NumberFault : public std::invalid_argument {
 public:
  using std::invalid_argument::invalid_argument;
};

/// What a conversion made of a text, with the grammar of the C library.
template <typename Number>
struct Conversion {
  Number value;
  bool found;         ///< A number stands at the beginning.
  bool out_of_range;  ///< It doesn't fit its type.
  bool complete;      ///< Nothing stands behind it.
};

Conversion<double> convert_double(std::string_view text);
Conversion<float> convert_float(std::string_view text);

/// The whole text as a double. Throws `NumberFault`.
double parse_double_strict(std::string_view text);
/// The whole text as a signed 32-bit number. Throws `NumberFault`, `std::out_of_range`.
std::int32_t parse_int_strict(std::string_view text);

}  // namespace velmora
