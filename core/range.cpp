#include "range.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <stdexcept>
#include <vector>

#include "text.h"

namespace velmora {

namespace {

void check_weight(float weight) {
  if (!(weight >= 0 && weight <= 1)) throw std::invalid_argument("Weight must be within [0, 1]");
}

float parse_weight(std::string_view text) {
  if (text.empty()) throw std::invalid_argument("Weight string is empty");
  const auto weight = convert_float(text);
  if (!weight.found) throw NumberFault("invalid stof argument");
  if (weight.out_of_range) throw std::out_of_range("stof argument out of range");
  if (!weight.complete) throw NumberFault("Weight string contains invalid characters");
  check_weight(weight.value);
  return weight.value;
}

std::size_t checked_index(CardCode a, CardCode b) {
  check_card_code(a);
  check_card_code(b);
  if (a == b) throw std::invalid_argument("Cards must differ");
  return pocket_index(a, b);
}

void check_rank_order(std::uint8_t first, std::uint8_t second) {
  if (first < second) throw std::invalid_argument("First rank must be >= second rank");
}

/// Calls `step` with the two ranks of each step of a plus expression.
template <typename Step>
void walk_plus(const ComboPattern& pattern, Step step) {
  int high = pattern.high_rank;
  int low = pattern.low_rank;
  if (high - low > 1) {
    for (; low < high; ++low) step(high, low);
  } else {
    for (; high < kNumRanks; ++high, ++low) step(high, low);
  }
}

/// Calls `step` with the two ranks of each step from one pattern to another.
template <typename Step>
void walk_dash(const ComboPattern& first, const ComboPattern& second, Step step) {
  const auto [min_high, max_high] = std::minmax({int{first.high_rank}, int{second.high_rank}});
  const auto [min_low, max_low] = std::minmax({int{first.low_rank}, int{second.low_rank}});
  const int gap = first.high_rank - first.low_rank;
  if (gap == second.high_rank - second.low_rank) {
    for (int high = min_high; high <= max_high; ++high) step(high, high - gap);
    return;
  }
  if (min_high == max_high) {
    for (int low = min_low; low <= max_low; ++low) step(max_high, low);
    return;
  }
  const bool has_suffix =
      first.suitedness == Suitedness::kSuited || first.suitedness == Suitedness::kOffsuit;
  if (gap == 0 || second.high_rank == second.low_rank || !has_suffix) {
    throw std::invalid_argument("Unsupported range expression");
  }
  for (int high = min_high; high <= max_high; ++high) {
    for (int low = min_low; low <= max_low && low < high; ++low) step(high, low);
  }
}

void apply_token(PocketWeights& weights, std::string_view token) {
  const std::size_t colon = token.find(':');
  const float weight =
      colon == std::string_view::npos ? 1.0F : parse_weight(token.substr(colon + 1));
  const std::string_view expression = token.substr(0, colon);
  if (expression.empty()) throw std::invalid_argument("Missing range expression");

  // The suits of the first pattern go with every step.
  ComboPattern pattern;
  const auto write = [&](int high, int low) {
    ComboPattern at = pattern;
    at.high_rank = static_cast<std::uint8_t>(high);
    at.low_rank = static_cast<std::uint8_t>(low);
    for (const std::size_t index : expand_pattern(at)) weights[index] = weight;
  };
  if (const std::size_t dash = expression.find('-'); dash != std::string_view::npos) {
    pattern = parse_combo_pattern(expression.substr(0, dash));
    const ComboPattern second = parse_combo_pattern(expression.substr(dash + 1));
    if (pattern.suitedness != second.suitedness) {
      throw std::invalid_argument("Suitedness mismatch in range");
    }
    walk_dash(pattern, second, write);
  } else if (expression.back() == '+') {
    if (expression.size() == 1) throw std::invalid_argument("Expected trailing '+'");
    pattern = parse_combo_pattern(expression.substr(0, expression.size() - 1));
    walk_plus(pattern, write);
  } else {
    pattern = parse_combo_pattern(expression);
    write(pattern.high_rank, pattern.low_rank);
  }
}

}  // namespace

std::pair<CardCode, CardCode> pocket_cards(std::size_t index) {
  if (index >= kNumPockets) throw std::out_of_range("Pocket index is out of range");
  std::size_t low = 0;
  for (std::size_t count = kNumCards - 1; index >= count; --count) {
    index -= count;
    ++low;
  }
  return {static_cast<CardCode>(low), static_cast<CardCode>(low + 1 + index)};
}

float get_weight(const PocketWeights& weights, CardCode a, CardCode b) {
  return weights[checked_index(a, b)];
}

void set_weight(PocketWeights& weights, CardCode a, CardCode b, float weight) {
  const std::size_t index = checked_index(a, b);
  check_weight(weight);
  weights[index] = weight;
}

ComboPattern parse_combo_pattern(std::string_view text) {
  if (text.empty()) throw std::invalid_argument("Empty combo");
  if (text.size() == 4 && is_letter(text[1]) && is_letter(text[3])) {
    const CardCode first = parse_card(text.substr(0, 2));
    const CardCode second = parse_card(text.substr(2, 2));
    check_rank_order(rank_of(first), rank_of(second));
    if (first == second) throw std::invalid_argument("Duplicate cards are not allowed");
    return {rank_of(first), rank_of(second), Suitedness::kExact, suit_of(first), suit_of(second)};
  }
  if (text.size() != 2 && text.size() != 3) {
    throw std::invalid_argument("Invalid combo pattern length");
  }
  ComboPattern pattern;
  pattern.high_rank = rank_from_char(text[0]);
  pattern.low_rank = rank_from_char(text[1]);
  if (text.size() == 3) {
    const char suffix = to_lower(text[2]);
    if (suffix != 's' && suffix != 'o') throw std::invalid_argument("Invalid suitedness suffix");
    pattern.suitedness = suffix == 's' ? Suitedness::kSuited : Suitedness::kOffsuit;
  }
  check_rank_order(pattern.high_rank, pattern.low_rank);
  if (pattern.high_rank == pattern.low_rank && pattern.suitedness != Suitedness::kAny) {
    throw std::invalid_argument("Pair cannot have suitedness suffix");
  }
  return pattern;
}

std::vector<std::size_t> expand_pattern(const ComboPattern& pattern) {
  if (pattern.suitedness == Suitedness::kExact) {
    return {checked_index(make_card(pattern.high_rank, pattern.suit1),
                          make_card(pattern.low_rank, pattern.suit2))};
  }
  const bool pair = pattern.high_rank == pattern.low_rank;
  std::vector<std::size_t> indices;
  for (int high_suit = 0; high_suit < kNumSuits; ++high_suit) {
    for (int low_suit = pair ? high_suit + 1 : 0; low_suit < kNumSuits; ++low_suit) {
      const bool suited = high_suit == low_suit;
      if (pattern.suitedness == Suitedness::kSuited && !suited) continue;
      if (pattern.suitedness == Suitedness::kOffsuit && suited) continue;
      indices.push_back(checked_index(make_card(pattern.high_rank, high_suit),
                                      make_card(pattern.low_rank, low_suit)));
    }
  }
  return indices;
}

PocketWeights parse_range(std::string_view text) {
  PocketWeights weights{};
  const std::string tokens = without_space(text);
  for_each_piece(tokens, [&](std::string_view token) { apply_token(weights, token); });
  return weights;
}

bool is_percent_range(std::string_view text) {
  const std::string_view percent = trimmed(text);
  return percent.size() >= 2 && percent.find('%') == percent.size() - 1 &&
         percent.find_first_not_of("0123456789.%") == std::string_view::npos;
}

PocketWeights parse_range_text(std::string_view text) {
  if (!is_percent_range(text)) return parse_range(text);
  const std::string_view percent = trimmed(text);
  const auto number = convert_double(percent.substr(0, percent.size() - 1));
  if (!number.found || number.out_of_range) {
    throw std::invalid_argument("Invalid percent range '" + std::string(percent) +
                                "' (expected like '50%')");
  }
  const auto weight = static_cast<float>(number.value / 100);
  check_weight(weight);
  PocketWeights weights;
  weights.fill(weight);
  return weights;
}

std::string range_fault(std::string_view text) {
  if (is_percent_range(text)) {
    try {
      parse_range_text(text);
      return {};
    } catch (const std::logic_error& why) {
      return "'" + std::string(trimmed(text)) + "': " + why.what();
    }
  }
  const std::string tokens = without_space(text);
  std::string fault;
  PocketWeights weights{};
  for_each_piece(tokens, [&](std::string_view token) {
    if (!fault.empty()) return;
    const std::string quoted = "'" + std::string(token) + "': ";
    try {
      apply_token(weights, token);
    } catch (const NumberFault&) {
      fault = quoted + "Weight must be a number from 0 to 1";
    } catch (const std::out_of_range&) {
      fault = quoted + "Weight must be a number from 0 to 1";
    } catch (const std::invalid_argument& why) {
      fault = quoted + why.what();
    }
  });
  return fault;
}

bool is_suit_symmetric(const PocketWeights& weights, std::uint8_t suit1, std::uint8_t suit2) {
  const auto exchanged = [&](int code) {
    const auto card = static_cast<CardCode>(code);
    const int suit = suit_of(card);
    return make_card(rank_of(card), suit == suit1 ? suit2 : suit == suit2 ? suit1 : suit);
  };
  std::size_t index = 0;
  for (int a = 0; a < kNumCards; ++a) {
    for (int b = a + 1; b < kNumCards; ++b, ++index) {
      // A not-a-number weight equals nothing, itself included.
      if (!(weights[index] == weights[pocket_index(exchanged(a), exchanged(b))])) return false;
    }
  }
  return true;
}

std::string hand_class_label(Pocket pocket) {
  const std::uint8_t rank1 = rank_of(high_card(pocket));
  const std::uint8_t rank2 = rank_of(low_card(pocket));
  std::string label{rank_to_char(std::max(rank1, rank2)), rank_to_char(std::min(rank1, rank2))};
  if (rank1 != rank2) label += suit_of(high_card(pocket)) == suit_of(low_card(pocket)) ? 's' : 'o';
  return label;
}

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
