#include "range_edit.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <vector>

#include "text.h"

namespace velmora {

namespace {

/// From this weight on a hand is written without one.
constexpr double kFullWeight = 0.999;

struct HandClasses {
  std::array<std::string, kNumHandClasses> labels;
  std::array<int, kNumHandClasses> sizes{};
  std::array<std::uint8_t, kNumPockets> of_pocket{};  ///< Class of each pocket index.
};

const HandClasses& hand_classes() {
  static const HandClasses classes = [] {
    HandClasses made;
    std::map<std::string, std::uint8_t> places;
    for (std::size_t index = 0; index < kNumPockets; ++index) {
      const auto [low, high] = pocket_cards(index);
      const std::string label = hand_class_label(make_pocket(low, high));
      const auto place = places.try_emplace(label, static_cast<std::uint8_t>(places.size())).first;
      made.of_pocket[index] = place->second;
      made.labels[place->second] = label;
      ++made.sizes[place->second];
    }
    return made;
  }();
  return classes;
}

/// Reads as much as can be read; false if something can't.
bool read_range(std::string_view text, PocketWeights& weights) {
  try {
    weights = parse_range_text(text);
    return true;
  } catch (const std::logic_error&) {
    return false;
  }
}

bool can_be_read(std::string_view text) {
  PocketWeights weights;
  return read_range(text, weights);
}

/// The tokens of a text as the parser takes them: the pieces between commas, without white space. A
/// piece that means something only as several tokens is several.
std::vector<std::string> tokens_of(std::string_view text) {
  std::vector<std::string> tokens;
  for_each_piece(text, [&](std::string_view piece) {
    const std::string packed = without_space(piece);
    if (packed.empty()) return;
    std::vector<std::string> words;
    for (const char c : piece) {
      if (words.empty() || (is_space(c) && !words.back().empty())) words.emplace_back();
      if (!is_space(c)) words.back() += c;
    }
    if (!words.empty() && words.back().empty()) words.pop_back();
    if (!can_be_read(packed) && std::all_of(words.begin(), words.end(), can_be_read)) {
      tokens.insert(tokens.end(), words.begin(), words.end());
    } else {
      tokens.push_back(packed);
    }
  });
  return tokens;
}

std::string joined(const std::vector<std::string>& tokens) {
  std::string text;
  for (const std::string& token : tokens) text += (text.empty() ? "" : ", ") + token;
  return text;
}

/// At most three decimals, with a point in every locale.
std::string weight_text(double weight) {
  const int thousandths = static_cast<int>(std::lround(weight * 1000));
  if (thousandths >= 1000) return "1";
  if (thousandths == 0) return "0";
  std::string text = "0." + std::to_string(1000 + thousandths).substr(1);
  text.erase(text.find_last_not_of('0') + 1);
  return text;
}

}  // namespace

std::array<HandClassWeight, kNumHandClasses> hand_class_weights(std::string_view text) {
  PocketWeights weights{};
  if (!read_range(text, weights)) {
    std::vector<std::string> readable;
    for (const std::string& token : tokens_of(text)) {
      if (can_be_read(token) && !is_percent_range(token)) readable.push_back(token);
    }
    weights = parse_range(joined(readable));
  }
  const HandClasses& classes = hand_classes();
  std::array<double, kNumHandClasses> sums{};
  for (std::size_t index = 0; index < kNumPockets; ++index) {
    sums[classes.of_pocket[index]] += static_cast<double>(weights[index]);
  }
  std::array<HandClassWeight, kNumHandClasses> by_class;
  for (std::size_t i = 0; i < kNumHandClasses; ++i) {
    by_class[i] = {classes.labels[i], static_cast<float>(sums[i] / classes.sizes[i])};
  }
  return by_class;
}

double range_combos(std::string_view text) {
  const PocketWeights weights = parse_range_text(text);
  double combos = 0;
  for (const float weight : weights) combos += static_cast<double>(weight);
  return combos;
}

bool range_has_hand(std::string_view text) {
  PocketWeights weights;
  return read_range(text, weights) &&
         std::any_of(weights.begin(), weights.end(), [](float weight) { return weight > 0; });
}

std::string with_hand(std::string_view text, std::string_view label, double weight) {
  std::string token(label);
  if (weight < kFullWeight) token += ":" + weight_text(std::max(weight, 0.0));
  if (is_percent_range(text)) return token;
  std::vector<std::string> tokens = tokens_of(text);
  tokens.push_back(token);
  return joined(tokens);
}

std::string without_hand(std::string_view text, std::string_view label) {
  if (is_percent_range(text)) return {};
  const std::vector<std::size_t> pockets = expand_pattern(parse_combo_pattern(label));
  std::vector<std::string> tokens = tokens_of(text);
  std::erase_if(tokens, [&](const std::string& token) {
    // Without its weight: a token of weight 0 covers its pockets too.
    PocketWeights weights;
    return read_range(std::string_view(token).substr(0, token.find(':')), weights) &&
           std::any_of(pockets.begin(), pockets.end(),
                       [&](std::size_t pocket) { return weights[pocket] > 0; });
  });
  return joined(tokens);
}

std::string imported_range_text(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ',');
  return joined(tokens_of(line));
}

}  // namespace velmora
