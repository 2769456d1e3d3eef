#include "hand_classes.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace preflop_charts {

using velmora::kNumPockets;
using velmora::kNumRanks;

namespace {

/// The two cards of each pocket as a set.
std::array<velmora::CardMask, kNumPockets> pocket_masks() {
  std::array<velmora::CardMask, kNumPockets> masks{};
  for (std::size_t i = 0; i < kNumPockets; ++i) {
    const auto [low, high] = velmora::pocket_cards(i);
    masks[i] = velmora::mask_of(low) | velmora::mask_of(high);
  }
  return masks;
}

/// Place of two different ranks among the unpaired hands of one kind: AK, AQ, ..., 32.
std::size_t unpaired_place(int high_rank, int low_rank) {
  const int first = (kNumRanks - 1 - high_rank) * (kNumRanks + high_rank) / 2;
  return static_cast<std::size_t>(first + high_rank - 1 - low_rank);
}

}  // namespace

std::size_t class_of(int high_rank, int low_rank, bool suited) {
  if (high_rank == low_rank) return static_cast<std::size_t>(kNumRanks - 1 - high_rank);
  return kNumRanks + (suited ? 0 : kNumSuitedClasses) + unpaired_place(high_rank, low_rank);
}

HandClass ranks_of(std::size_t hand) {
  static const auto table = [] {
    std::array<HandClass, kNumClasses> ranks{};
    for (int high = 0; high < kNumRanks; ++high) {
      for (int low = 0; low <= high; ++low) {
        for (const bool suited : {false, true}) ranks[class_of(high, low, suited)] = {high, low};
      }
    }
    return ranks;
  }();
  return table[hand];
}

std::string label_of(std::size_t hand) {
  const HandClass ranks = ranks_of(hand);
  std::string label{velmora::rank_to_char(static_cast<std::uint8_t>(ranks.high_rank)),
                    velmora::rank_to_char(static_cast<std::uint8_t>(ranks.low_rank))};
  if (!is_pair(hand)) label += is_suited(hand) ? 's' : 'o';
  return label;
}

const std::array<std::size_t, kNumPockets>& class_by_pocket() {
  static const auto table = [] {
    std::array<std::size_t, kNumPockets> classes{};
    for (std::size_t i = 0; i < kNumPockets; ++i) {
      const auto [low, high] = velmora::pocket_cards(i);
      const int rank1 = velmora::rank_of(high);
      const int rank2 = velmora::rank_of(low);
      classes[i] = class_of(std::max(rank1, rank2), std::min(rank1, rank2),
                            velmora::suit_of(high) == velmora::suit_of(low));
    }
    return classes;
  }();
  return table;
}

double combos_in(const ClassValues& values) {
  double sum = 0;
  for (std::size_t hand = 0; hand < kNumClasses; ++hand) sum += combos_of(hand) * values[hand];
  return sum;
}

ClassValues top_of(const ClassValues& scores, double part) {
  std::array<std::size_t, kNumClasses> order{};
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, std::greater<>(), [&](std::size_t hand) { return scores[hand]; });
  ClassValues range{};
  double left = part * static_cast<double>(kNumPockets);
  for (const std::size_t hand : order) {
    range[hand] = std::clamp(left / combos_of(hand), 0.0, 1.0);
    left -= combos_of(hand);
  }
  return range;
}

const ClassTable& matchups() {
  static const auto table = [] {
    ClassTable counts;
    const auto masks = pocket_masks();
    const auto& classes = class_by_pocket();
    for (std::size_t a = 0; a < kNumPockets; ++a) {
      for (std::size_t b = 0; b < kNumPockets; ++b) {
        if ((masks[a] & masks[b]) == 0) counts[classes[a]][classes[b]] += 1;
      }
    }
    return counts;
  }();
  return table;
}

}  // namespace preflop_charts
