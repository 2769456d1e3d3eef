#include "spot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <tuple>
#include <vector>

#include "card_context.h"
#include "range.h"
#include "text.h"

namespace velmora_app {

namespace {

class Faults {
 public:
  void missing(std::string field) { list.push_back({std::move(field), {}, true}); }
  /// Keeps a sentence that is not empty.
  void add(std::string field, std::string sentence) {
    if (!sentence.empty()) list.push_back({std::move(field), std::move(sentence), false});
  }
  void require(bool holds, std::string field, std::string sentence) {
    if (!holds) add(std::move(field), std::move(sentence));
  }

  std::vector<SpotFault> list;
};

/// The sentence of the fault that a parser throws; "" if it throws none.
template <typename Parse>
std::string sentence_of(Parse parse) {
  try {
    parse();
    return {};
  } catch (const std::logic_error& fault) {
    return fault.what();
  }
}

void check_board(const std::string& text, Faults& faults) {
  const std::string board = velmora::without_space(text);
  std::size_t cards = 0;
  std::string bad_card;
  for (std::size_t i = 0; i < board.size(); i += 2) {
    const std::string card = board.substr(i, 2);
    const std::string fault = sentence_of([&] { velmora::parse_card(card); });
    if (fault.empty()) {
      ++cards;
    } else if (bad_card.empty()) {
      bad_card = "'" + card + "': " + fault;
    }
  }
  if (board.find("__") != std::string::npos || cards < 3 || cards > 5) {
    faults.missing("board");
  } else if (!bad_card.empty()) {
    faults.add("board", bad_card);
  } else {
    faults.add("board", sentence_of([&] { velmora::validate_board(velmora::parse_board(board)); }));
  }
}

void check_range(const std::string& field, const std::string& text, Faults& faults) {
  if (std::string fault = velmora::range_fault(text); !fault.empty()) {
    faults.add(field, std::move(fault));
  } else if (!velmora::range_has_hand(text)) {
    faults.missing(field);
  }
}

void check_sizes(const std::string& field, const std::string& text, bool add_all_in, bool raises,
                 Faults& faults) {
  if (velmora::trimmed(text).empty()) {
    faults.missing(field);
  } else {
    faults.add(field, velmora::bet_sizes_fault(text, add_all_in, raises));
  }
}

void check_street(const std::string& stem, const StreetSizingText& texts, Faults& faults) {
  check_sizes(stem + "_bet_sizes", texts.bet_sizes, texts.add_all_in, false, faults);
  check_sizes(stem + "_raise_sizes", texts.raise_sizes, texts.add_all_in, true, faults);
}

void check_jam_threshold(const std::string& seat, const std::optional<double>& percent,
                         Faults& faults) {
  faults.require(!percent || (std::isfinite(*percent) && *percent >= 0),
                 seat + "_add_all_in_jam_threshold_pct",
                 "The limit of the jam must be 0% of the pot or more");
}

void check_numbers(const SolveConfig& config, Faults& faults) {
  faults.require(config.starting_pot >= 1, "starting_pot",
                 "The starting pot must be 1 chip or more");
  faults.require(config.effective_stack >= 1, "effective_stack",
                 "The effective stack must be 1 chip or more");
  faults.require(config.rake_percent >= 0 && config.rake_percent <= 100, "rake_percent",
                 "The rake must be from 0% to 100% of the pot");
  faults.require(std::isfinite(config.rake_cap) && config.rake_cap >= 0, "rake_cap",
                 "The rake cap must be 0 chips or more");
  faults.require(std::isfinite(config.target_exploitability), "target_exploitability",
                 "The target must be a number");
  check_jam_threshold("oop", config.oop_add_all_in_jam_threshold_pct, faults);
  check_jam_threshold("ip", config.ip_add_all_in_jam_threshold_pct, faults);
}

/// A range of which the board leaves nothing is at fault itself, though it reads well.
void check_hands_left(const SpotCards& cards, Faults& faults) {
  velmora::CardMask board =
      velmora::mask_of(cards.board.turn) | velmora::mask_of(cards.board.river);
  for (const velmora::CardCode card : cards.board.flop) board |= velmora::mask_of(card);
  constexpr std::array<const char*, 2> kFields{"oop_range", "ip_range"};
  for (const velmora::Seat seat : {velmora::kOop, velmora::kIp}) {
    bool left = false;
    for (std::size_t index = 0; index < velmora::kNumPockets && !left; ++index) {
      if (!(cards.weights[seat][index] > 0)) continue;
      const auto [low, high] = velmora::pocket_cards(index);
      left = ((velmora::mask_of(low) | velmora::mask_of(high)) & board) == 0;
    }
    faults.require(left, kFields[seat], "The cards of the board leave no hand of this range");
  }
}

}  // namespace

std::vector<SpotFault> check_spot(const SolveConfig& config) {
  Faults faults;
  check_board(config.board, faults);
  check_range("oop_range", config.oop_range, faults);
  check_range("ip_range", config.ip_range, faults);
  check_street("oop_flop", config.oop_flop, faults);
  check_street("oop_turn", config.oop_turn, faults);
  check_street("oop_river", config.oop_river, faults);
  check_street("ip_flop", config.ip_flop, faults);
  check_street("ip_turn", config.ip_turn, faults);
  check_street("ip_river", config.ip_river, faults);
  check_numbers(config, faults);
  if (!faults.list.empty()) return faults.list;

  SolveConfig packed = config;
  packed.board = velmora::without_space(config.board);
  const SpotCards cards = translate_cards(packed);
  check_hands_left(cards, faults);
  if (faults.list.empty()) faults.add(kWholeSpot, sentence_of([&] { check_ranges_meet(cards); }));
  return faults.list;
}

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

namespace {

auto tree_of(const SolveConfig& config) {
  return std::tie(config.board, config.oop_range, config.ip_range, config.starting_pot,
                  config.effective_stack, config.starting_street, config.oop_flop, config.oop_turn,
                  config.oop_river, config.ip_flop, config.ip_turn, config.ip_river,
                  config.oop_add_all_in_jam_threshold_pct, config.ip_add_all_in_jam_threshold_pct);
}

}  // namespace

bool same_tree(const SolveConfig& a, const SolveConfig& b) {
  return tree_of(a) == tree_of(b);
}

bool same_spot(const SolveConfig& a, const SolveConfig& b) {
  return same_tree(a, b) && a.rake_percent == b.rake_percent && a.rake_cap == b.rake_cap;
}

}  // namespace velmora_app
