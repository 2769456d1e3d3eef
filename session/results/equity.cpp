#include "results/equity.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <exception>
#include <limits>
#include <numeric>
#include <string>

#include "hand_eval.h"
#include "text.h"

namespace velmora_app {

using velmora::CardCode;
using velmora::CardMask;
using velmora::HandStrength;
using velmora::Pocket;

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

/// Uniform in [0, 1) from two outputs of the generator.
double canonical(std::mt19937& generator) {
  const double low = static_cast<double>(generator());
  const double high = static_cast<double>(generator());
  const double u = (low + high * 0x1p32) * 0x1p-64;
  return std::min(u, std::nextafter(1.0, 0.0));
}

/// Uniform in 0..n-1, by multiplication with rejection.
std::uint32_t pick(std::mt19937& generator, std::uint32_t n) {
  const std::uint32_t rejected_below = (0U - n) % n;
  for (;;) {
    const std::uint64_t product = std::uint64_t{static_cast<std::uint32_t>(generator())} * n;
    if (static_cast<std::uint32_t>(product) >= rejected_below) {
      return static_cast<std::uint32_t>(product >> 32);
    }
  }
}

/// Draws pockets in proportion to their weights.
class PocketDraw {
 public:
  explicit PocketDraw(const SampledHands& hands) : pockets_(hands.pockets) {
    double sum = 0;
    for (const double weight : hands.weights) {
      if (std::isfinite(weight) && weight > 0) sum += weight;
      cumulative_.push_back(sum);
    }
  }

  bool possible() const {
    return !cumulative_.empty() && cumulative_.size() == pockets_.size() && cumulative_.back() > 0;
  }

  Pocket operator()(std::mt19937& generator) const {
    const double target = canonical(generator) * cumulative_.back();
    const auto place = std::lower_bound(cumulative_.begin(), cumulative_.end() - 1, target);
    return pockets_[static_cast<std::size_t>(place - cumulative_.begin())];
  }

 private:
  std::span<const Pocket> pockets_;
  std::vector<double> cumulative_;
};

/// One of the cards that are not used.
CardCode draw_card(std::mt19937& generator, CardMask used) {
  std::array<CardCode, velmora::kNumCards> deck{};
  std::uint32_t size = 0;
  for (CardCode card = 0; card < velmora::kNumCards; ++card) {
    if (!(used & velmora::mask_of(card))) deck[size++] = card;
  }
  return deck[pick(generator, size)];
}

/// Strengths by hand index; 0 for a hand that the board blocks.
std::vector<std::uint32_t> strengths_by_hand(const velmora::StrengthList& list, std::size_t hands) {
  std::vector<std::uint32_t> strengths(hands);
  for (const velmora::StrengthEntry& entry : list) {
    if (entry.hand < hands) strengths[entry.hand] = entry.strength;
  }
  return strengths;
}

}  // namespace

RiverEquity::RiverEquity(const velmora::Game& game, const velmora::PlanNode& node,
                         velmora::Seat seat)
    : shares_(game.num_hands(seat)), totals_(game.num_hands(seat)) {
  const velmora::Seat other = velmora::opponent_of(seat);
  const velmora::CardContext& cards = game.cards();
  const auto& lists = cards.strength_table(node.turn, node.river);
  const auto own = strengths_by_hand(lists[seat], shares_.size());
  const auto opposing = strengths_by_hand(lists[other], game.num_hands(other));
  for (std::size_t h = 0; h < own.size(); ++h) {
    if (own[h] == 0) continue;
    const CardMask blocked = velmora::mask_of_pocket(cards.pockets(seat)[h]);
    for (std::size_t o = 0; o < opposing.size(); ++o) {
      const double weight = static_cast<double>(cards.hand_weights(other)[o]);
      if (opposing[o] == 0 || !(weight > 0)) continue;
      if (blocked & velmora::mask_of_pocket(cards.pockets(other)[o])) continue;
      totals_[h] += weight;
      if (own[h] >= opposing[o]) shares_[h] += own[h] > opposing[o] ? weight : 0.5 * weight;
    }
  }
}

double RiverEquity::of(std::span<const double> reach) const {
  const double total = std::inner_product(reach.begin(), reach.end(), totals_.begin(), 0.0);
  const double share = std::inner_product(reach.begin(), reach.end(), shares_.begin(), 0.0);
  return total > 0 ? share / total : kUnknown;
}

double sampled_equity(std::mt19937& generator, const velmora::Board& board,
                      const SampledHands& hero, const SampledHands& opponent, std::size_t samples) {
  constexpr int kMaxTries = 32;
  const PocketDraw draw_hero(hero);
  const PocketDraw draw_opponent(opponent);
  if (!draw_hero.possible() || !draw_opponent.possible()) return kUnknown;
  CardMask known = velmora::mask_of(board.turn) | velmora::mask_of(board.river);
  for (const CardCode card : board.flop) known |= velmora::mask_of(card);

  std::size_t total = 0;
  double score = 0;
  for (std::size_t sample = 0; sample < samples; ++sample) {
    // Step 1. Two hands that can meet.
    const Pocket own = draw_hero(generator);
    if (velmora::mask_of_pocket(own) & known) continue;
    CardMask used = known | velmora::mask_of_pocket(own);
    Pocket other{};
    int tries = 0;
    do {
      other = draw_opponent(generator);
    } while ((velmora::mask_of_pocket(other) & used) && ++tries < kMaxTries);
    if (tries == kMaxTries) continue;
    used |= velmora::mask_of_pocket(other);

    // Step 2. The rest of the board.
    std::array<CardCode, 5> full{board.flop[0], board.flop[1], board.flop[2], board.turn,
                                 board.river};
    for (std::size_t street = 3; street < full.size(); ++street) {
      if (full[street] != velmora::kNoCard) continue;
      full[street] = draw_card(generator, used);
      used |= velmora::mask_of(full[street]);
    }

    // Step 3. The showdown.
    const HandStrength mine = velmora::evaluate_hand(own, full);
    const HandStrength theirs = velmora::evaluate_hand(other, full);
    ++total;
    score += mine > theirs ? 1.0 : mine == theirs ? 0.5 : 0.0;
  }
  return total > 0 ? score / static_cast<double>(total) : kUnknown;
}

namespace {

velmora::CardCode card_at(std::string_view text, std::size_t place) {
  return velmora::parse_card(text.substr(2 * place, 2));
}

/// A hand of four characters without a space between its cards.
velmora::Pocket hand_at(std::string_view text) {
  return velmora::make_pocket(card_at(text, 0), card_at(text, 1));
}

}  // namespace

Showdown showdown_winner(std::string_view board, std::string_view oop, std::string_view ip) {
  Showdown result;
  const std::string board_text = velmora::without_space(board);
  const std::string oop_text = velmora::without_space(oop);
  const std::string ip_text = velmora::without_space(ip);
  if (board_text.size() < 10 || oop_text.size() < 4 || ip_text.size() < 4) return result;
  try {
    std::array<velmora::CardCode, 5> cards{};
    for (std::size_t i = 0; i < cards.size(); ++i) cards[i] = card_at(board_text, i);
    const velmora::HandStrength mine = velmora::evaluate_hand(hand_at(oop_text), cards);
    const velmora::HandStrength theirs = velmora::evaluate_hand(hand_at(ip_text), cards);
    result = {mine > theirs ? "OOP" : mine < theirs ? "IP" : "TIE", mine, theirs};
  } catch (const std::exception&) {  // NOLINT: the unknown winner says it.
  }
  return result;
}

}  // namespace velmora_app
