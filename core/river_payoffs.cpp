#include "river_payoffs.h"

#include <algorithm>
#include <array>

namespace velmora {
namespace {

/// A running sum of reach, in total and by card.
struct ReachSums {
  double total = 0;
  double by_card[kNumCards] = {};

  void add(const StrengthEntry& entry, const float* reach) {
    const double r = static_cast<double>(reach[entry.hand]);
    total += r;
    by_card[entry.card_a] += r;
    by_card[entry.card_b] += r;
  }
  /// What a hand with two given cards can meet, less the entry of the identical hand.
  double seen_by(const StrengthEntry& entry) const {
    return total - by_card[entry.card_a] - by_card[entry.card_b];
  }
};

}  // namespace

double rake_of(const Game& game, double pot) {
  return std::min(game.settings().rake_cap, pot * game.settings().rake_fraction);
}

PotShares pot_shares(const Game& game, double pot, double rake) {
  const double weight = game.cards().total_matchup_weight();
  if (!(weight > 0)) return {};
  return {(pot / 2 - rake) / weight, -(pot / 2) / weight, -(rake / 2) / weight};
}

double matched_pot(const Game& game, const PlanNode& node) {
  return static_cast<double>(game.settings().starting_pot) + 2.0 * node.commit;
}

void fold_sweep(const LiveHandList& own, const LiveHandList& opp,
                const std::vector<HandIndex>& same_hand, float amount, std::span<const float> reach,
                std::span<float> result) {
  double total = 0;
  double by_card[kNumCards] = {};
  // Hands stand in groups of one lower card, whose sum stays in a register through the group.
  for (auto hand = opp.begin(); hand != opp.end();) {
    const CardCode card = hand->card_a;
    double of_card = by_card[card];
    do {
      const double r = static_cast<double>(reach[hand->hand]);
      total += r;
      of_card += r;
      by_card[hand->card_b] += r;
      ++hand;
    } while (hand != opp.end() && hand->card_a == card);
    by_card[card] = of_card;
  }
  if (total == 0) return;
  for (const LiveHand& hand : own) {
    // The identical opposing hand has been taken out with both of its cards.
    const HandIndex twin = same_hand[hand.hand];
    const double same = twin == kNoHand ? 0.0 : static_cast<double>(reach[twin]);
    const double meets = total + same - by_card[hand.card_a] - by_card[hand.card_b];
    result[hand.hand] = static_cast<float>(meets * static_cast<double>(amount));
  }
}

RiverPayoffs::RiverPayoffs(const Game& game, CardCode turn, CardCode river, Seat seat)
    : game_(game),
      seat_(seat),
      own_(game.cards().strength_table(turn, river)[seat]),
      opp_(game.cards().strength_table(turn, river)[opponent_of(seat)]),
      own_live_(game.cards().live_hands(seat, turn, river)),
      opp_live_(game.cards().live_hands(opponent_of(seat), turn, river)) {}

void RiverPayoffs::terminal(const PlanNode& node, std::span<const float> reach,
                            std::span<float> result) const {
  if (node.last_action == ActionKind::kFold) {
    const double pot = matched_pot(game_, node);
    const PotShares shares = pot_shares(game_, pot, rake_of(game_, pot));
    const double amount = node.last_actor == seat_ ? shares.lose : shares.win;
    fold_sweep(own_live_, opp_live_, game_.cards().same_hand_index(seat_),
               static_cast<float>(amount), reach, result);
  } else if (rake_of(game_, matched_pot(game_, node)) > kLeastRake) {
    showdown_raked(node.pot, reach, result);
  } else {
    showdown(node.pot, reach, result);
  }
}

bool RiverPayoffs::any_showdown(double pot, std::span<const float> reach,
                                std::span<float> result) const {
  return rake_of(game_, pot) > kLeastRake ? showdown_raked(pot, reach, result)
                                          : showdown(pot, reach, result);
}

bool RiverPayoffs::showdown(double pot, std::span<const float> reach,
                            std::span<float> result) const {
  if (own_.size() < 3 || opp_.size() < 3) return false;
  const PotShares shares = pot_shares(game_, pot, 0);
  const StrengthEntry* const first = own_.data() + 1;
  const StrengthEntry* const last = own_.data() + own_.size() - 2;

  // Step 1. Ascending: each own hand wins against the weaker hands. The sentinels stop the cursor.
  ReachSums weaker;
  const StrengthEntry* opp = opp_.data() + 1;
  for (const StrengthEntry* own = first; own <= last; ++own) {
    for (; opp->strength < own->strength; ++opp) weaker.add(*opp, reach.data());
    result[own->hand] = static_cast<float>(weaker.seen_by(*own) * shares.win);
  }

  // Step 2. Descending: it loses against the stronger ones. Equal hands enter neither sum.
  ReachSums stronger;
  opp = opp_.data() + opp_.size() - 2;
  for (const StrengthEntry* own = last; own >= first; --own) {
    for (; opp->strength > own->strength; --opp) stronger.add(*opp, reach.data());
    result[own->hand] += static_cast<float>(stronger.seen_by(*own) * shares.lose);
  }
  return true;
}

bool RiverPayoffs::showdown_raked(double pot, std::span<const float> reach,
                                  std::span<float> result) const {
  if (own_.size() < 3 || opp_.size() < 3) return false;
  const PotShares shares = pot_shares(game_, pot, rake_of(game_, pot));
  const std::vector<HandIndex>& same_hand = game_.cards().same_hand_index(seat_);
  const std::span<const StrengthEntry> own(own_.data() + 1, own_.size() - 2);
  const StrengthEntry* opp = opp_.data() + 1;
  const StrengthEntry* const opp_end = opp_.data() + opp_.size() - 1;

  // Step 1. One running sum in order of strength. Each group of equal own hands looks at it twice:
  // before the opposing hands of its strength enter, and after. The last state is the whole reach.
  std::array<double, kNumPockets> weaker;        // NOLINT: written before it is read
  std::array<double, kNumPockets> not_stronger;  // NOLINT: likewise
  ReachSums sums;
  for (std::size_t begin = 0; begin < own.size();) {
    const std::uint32_t strength = own[begin].strength;
    std::size_t end = begin;
    for (; opp->strength < strength; ++opp) sums.add(*opp, reach.data());
    for (; end < own.size() && own[end].strength == strength; ++end) {
      weaker[end] = sums.seen_by(own[end]);
    }
    for (; opp != opp_end && opp->strength == strength; ++opp) sums.add(*opp, reach.data());
    for (; begin < end; ++begin) not_stronger[begin] = sums.seen_by(own[begin]);
  }
  for (; opp != opp_end; ++opp) sums.add(*opp, reach.data());
  if (sums.total == 0) return true;

  // Step 2. The three outcomes. The identical opposing hand ties and has been taken out of both
  // looks with each of its cards.
  for (std::size_t i = 0; i < own.size(); ++i) {
    const HandIndex twin = same_hand[own[i].hand];
    const double same = twin == kNoHand ? 0.0 : static_cast<double>(reach[twin]);
    const double ties = not_stronger[i] - weaker[i] + same;
    const double stronger = sums.seen_by(own[i]) - not_stronger[i];
    result[own[i].hand] =
        static_cast<float>(ties * shares.tie + weaker[i] * shares.win + stronger * shares.lose);
  }
  return true;
}

}  // namespace velmora
