#include "plain_kernels.h"

#include <algorithm>
#include <cmath>

namespace velmora_plain {

using velmora::CardCode;
using velmora::HandIndex;
using velmora::kNoCard;
using velmora::kNoHand;
using velmora::kNumCards;
using velmora::LiveHand;
using velmora::StrengthEntry;
using velmora::StrengthList;

void regret_match(float* strategy, float* denominators, const float* regrets, std::size_t A,
                  std::size_t H, std::size_t stride) {
  std::fill_n(denominators, H, 0.0F);
  for (std::size_t a = 0; a < A; ++a) {
    for (std::size_t h = 0; h < H; ++h) {
      const float regret = regrets[a * stride + h];
      strategy[a * stride + h] = regret > 0.0F ? regret : 0.0F;
      denominators[h] += strategy[a * stride + h];
    }
  }
  const float uniform = 1.0F / static_cast<float>(A);
  for (std::size_t a = 0; a < A; ++a) {
    for (std::size_t h = 0; h < H; ++h) {
      float& cell = strategy[a * stride + h];
      cell = denominators[h] > 0.0F ? cell / denominators[h] : uniform;
    }
  }
}

void weighted_action_sum(float* result, const float* strategy, const float* values, std::size_t A,
                         std::size_t H, std::size_t stride) {
  for (std::size_t h = 0; h < H; ++h) result[h] = strategy[h] * values[h];
  for (std::size_t a = 1; a < A; ++a) {
    for (std::size_t h = 0; h < H; ++h) {
      result[h] += strategy[a * stride + h] * values[a * stride + h];
    }
  }
}

void update_strategy_sum(float* sums, const float* strategy, float gamma, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) sums[i] = sums[i] * gamma + strategy[i];
}

void update_regrets(float* regrets, const float* values, const float* result, std::size_t A,
                    std::size_t H, std::size_t stride, float alpha, float beta) {
  for (std::size_t a = 0; a < A; ++a) {
    for (std::size_t h = 0; h < H; ++h) {
      float& x = regrets[a * stride + h];
      x = (x >= 0.0F ? alpha : beta) * x + values[a * stride + h];
    }
  }
  for (std::size_t a = 0; a < A; ++a) {
    for (std::size_t h = 0; h < H; ++h) regrets[a * stride + h] -= result[h];
  }
}

void row_multiply(float* out, const float* x, const float* y, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) out[i] = x[i] * y[i];
}

void scale_row(float* out, const float* x, float factor, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) out[i] = x[i] * factor;
}

void add_row(float* sum, const float* row, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) sum[i] += row[i];
}

void sum_actions(float* result, const float* values, std::size_t A, std::size_t H,
                 std::size_t stride) {
  for (std::size_t h = 0; h < H; ++h) {
    double sum = 0;
    for (std::size_t a = 0; a < A; ++a) sum += static_cast<double>(values[a * stride + h]);
    result[h] = static_cast<float>(sum);
  }
}

void average_strategy(float* strategy, const float* sums, std::size_t A, std::size_t H,
                      std::size_t stride) {
  for (std::size_t h = 0; h < H; ++h) {
    double total = 0;
    for (std::size_t a = 0; a < A; ++a) {
      total += static_cast<double>(std::max(sums[a * stride + h], 0.0F));
    }
    for (std::size_t a = 0; a < A; ++a) {
      const double x = static_cast<double>(std::max(sums[a * stride + h], 0.0F));
      strategy[a * stride + h] =
          static_cast<float>(total > 0 ? x / total : 1.0 / static_cast<double>(A));
    }
  }
}

void expected_values(float* result, const float* strategy, const float* values, std::size_t A,
                     std::size_t H, std::size_t stride) {
  for (std::size_t h = 0; h < H; ++h) {
    double sum = 0;
    for (std::size_t a = 0; a < A; ++a) {
      sum += static_cast<double>(strategy[a * stride + h]) *
             static_cast<double>(values[a * stride + h]);
    }
    result[h] = static_cast<float>(sum);
  }
}

void best_values(float* result, const float* values, const LockTable* lock, std::size_t A,
                 std::size_t H, std::size_t stride) {
  for (std::size_t h = 0; h < H; ++h) {
    result[h] = values[h];
    for (std::size_t a = 1; a < A; ++a) result[h] = std::max(result[h], values[a * stride + h]);
    if (!lock || (*lock)[h] < 0) continue;
    double value = 0;
    for (std::size_t a = 0; a < A; ++a) {
      const float frequency = (*lock)[a * H + h];
      if (frequency >= 0) {
        value += static_cast<double>(values[a * stride + h]) * static_cast<double>(frequency);
      }
    }
    result[h] = static_cast<float>(value);
  }
}

void apply_lock(float* strategy, const LockTable& lock, std::size_t A, std::size_t H,
                std::size_t stride) {
  for (std::size_t a = 0; a < A; ++a) {
    for (std::size_t h = 0; h < H; ++h) {
      if (lock[a * H + h] >= 0) strategy[a * stride + h] = lock[a * H + h];
    }
  }
}

namespace {

/// Reach of the opposing hands, in total and by card.
struct Sums {
  double total = 0;
  double card[kNumCards] = {};

  void add(float reach, CardCode a, CardCode b) {
    if (reach == 0) return;
    total += static_cast<double>(reach);
    card[a] += static_cast<double>(reach);
    card[b] += static_cast<double>(reach);
  }
  double without(CardCode a, CardCode b) const { return total - card[a] - card[b]; }
};

double rake(const Game& game, double pot) {
  return std::min(game.settings().rake_cap, pot * game.settings().rake_fraction);
}

struct Amounts {
  double win, lose, tie;
};

Amounts amounts(const Game& game, double pot, double raked) {
  const double weight = game.cards().total_matchup_weight();
  if (!(weight > 0)) return {0, 0, 0};
  return {(pot / 2 - raked) / weight, -(pot / 2) / weight, -(raked / 2) / weight};
}

double twin_reach(const Game& game, Seat seat, HandIndex hand, std::span<const float> reach) {
  const HandIndex twin = game.cards().same_hand_index(seat)[hand];
  return twin == kNoHand ? 0.0 : static_cast<double>(reach[twin]);
}

void fold(const Game& game, const PlanNode& node, Seat seat, float amount,
          std::span<const float> reach, std::span<float> result) {
  Sums sums;
  for (const LiveHand& hand : game.seat_hands_for(node, velmora::opponent_of(seat))) {
    sums.add(reach[hand.hand], hand.card_a, hand.card_b);
  }
  if (sums.total == 0) return;
  for (const LiveHand& hand : game.seat_hands_for(node, seat)) {
    const double meets = sums.total + twin_reach(game, seat, hand.hand, reach) -
                         sums.card[hand.card_a] - sums.card[hand.card_b];
    result[hand.hand] = static_cast<float>(meets * static_cast<double>(amount));
  }
}

bool showdown(const Game& game, CardCode turn, CardCode river, double pot, Seat seat,
              std::span<const float> reach, std::span<float> result) {
  const auto& lists = game.cards().strength_table(turn, river);
  const StrengthList& own = lists[seat];
  const StrengthList& opp = lists[velmora::opponent_of(seat)];
  if (own.size() < 3 || opp.size() < 3) return false;
  const Amounts pay = amounts(game, pot, 0);

  Sums weaker;
  std::size_t j = 1;
  for (std::size_t i = 1; i + 1 < own.size(); ++i) {
    for (; j + 1 < opp.size() && opp[j].strength < own[i].strength; ++j) {
      weaker.add(reach[opp[j].hand], opp[j].card_a, opp[j].card_b);
    }
    result[own[i].hand] =
        static_cast<float>(weaker.without(own[i].card_a, own[i].card_b) * pay.win);
  }
  Sums stronger;
  j = opp.size() - 2;
  for (std::size_t i = own.size() - 2; i > 0; --i) {
    for (; j > 0 && opp[j].strength > own[i].strength; --j) {
      stronger.add(reach[opp[j].hand], opp[j].card_a, opp[j].card_b);
    }
    result[own[i].hand] +=
        static_cast<float>(stronger.without(own[i].card_a, own[i].card_b) * pay.lose);
  }
  return true;
}

bool showdown_raked(const Game& game, CardCode turn, CardCode river, double pot, Seat seat,
                    std::span<const float> reach, std::span<float> result) {
  const auto& lists = game.cards().strength_table(turn, river);
  const StrengthList& own = lists[seat];
  const StrengthList& opp = lists[velmora::opponent_of(seat)];
  if (own.size() < 3 || opp.size() < 3) return false;
  const Amounts pay = amounts(game, pot, rake(game, pot));

  Sums all;
  for (std::size_t j = 1; j + 1 < opp.size(); ++j) {
    all.add(reach[opp[j].hand], opp[j].card_a, opp[j].card_b);
  }
  if (all.total == 0) return true;
  Sums below, upto;
  std::size_t next_below = 1, next_upto = 1;
  std::uint32_t group = 0;
  for (std::size_t i = 1; i + 1 < own.size(); ++i) {
    const StrengthEntry& hand = own[i];
    if (hand.strength > group) {
      group = hand.strength;
      if (next_below < next_upto) below = upto, next_below = next_upto;
      for (; next_below + 1 < opp.size() && opp[next_below].strength < group; ++next_below) {
        below.add(reach[opp[next_below].hand], opp[next_below].card_a, opp[next_below].card_b);
      }
      if (next_upto < next_below) upto = below, next_upto = next_below;
      for (; next_upto + 1 < opp.size() && opp[next_upto].strength == group; ++next_upto) {
        upto.add(reach[opp[next_upto].hand], opp[next_upto].card_a, opp[next_upto].card_b);
      }
    }
    const double under = below.without(hand.card_a, hand.card_b);
    const double not_over = upto.without(hand.card_a, hand.card_b);
    const double over = all.without(hand.card_a, hand.card_b) - not_over;
    const double ties = not_over - under + twin_reach(game, seat, hand.hand, reach);
    result[hand.hand] = static_cast<float>(ties * pay.tie + under * pay.win + over * pay.lose);
  }
  return true;
}

bool any_showdown(const Game& game, CardCode turn, CardCode river, double pot, double raked_pot,
                  Seat seat, std::span<const float> reach, std::span<float> result) {
  return rake(game, raked_pot) > 1e-9 ? showdown_raked(game, turn, river, pot, seat, reach, result)
                                      : showdown(game, turn, river, pot, seat, reach, result);
}

void runouts(const Game& game, const PlanNode& node, Seat seat, std::span<const float> reach,
             std::span<float> result) {
  const velmora::CardMask used = game.cards().board_mask() | velmora::mask_of(node.turn);
  std::vector<float> values(result.size());
  std::size_t evaluated = 0;
  const auto add = [&](CardCode turn, CardCode river) {
    std::fill(values.begin(), values.end(), 0.0F);
    if (!any_showdown(game, turn, river, node.pot, node.pot, seat, reach, values)) return;
    add_row(result.data(), values.data(), values.size());
    ++evaluated;
  };
  for (CardCode a = 0; a < kNumCards; ++a) {
    if (used & velmora::mask_of(a)) continue;
    if (node.turn != kNoCard) {
      add(node.turn, a);
      continue;
    }
    for (CardCode b = static_cast<CardCode>(a + 1); b < kNumCards; ++b) {
      if (!(used & velmora::mask_of(b))) add(a, b);
    }
  }
  if (evaluated == 0) return;
  scale_row(result.data(), result.data(), 1.0F / static_cast<float>(evaluated), result.size());
}

}  // namespace

void terminal_payoff(const Game& game, const PlanNode& node, Seat seat,
                     std::span<const float> reach, std::span<float> result) {
  std::fill(result.begin(), result.end(), 0.0F);
  const double pot = game.settings().starting_pot + 2.0 * node.commit;
  if (node.last_action == velmora::ActionKind::kFold) {
    const Amounts pay = amounts(game, pot, rake(game, pot));
    fold(game, node, seat, static_cast<float>(node.last_actor == seat ? pay.lose : pay.win), reach,
         result);
  } else if (node.turn != kNoCard && node.river != kNoCard) {
    any_showdown(game, node.turn, node.river, node.pot, pot, seat, reach, result);
  } else {
    runouts(game, node, seat, reach, result);
  }
}

}  // namespace velmora_plain
