#include "playability.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <thread>
#include <vector>

namespace preflop_charts {

namespace {

using velmora::CardCode;
using velmora::CardMask;
using velmora::HandStrength;
using velmora::kNumCards;
using velmora::kNumPockets;

using PocketValues = std::array<double, kNumPockets>;

constexpr int kRunoutsPerFlop = 64;

/// Equity of each live pocket against the reference pockets on one board of five cards.
class ShowdownEquity {
 public:
  explicit ShowdownEquity(const ClassValues& reference) {
    for (std::size_t i = 0; i < kNumPockets; ++i) {
      weights_[i] = reference[class_by_pocket()[i]];
      const auto [low, high] = velmora::pocket_cards(i);
      cards_[i] = {low, high};
    }
  }

  /// Calls `visit(pocket, equity)` for each pocket that the board leaves.
  template <typename Visit>
  void for_each(CardMask board, Visit visit) {
    evaluate_all_pockets(board, strengths_);
    order_.clear();
    Weight live;
    for (std::uint16_t i = 0; i < kNumPockets; ++i) {
      if (strengths_[i] == 0) continue;
      order_.push_back(i);
      live.add(weights_[i], cards_[i]);
    }
    std::ranges::sort(order_, {}, [&](std::uint16_t i) { return strengths_[i]; });
    Weight weaker;
    for (std::size_t begin = 0; begin < order_.size();) {
      std::size_t end = begin;
      Weight at_most = weaker;
      while (end < order_.size() && strengths_[order_[end]] == strengths_[order_[begin]]) {
        at_most.add(weights_[order_[end]], cards_[order_[end]]);
        ++end;
      }
      for (std::size_t i = begin; i < end; ++i) {
        const std::uint16_t pocket = order_[i];
        const auto& cards = cards_[pocket];
        const double own = weights_[pocket];
        // The pocket itself is taken out twice, once for each of its cards.
        const double below = weaker.without(cards);
        const double below_or_equal = at_most.without(cards) + own;
        const double all = live.without(cards) + own;
        if (all > 0) visit(pocket, 0.5 * (below + below_or_equal) / all);
      }
      weaker = at_most;
      begin = end;
    }
  }

 private:
  struct Cards {
    CardCode low;
    CardCode high;
  };
  /// Sum of weights, as a whole and by card.
  struct Weight {
    double sum = 0;
    std::array<double, kNumCards> by_card{};
    void add(double weight, Cards cards) {
      sum += weight;
      by_card[cards.low] += weight;
      by_card[cards.high] += weight;
    }
    double without(Cards cards) const { return sum - by_card[cards.low] - by_card[cards.high]; }
  };

  PocketValues weights_{};
  std::array<Cards, kNumPockets> cards_{};
  std::array<HandStrength, kNumPockets> strengths_{};
  std::vector<std::uint16_t> order_;
};

/// Sums over the pockets of each class on one flop.
struct FlopSums {
  ClassValues kept{};
  ClassValues equity{};
};

FlopSums on_flop(CardMask flop, std::uint32_t seed, const PlayabilitySetting& setting,
                 ShowdownEquity& showdown) {
  std::mt19937 generator(seed);
  PocketValues equity{};
  PocketValues value{};
  std::array<int, kNumPockets> runouts{};
  for (int runout = 0; runout < kRunoutsPerFlop; ++runout) {
    CardMask board = flop;
    for (int dealt = 0; dealt < 2;) {
      // Not a standard distribution: those differ between libraries.
      const CardMask card = velmora::mask_of(static_cast<CardCode>(generator() % kNumCards));
      if (board & card) continue;
      board |= card;
      ++dealt;
    }
    showdown.for_each(board, [&](std::size_t pocket, double q) {
      equity[pocket] += q;
      value[pocket] += std::pow(q, setting.nut_power);
      ++runouts[pocket];
    });
  }
  FlopSums sums;
  for (std::size_t i = 0; i < kNumPockets; ++i) {
    if (runouts[i] == 0) continue;
    const double e = equity[i] / runouts[i];
    sums.equity[class_by_pocket()[i]] += e;
    const double seen_through = std::clamp(3 * (e - setting.give_up), 0.1, 1.0);
    sums.kept[class_by_pocket()[i]] += seen_through * value[i] / runouts[i];
  }
  return sums;
}

}  // namespace

ClassValues playability(const PlayabilitySetting& setting, unsigned threads) {
  const std::vector<BoardClass> flops = board_classes(3);
  std::vector<FlopSums> sums(flops.size());
  {
    std::vector<std::jthread> workers;
    for (unsigned t = 0; t < threads; ++t) {
      workers.emplace_back([&, t] {
        ShowdownEquity showdown(setting.reference);
        for (std::size_t f = t; f < flops.size(); f += threads) {
          sums[f] = on_flop(flops[f].cards, static_cast<std::uint32_t>(f), setting, showdown);
        }
      });
    }
  }
  ClassValues kept{};
  ClassValues equity{};
  for (std::size_t f = 0; f < flops.size(); ++f) {
    for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
      kept[hand] += flops[f].count * sums[f].kept[hand];
      equity[hand] += flops[f].count * sums[f].equity[hand];
    }
  }
  ClassValues result{};
  double mean = 0;
  for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
    result[hand] = kept[hand] / equity[hand];
    mean += combos_of(hand) * setting.reference[hand] * result[hand];
  }
  mean /= combos_in(setting.reference);
  for (double& value : result) value /= mean;
  return result;
}

}  // namespace preflop_charts
