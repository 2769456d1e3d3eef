#include "spot_translation.h"

#include <algorithm>

namespace velmora_app {

SpotCards translate_cards(const SolveConfig& config) {
  SpotCards cards;
  cards.board = velmora::parse_board(config.board);
  cards.weights[velmora::kOop] = velmora::parse_range_text(config.oop_range);
  cards.weights[velmora::kIp] = velmora::parse_range_text(config.ip_range);
  return cards;
}

velmora::GameSettings translate_settings(const SolveConfig& config) {
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
