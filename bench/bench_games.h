// Games of the fixed spots.
#pragma once

#include <memory>

#include "bench_spots.h"
#include "game.h"
#include "spot.h"

inline std::unique_ptr<velmora::Game> make_bench_game(const velmora_app::SolveConfig& config) {
  const velmora_app::SpotCards cards = translate_cards(config);
  velmora::GameSettings settings = translate_settings(config);
  translate_sizing(config, settings);
  return std::make_unique<velmora::Game>(std::move(settings),
                                         velmora::CardContext(cards.board, cards.weights));
}
