// The 169 classes of preflop hands and how many pairs of hands two classes can meet in.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "range.h"

namespace preflop_charts {

inline constexpr std::size_t kNumClasses = 169;
inline constexpr std::size_t kNumSuitedClasses = 78;

/// A figure for each class. Classes stand in the order in which ranges are written: the pairs, the
/// suited hands and the offsuit hands, each from the highest ranks down.
using ClassValues = std::array<double, kNumClasses>;

constexpr bool is_pair(std::size_t hand) {
  return hand < velmora::kNumRanks;
}
constexpr bool is_suited(std::size_t hand) {
  return !is_pair(hand) && hand < velmora::kNumRanks + kNumSuitedClasses;
}
/// Number of pockets of the class: 6 of a pair, 4 of a suited hand, 12 of an offsuit hand.
constexpr int combos_of(std::size_t hand) {
  return is_pair(hand) ? 6 : is_suited(hand) ? 4 : 12;
}

struct HandClass {
  int high_rank = 0;  ///< 0..12, 12 is the ace.
  int low_rank = 0;
};
HandClass ranks_of(std::size_t hand);
/// "AA", "AKs", "AKo".
std::string label_of(std::size_t hand);
/// The class of a suited, offsuit or paired hand of two ranks, the higher one first.
std::size_t class_of(int high_rank, int low_rank, bool suited);
/// The class of each pocket, by pocket index.
const std::array<std::size_t, velmora::kNumPockets>& class_by_pocket();

constexpr ClassValues filled(double value) {
  ClassValues values{};
  values.fill(value);
  return values;
}

/// The 1326 pockets weighted by what each class has in `values`.
double combos_in(const ClassValues& values);
inline double percent_of_hands(const ClassValues& values) {
  return 100.0 * combos_in(values) / static_cast<double>(velmora::kNumPockets);
}

/// The classes with the highest scores that together make the part `part`, 0..1, of all pockets;
/// the last of them with the frequency that is left for it.
ClassValues top_of(const ClassValues& scores, double part);

/// A square table by two classes.
class ClassTable {
 public:
  double* operator[](std::size_t row) { return cells_.data() + row * kNumClasses; }
  const double* operator[](std::size_t row) const { return cells_.data() + row * kNumClasses; }

 private:
  std::vector<double> cells_ = std::vector<double>(kNumClasses * kNumClasses);
};

/// For two classes, the number of pairs of pockets that share no card.
const ClassTable& matchups();

}  // namespace preflop_charts
