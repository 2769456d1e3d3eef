#include "class_equity.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <mutex>
#include <thread>
#include <vector>

namespace preflop_charts {

namespace {

using velmora::CardCode;
using velmora::CardMask;
using velmora::HandStrength;
using velmora::kNumCards;
using velmora::kNumPockets;

/// Boards that are left for two hands: five out of 48 cards.
constexpr double kBoardsPerMatchup = 1712304;

/// Twice the pots won, a tie counted once, by two classes. Whole numbers, so that their sum does
/// not depend on the order of the boards.
using Score = std::vector<std::int64_t>;

class ScoreCounter {
 public:
  /// Adds what every pair of pockets wins on a board.
  void add(const BoardClass& board) {
    evaluate_all_pockets(board.cards, strengths_);
    order_.clear();
    for (std::uint16_t i = 0; i < kNumPockets; ++i) {
      if (strengths_[i] != 0) order_.push_back(i);
    }
    std::ranges::sort(order_, {}, [&](std::uint16_t i) { return strengths_[i]; });

    // Pockets of each class that are weaker than the current group of equals, then those that are
    // at most as strong.
    std::array<std::int32_t, kNumClasses> weaker{};
    for (std::size_t begin = 0; begin < order_.size();) {
      std::size_t end = begin;
      auto at_most = weaker;
      while (end < order_.size() && strengths_[order_[end]] == strengths_[order_[begin]]) {
        at_most[classes_[order_[end++]]] += 1;
      }
      for (std::size_t i = begin; i < end; ++i) {
        std::int64_t* row = score_.data() + classes_[order_[i]] * kNumClasses;
        for (std::size_t c = 0; c < kNumClasses; ++c)
          row[c] += board.count * (weaker[c] + at_most[c]);
        take_out_shared_cards(order_[i], board.count, row);
      }
      weaker = at_most;
      begin = end;
    }
  }

  const Score& score() const { return score_; }

 private:
  /// Pockets with a card of `pocket` can't be held against it.
  void take_out_shared_cards(std::size_t pocket, int count, std::int64_t* row) const {
    const HandStrength own = strengths_[pocket];
    const auto [low, high] = velmora::pocket_cards(pocket);
    for (const CardCode card : {low, high}) {
      for (CardCode other = 0; other < kNumCards; ++other) {
        if (other == low || other == high) continue;
        const std::size_t i = velmora::pocket_index(card, other);
        if (strengths_[i] == 0) continue;
        row[classes_[i]] -= count * ((strengths_[i] < own) + (strengths_[i] <= own));
      }
    }
    row[classes_[pocket]] -= count;
  }

  Score score_ = Score(kNumClasses * kNumClasses);
  std::array<HandStrength, kNumPockets> strengths_{};
  std::vector<std::uint16_t> order_;
  const std::array<std::size_t, kNumPockets>& classes_ = class_by_pocket();
};

}  // namespace

void evaluate_all_pockets(CardMask board, std::span<HandStrength, kNumPockets> strengths) {
  std::array<CardCode, 7> cards{};
  std::size_t size = 0;
  for (CardMask rest = board; rest != 0; rest &= rest - 1) {
    cards.at(size++) = static_cast<CardCode>(std::countr_zero(rest));
  }
  std::size_t pocket = 0;
  for (CardCode a = 0; a < kNumCards; ++a) {
    for (CardCode b = a + 1; b < kNumCards; ++b, ++pocket) {
      if (board & (velmora::mask_of(a) | velmora::mask_of(b))) {
        strengths[pocket] = 0;
        continue;
      }
      cards[5] = a;
      cards[6] = b;
      // The lowest high card has mask bits, so no strength is 0.
      strengths[pocket] = velmora::evaluate_seven(cards);
    }
  }
}

ClassTable class_equities(unsigned threads) {
  const std::vector<BoardClass> boards = board_classes(5);
  Score total(kNumClasses * kNumClasses);
  std::mutex total_mutex;
  {
    std::vector<std::jthread> workers;
    for (unsigned t = 0; t < threads; ++t) {
      workers.emplace_back([&, t] {
        ScoreCounter counter;
        for (std::size_t b = t; b < boards.size(); b += threads) counter.add(boards[b]);
        const std::scoped_lock lock(total_mutex);
        for (std::size_t i = 0; i < total.size(); ++i) total[i] += counter.score()[i];
      });
    }
  }
  ClassTable equities;
  for (std::size_t a = 0; a < kNumClasses; ++a) {
    for (std::size_t b = 0; b < kNumClasses; ++b) {
      const double pairs = matchups()[a][b];
      equities[a][b] =
          static_cast<double>(total[a * kNumClasses + b]) / (2 * pairs * kBoardsPerMatchup);
    }
  }
  return equities;
}

}  // namespace preflop_charts
