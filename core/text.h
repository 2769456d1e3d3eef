// Characters and trimming as the notations define them, free of the locale.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace velmora {

constexpr bool is_space(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}
constexpr bool is_digit(char c) {
  return c >= '0' && c <= '9';
}
constexpr char to_lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}
constexpr bool is_letter(char c) {
  return to_lower(c) >= 'a' && to_lower(c) <= 'z';
}

inline std::string without_space(std::string_view text) {
  std::string kept;
  kept.reserve(text.size());
  std::copy_if(text.begin(), text.end(), std::back_inserter(kept),
               [](char c) { return !is_space(c); });
  return kept;
}

constexpr std::string_view trimmed(std::string_view text) {
  while (!text.empty() && is_space(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_space(text.back())) text.remove_suffix(1);
  return text;
}

/// Calls `visit` with each piece between the commas that holds a character.
template <typename Visit>
void for_each_piece(std::string_view text, Visit visit) {
  while (!text.empty()) {
    const std::size_t comma = text.find(',');
    if (comma != 0) visit(text.substr(0, comma));
    if (comma == std::string_view::npos) return;
    text.remove_prefix(comma + 1);
  }
}

}  // namespace velmora
