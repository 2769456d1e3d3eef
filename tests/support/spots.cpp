#include "spots.h"

#include "bet_size.h"
#include "range.h"

namespace velmora_test {

velmora::GameSettings make_settings(const Spot& spot) {
  velmora::GameSettings settings;
  settings.street = velmora::street_of(velmora::parse_board(spot.board));
  settings.starting_pot = spot.pot;
  settings.effective_stack = spot.stack;
  settings.rake_fraction = spot.rake_fraction;
  settings.rake_cap = spot.rake_cap;
  for (std::size_t street = 0; street < 3; ++street) {
    velmora::StreetSizingText text;
    text.bet_sizes = spot.sizes[street].bets;
    text.raise_sizes = spot.sizes[street].raises;
    settings.sizing[street] = velmora::parse_street_sizing_bare(text, text);
  }
  return settings;
}

velmora::CardContext make_cards(const Spot& spot, velmora::SuitFolding folding) {
  return {velmora::parse_board(spot.board),
          {velmora::parse_range_text(spot.oop_range), velmora::parse_range_text(spot.ip_range)},
          folding};
}

std::unique_ptr<velmora::Game> make_game(const Spot& spot, velmora::SuitFolding folding) {
  return std::make_unique<velmora::Game>(make_settings(spot), make_cards(spot, folding));
}

std::unique_ptr<velmora::DiscountedCfr> solve(velmora::Game& game, const SolveHow& how) {
  velmora::SolverOptions options;
  options.max_iterations = how.iterations;
  options.threads = how.threads;
  options.compressed_storage = how.compressed;
  auto solver = std::make_unique<velmora::DiscountedCfr>(std::move(options));
  solver->run(game);
  return solver;
}

}  // namespace velmora_test
