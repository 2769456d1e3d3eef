// How often a weighted set of hands wins against another one, and who wins a showdown.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <string_view>
#include <vector>

#include "game.h"

namespace velmora_app {

/// Shares of the pot on a complete board by pairs of hands: counted once, then weighted with any
/// reach.
class RiverEquity {
 public:
  /// The other seat holds its range. Turn and river of `node` must be dealt.
  RiverEquity(const velmora::Game& game, const velmora::PlanNode& node, velmora::Seat seat);

  /// Equity (0..1) of the seat's hands with this reach; not a number if no pair can meet.
  double of(std::span<const double> reach) const;

 private:
  std::vector<double> shares_;  ///< By hand: opposing weight won, a tie counting half.
  std::vector<double> totals_;  ///< By hand: opposing weight met.
};

/// One side of sampled hands.
struct SampledHands {
  std::span<const velmora::Pocket> pockets;
  std::span<const double> weights;
};

/// Equity (0..1) of `hero` against `opponent` over `samples` random deals that complete the flop,
/// the turn and the river (`kNoCard` where undealt). The figures follow from the state of the
/// generator alone, on every platform. Not a number if nothing can be sampled.
double sampled_equity(std::mt19937& generator, const velmora::Board& board,
                      const SampledHands& hero, const SampledHands& opponent, std::size_t samples);

struct Showdown {
  std::string_view winner = "UNKNOWN";  ///< "OOP", "IP", "TIE" or "UNKNOWN".
  std::uint32_t oop_strength = 0;       ///< As the evaluator ranks them; 0 if unknown.
  std::uint32_t ip_strength = 0;
};

/// Texts of two characters a card, of which the first 5 and 2 cards are read; white space is
/// ignored. Unknown for texts that are too short or hold something else than cards.
Showdown showdown_winner(std::string_view board, std::string_view oop, std::string_view ip);

}  // namespace velmora_app
