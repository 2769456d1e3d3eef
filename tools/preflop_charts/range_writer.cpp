#include "range_writer.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <vector>

namespace preflop_charts {

namespace {

using velmora::kNumRanks;

std::string weight_suffix(double weight, int decimals) {
  if (weight == 1) return "";
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), ":%.*f", decimals, weight);
  std::string text = digits.data();
  text.erase(text.find_last_not_of('0') + 1);
  return text;
}

std::string joined(const std::vector<std::string>& tokens) {
  std::string text;
  for (const std::string& token : tokens) text += (text.empty() ? "" : ", ") + token;
  return text;
}

// Diagonals such as "T9s-65s" are written for connected hands from the jack down.
constexpr int kHighestInDiagonal = 9;
constexpr int kWidestGap = 2;

/// Takes the tokens of one kind of hands out of a range.
class ShortWriter {
 public:
  explicit ShortWriter(const ClassValues& range) : left_(range) {}

  std::string text() {
    take_pairs();
    for (const bool suited : {true, false}) {
      for (int high = kNumRanks - 1; high > 0; --high) take_row(high, suited);
    }
    return joined(tokens_);
  }

 private:
  /// The classes from one to another, in the order of the text.
  void take(const std::vector<std::size_t>& run, const std::string& expression) {
    tokens_.push_back(expression + weight_suffix(left_[run.front()], 2));
    for (const std::size_t hand : run) left_[hand] = 0;
  }

  void take_pairs() {
    for (int rank = kNumRanks - 1; rank >= 0; --rank) {
      std::vector<std::size_t> run{class_of(rank, rank, false)};
      if (left_[run.front()] == 0) continue;
      for (int next = rank - 1; next >= 0; --next) {
        const std::size_t hand = class_of(next, next, false);
        if (left_[hand] != left_[run.front()]) break;
        run.push_back(hand);
      }
      const std::string lowest = label_of(run.back());
      take(run, run.size() == 1         ? lowest
                : rank == kNumRanks - 1 ? lowest + "+"
                                        : lowest + "-" + label_of(run.front()));
    }
  }

  /// Hands with one high rank. A hand without neighbours in its row may have some in its diagonal.
  void take_row(int high, bool suited) {
    for (int low = high - 1; low >= 0; --low) {
      std::vector<std::size_t> run{class_of(high, low, suited)};
      if (left_[run.front()] == 0) continue;
      for (int next = low - 1; next >= 0; --next) {
        const std::size_t hand = class_of(high, next, suited);
        if (left_[hand] != left_[run.front()]) break;
        run.push_back(hand);
      }
      if (run.size() > 1) {
        const std::string lowest = label_of(run.back());
        take(run, low == high - 1 ? lowest + "+" : lowest + "-" + label_of(run.front()));
        continue;
      }
      const bool connected = high <= kHighestInDiagonal && high - low <= kWidestGap;
      for (int step = 1; connected && low - step >= 0; ++step) {
        const std::size_t hand = class_of(high - step, low - step, suited);
        if (left_[hand] != left_[run.front()]) break;
        run.push_back(hand);
      }
      const std::string highest = label_of(run.front());
      take(run, run.size() == 1 ? highest : highest + "-" + label_of(run.back()));
    }
  }

  ClassValues left_;
  std::vector<std::string> tokens_;
};

}  // namespace

std::string explicit_text(const ClassValues& range) {
  std::vector<std::string> tokens;
  for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
    if (range[hand] > 0) tokens.push_back(label_of(hand) + weight_suffix(range[hand], 4));
  }
  return joined(tokens);
}

std::string short_text(const ClassValues& range) {
  if (range == filled(1)) return "100%";
  std::string text = ShortWriter(range).text();
  const velmora::PocketWeights read = velmora::parse_range_text(text);
  for (std::size_t pocket = 0; pocket < velmora::kNumPockets; ++pocket) {
    if (std::abs(read[pocket] - range[class_by_pocket()[pocket]]) > 1e-6) {
      throw std::logic_error("A range is not what its text says: " + text);
    }
  }
  return text;
}

}  // namespace preflop_charts
