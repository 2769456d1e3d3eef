// Spots for tests, written as a user would write them.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "discounted_cfr.h"
#include "game.h"

namespace velmora_test {

struct SizeTexts {
  std::string bets;
  std::string raises;
};

struct Spot {
  std::string board;
  std::string oop_range;
  std::string ip_range;
  std::int32_t pot = 100;
  std::int32_t stack = 100;
  std::array<SizeTexts, 3> sizes;  ///< By street, for both seats.
  double rake_fraction = 0;
  double rake_cap = 0;
};

/// Settings of a spot; the street is that of the board.
velmora::GameSettings make_settings(const Spot& spot);
velmora::CardContext make_cards(const Spot& spot,
                                velmora::SuitFolding folding = velmora::SuitFolding::kOn);
std::unique_ptr<velmora::Game> make_game(const Spot& spot,
                                         velmora::SuitFolding folding = velmora::SuitFolding::kOn);

struct SolveHow {
  std::uint32_t iterations = 200;
  std::uint64_t threads = 1;
  bool compressed = false;
};
/// Solves for exactly that many iterations, measuring at the last one.
std::unique_ptr<velmora::DiscountedCfr> solve(velmora::Game& game, const SolveHow& how = {});

}  // namespace velmora_test
