#include "spot_translation.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace velmora_app {

SpotCards translate_cards(const SolveConfig& config) {
  SpotCards cards;
  cards.board = velmora::parse_board(config.board);
  cards.weights[velmora::kOop] = velmora::parse_range_text(config.oop_range);
  cards.weights[velmora::kIp] = velmora::parse_range_text(config.ip_range);
  return cards;
}

void check_ranges_meet(const SpotCards& cards) {
  struct Hand {
    velmora::CardMask cards;
    double weight;
  };
  velmora::validate_board(cards.board);
  velmora::CardMask board = 0;
  for (const velmora::CardCode card : cards.board.flop) board |= velmora::mask_of(card);
  board |= velmora::mask_of(cards.board.turn) | velmora::mask_of(cards.board.river);
  velmora::BySeat<std::vector<Hand>> hands;
  for (const velmora::Seat seat : {velmora::kOop, velmora::kIp}) {
    for (std::size_t index = 0; index < velmora::kNumPockets; ++index) {
      const float weight = cards.weights[seat][index];
      if (!(weight > 0)) continue;
      const auto [low, high] = velmora::pocket_cards(index);
      const velmora::CardMask mask = velmora::mask_of(low) | velmora::mask_of(high);
      if (!(mask & board)) hands[seat].push_back({mask, static_cast<double>(weight)});
    }
    if (hands[seat].empty()) {
      throw std::invalid_argument("Player range empty after filtering board cards");
    }
  }
  double total = 0;
  for (const Hand& oop : hands[velmora::kOop]) {
    for (const Hand& ip : hands[velmora::kIp]) {
      if (oop.cards & ip.cards) continue;
      total += oop.weight * ip.weight;
      if (total >= kLeastMatchupWeight) return;
    }
  }
  throw std::invalid_argument(total > 0 ? "The weights of the two ranges are too small to solve"
                                        : "Every hand of one range shares a card with every hand "
                                          "of the other, so the two can never meet");
}

velmora::GameSettings translate_settings(const SolveConfig& config) {
  if (!(config.rake_percent >= 0 && config.rake_percent <= 100)) {
    throw std::invalid_argument("The rake must be from 0% to 100% of the pot");
  }
  if (!std::isfinite(config.rake_cap) || config.rake_cap < 0) {
    throw std::invalid_argument("The rake cap must be 0 chips or more");
  }
  velmora::GameSettings settings;
  settings.street = velmora::street_from_string(config.starting_street);
  settings.starting_pot = config.starting_pot;
  settings.effective_stack = config.effective_stack;
  settings.rake_fraction = config.rake_percent / 100;
  settings.rake_cap = config.rake_cap;
  const auto threshold = [](const std::optional<double>& pct) {
    return pct ? std::max(*pct / 100, 0.0) : 0.0;
  };
  settings.jam_threshold = {threshold(config.oop_add_all_in_jam_threshold_pct),
                            threshold(config.ip_add_all_in_jam_threshold_pct)};
  return settings;
}

void translate_sizing(const SolveConfig& config, velmora::GameSettings& settings) {
  settings.sizing = {velmora::parse_street_sizing("flop", config.oop_flop, config.ip_flop),
                     velmora::parse_street_sizing("turn", config.oop_turn, config.ip_turn),
                     velmora::parse_street_sizing("river", config.oop_river, config.ip_river)};
}

void translate_sizing_bare(const SolveConfig& config, velmora::GameSettings& settings) {
  settings.sizing = {velmora::parse_street_sizing_bare(config.oop_flop, config.ip_flop),
                     velmora::parse_street_sizing_bare(config.oop_turn, config.ip_turn),
                     velmora::parse_street_sizing_bare(config.oop_river, config.ip_river)};
}

}  // namespace velmora_app
