#include "payoffs.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <type_traits>
#include <utility>

#include "kernels.h"
#include "lanes.h"
#include "multiversion.h"
#include "rows.h"

namespace velmora {
namespace {

constexpr int kLanes = 8;
constexpr int kFewLanes = 4;

/// A batch of lanes: the reach of all of them by hand, one float of each lane beside the other, and
/// their results in the same form. Amounts by lane.
struct Batch {
  const float* reach;  ///< One hand more than the padded row has, with zeros.
  float* results;
  std::array<double, kLanes> win;
  std::array<double, kLanes> lose;
  std::array<double, kLanes> tie;
};

/// `L` floats of a hand in a block, or `L` doubles of a card, from a place as `SweepHand` has it.
template <int L, typename T>
[[gnu::always_inline]] inline T* at(T* table, std::uint16_t place) {
  using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
  return reinterpret_cast<T*>(reinterpret_cast<Byte*>(table) + std::size_t{place} * L);
}

/// Sums of reach by card, with `L` lanes; the sum over all hands stays in a register beside it.
template <int L, int W>
struct CardSums {
  using Amounts = Lanes<L, W>;

  alignas(64) double by_card[kNumCards * L];

  [[gnu::always_inline]] void clear() {
    for (int i = 0; i < kNumCards; ++i) Amounts::zero().store(by_card + i * L);
  }
  [[gnu::always_inline]] Amounts of(std::uint16_t card) const {
    return Amounts::load(at<L>(by_card, card));
  }
  [[gnu::always_inline]] void add(std::uint16_t card, const Amounts& reach) {
    double* const sum = at<L>(by_card, card);
    (Amounts::load(sum) + reach).store(sum);
  }
  /// Adds a hand, also to `total`.
  [[gnu::always_inline]] void add(const SweepHand& hand, const float* reach, Amounts& total) {
    const Amounts r = Amounts::widen(at<L>(reach, hand.hand));
    total = total + r;
    add(hand.card_a, r);
    add(hand.card_b, r);
  }
  /// What a hand can meet out of `total`, less the entry of the identical hand, which is taken out
  /// twice.
  [[gnu::always_inline]] Amounts seen_by(const SweepHand& hand, const Amounts& total) const {
    return total - of(hand.card_a) - of(hand.card_b);
  }
};

/// Replaces what is at `result`, or adds to it.
template <bool kAdds, int L, int W>
[[gnu::always_inline]] inline void put(const FloatLanes<L, W>& gain, float* result) {
  (kAdds ? FloatLanes<L, W>::load(result) + gain : gain).store(result);
}

template <int L, int W>
VELMORA_BODY fold_lanes(SweepList own, SweepList opp, const Batch& batch, MemoryAhead& ahead) {
  using Amounts = Lanes<L, W>;
  const float* const reach = batch.reach;
  float* const results = batch.results;
  CardSums<L, W> sums;
  sums.clear();
  Amounts total = Amounts::zero();
  // Hands stand in groups of one lower card, whose sum stays in a register through the group.
  const SweepHand* hand = opp.data();
  const SweepHand* const opp_end = hand + opp.size();
  while (hand != opp_end) {
    const std::uint16_t card = hand->card_a;
    Amounts of_card = sums.of(card);
    do {
      const Amounts r = Amounts::widen(at<L>(reach, hand->hand));
      total = total + r;
      of_card = of_card + r;
      sums.add(hand->card_b, r);
      ++hand;
    } while (hand != opp_end && hand->card_a == card);
    of_card.store(at<L>(sums.by_card, card));
  }
  // A lane without live reach gets plain zeros.
  const Amounts amount = Amounts::load(batch.win.data()).where_not_zero(total);
  MemoryAhead::Cursor cursor(ahead);
  cursor.refill();
  const SweepHand* const own_end = own.data() + own.size();
  for (const SweepHand* h = own.data(); h != own_end; ++h) {
    const Amounts same = Amounts::widen(at<L>(reach, h->same_cards));
    ((total + same - sums.of(h->card_a) - sums.of(h->card_b)) * amount)
        .narrow()
        .store(at<L>(results, h->hand));
    cursor.step();
  }
}

/// With `kAdds` the results are added to what is there, in single precision; else they replace it.
template <int L, int W, bool kAdds>
VELMORA_BODY showdown_lanes(const RunoutOrder& order, Seat seat, const Batch& batch,
                            MemoryAhead& ahead) {
  using Amounts = Lanes<L, W>;
  using Floats = FloatLanes<L, W>;
  const SweepHand* const own_hands = order.hands[seat].by_strength.data();
  const SweepHand* const opp_hands = order.hands[opponent_of(seat)].by_strength.data();
  const StrengthGroup* const first = order.groups.data();
  const StrengthGroup* const last = first + order.groups.size();
  const std::size_t opp_seat = opponent_of(seat);
  const float* const reach = batch.reach;
  float* const results = batch.results;
  MemoryAhead::Cursor cursor(ahead);
  // What the first pass finds stays in the results if they are replaced.
  alignas(64) float won_by_place[kAdds ? kNumPockets * L : 1];  // NOLINT: written before it is read
  const auto won = [&](const SweepHand* hand) __attribute__((always_inline)) {
    return kAdds ? won_by_place + (hand - own_hands) * L : at<L>(results, hand->hand);
  };

  // Step 1. Ascending: each own hand wins against the weaker hands.
  CardSums<L, W> sums;
  sums.clear();
  Amounts total = Amounts::zero();
  const Amounts win = Amounts::load(batch.win.data());
  const SweepHand* own = own_hands;
  const SweepHand* opp = opp_hands;
  for (const StrengthGroup* group = first; group != last; ++group) {
    const SweepHand* const own_end = own_hands + group->end[seat];
    const SweepHand* const opp_end = opp_hands + group->end[opp_seat];
    for (; own != own_end; ++own) {
      (sums.seen_by(*own, total) * win).narrow().store(won(own));
      cursor.step();
    }
    for (; opp != opp_end; ++opp) {
      sums.add(*opp, reach, total);
      cursor.step();
    }
    cursor.refill();
  }

  // Step 2. Descending: it loses against the stronger ones. Equal hands enter neither sum.
  sums.clear();
  total = Amounts::zero();
  const Amounts lose = Amounts::load(batch.lose.data());
  for (const StrengthGroup* group = last; group != first;) {
    --group;
    const SweepHand* const own_end = group == first ? own_hands : own_hands + group[-1].end[seat];
    const SweepHand* const opp_end =
        group == first ? opp_hands : opp_hands + group[-1].end[opp_seat];
    while (own != own_end) {
      --own;
      const Floats gain = Floats::load(won(own)) + (sums.seen_by(*own, total) * lose).narrow();
      put<kAdds>(gain, at<L>(results, own->hand));
      cursor.step();
    }
    while (opp != opp_end) {
      sums.add(*--opp, reach, total);
      cursor.step();
    }
    cursor.refill();
  }
}

template <int L, int W, bool kAdds>
VELMORA_BODY showdown_lanes_raked(const RunoutOrder& order, Seat seat, const Batch& batch,
                                  MemoryAhead& ahead) {
  using Amounts = Lanes<L, W>;
  const std::size_t opp_seat = opponent_of(seat);
  const SweepHand* const opp_hands = order.hands[opp_seat].by_strength.data();
  const SweepHand* const opp_last = opp_hands + order.hands[opp_seat].by_strength.size();
  const StrengthGroup* const last = order.groups.data() + order.groups.size();
  const float* const reach = batch.reach;
  float* const results = batch.results;
  MemoryAhead::Cursor cursor(ahead);
  alignas(64) double weaker[kNumPockets * L];  // NOLINT: written before it is read

  // Step 1. All reach.
  CardSums<L, W> all;
  all.clear();
  Amounts all_total = Amounts::zero();
  for (const SweepHand* opp = opp_hands; opp != opp_last; ++opp) all.add(*opp, reach, all_total);
  // A lane without live reach gets plain zeros.
  const Amounts win = Amounts::load(batch.win.data()).where_not_zero(all_total);
  const Amounts lose = Amounts::load(batch.lose.data()).where_not_zero(all_total);
  const Amounts tie = Amounts::load(batch.tie.data()).where_not_zero(all_total);

  // Step 2. In order of strength each group of equal own hands looks twice: before the opposing
  // hands of its strength enter, and after. The identical opposing hand ties and has been taken out
  // of both looks with each of its cards.
  CardSums<L, W> sums;
  sums.clear();
  Amounts total = Amounts::zero();
  const SweepHand* own = order.hands[seat].by_strength.data();
  const SweepHand* const own_hands = own;
  const SweepHand* opp = opp_hands;
  for (const StrengthGroup* group = order.groups.data(); group != last; ++group) {
    const SweepHand* const own_end = own_hands + group->end[seat];
    const SweepHand* const opp_end = opp_hands + group->end[opp_seat];
    double* look = weaker;
    for (const SweepHand* hand = own; hand != own_end; ++hand, look += L) {
      sums.seen_by(*hand, total).store(look);
    }
    for (; opp != opp_end; ++opp) {
      sums.add(*opp, reach, total);
      cursor.step();
    }
    look = weaker;
    for (; own != own_end; ++own, look += L) {
      const Amounts below = Amounts::load(look);
      const Amounts up_to = sums.seen_by(*own, total);
      const Amounts stronger = all.seen_by(*own, all_total) - up_to;
      const Amounts same = Amounts::widen(at<L>(reach, own->same_cards));
      const Amounts ties = up_to - below + same;
      const Amounts gain = ties * tie + below * win + stronger * lose;
      put<kAdds>(gain.narrow(), at<L>(results, own->hand));
      cursor.step();
    }
    cursor.refill();
  }
}

// One body for each instruction set: `W` doubles in its vectors, 4 lanes or 8 as the batch asks.
template <int W>
constexpr int kFewWidth = W < kFewLanes ? W : kFewLanes;

template <int W>
VELMORA_BODY fold_batch_body(int lanes, SweepList own, SweepList opp, const Batch& batch,
                             MemoryAhead& ahead) {
  if (lanes == kFewLanes) {
    fold_lanes<kFewLanes, kFewWidth<W>>(own, opp, batch, ahead);
  } else {
    fold_lanes<kLanes, W>(own, opp, batch, ahead);
  }
}
VELMORA_MULTIVERSION_WIDE(fold_batch,
                          (int lanes, SweepList own, SweepList opp, const Batch& batch,
                           MemoryAhead& ahead),
                          (lanes, own, opp, batch, ahead))

template <int W>
VELMORA_BODY showdown_batch_body(int lanes, const RunoutOrder& order, Seat seat, const Batch& batch,
                                 MemoryAhead& ahead) {
  if (lanes == kFewLanes) {
    showdown_lanes<kFewLanes, kFewWidth<W>, false>(order, seat, batch, ahead);
  } else {
    showdown_lanes<kLanes, W, false>(order, seat, batch, ahead);
  }
}
VELMORA_MULTIVERSION_WIDE(showdown_batch,
                          (int lanes, const RunoutOrder& order, Seat seat, const Batch& batch,
                           MemoryAhead& ahead),
                          (lanes, order, seat, batch, ahead))

template <int W>
VELMORA_BODY raked_batch_body(int lanes, const RunoutOrder& order, Seat seat, const Batch& batch,
                              MemoryAhead& ahead) {
  if (lanes == kFewLanes) {
    showdown_lanes_raked<kFewLanes, kFewWidth<W>, false>(order, seat, batch, ahead);
  } else {
    showdown_lanes_raked<kLanes, W, false>(order, seat, batch, ahead);
  }
}
VELMORA_MULTIVERSION_WIDE(raked_batch,
                          (int lanes, const RunoutOrder& order, Seat seat, const Batch& batch,
                           MemoryAhead& ahead),
                          (lanes, order, seat, batch, ahead))

/// Adds a run-out to the results of a batch.
template <int W>
VELMORA_BODY add_runout_body(int lanes, bool raked, const RunoutOrder& order, Seat seat,
                             const Batch& batch, MemoryAhead& ahead) {
  if (lanes == kFewLanes) {
    if (raked) {
      showdown_lanes_raked<kFewLanes, kFewWidth<W>, true>(order, seat, batch, ahead);
    } else {
      showdown_lanes<kFewLanes, kFewWidth<W>, true>(order, seat, batch, ahead);
    }
  } else if (raked) {
    showdown_lanes_raked<kLanes, W, true>(order, seat, batch, ahead);
  } else {
    showdown_lanes<kLanes, W, true>(order, seat, batch, ahead);
  }
}
VELMORA_MULTIVERSION_WIDE(add_runout,
                          (int lanes, bool raked, const RunoutOrder& order, Seat seat,
                           const Batch& batch, MemoryAhead& ahead),
                          (lanes, raked, order, seat, batch, ahead))

VELMORA_BODY interleave_rows_body(int lanes, const float* const* rows, std::size_t hands,
                                  float* block) {
  if (lanes == kFewLanes) {
    interleave<kFewLanes>(rows, hands, block);
  } else {
    interleave<kLanes>(rows, hands, block);
  }
}
VELMORA_MULTIVERSION(interleave_rows,
                     (int lanes, const float* const* rows, std::size_t hands, float* block),
                     (lanes, rows, hands, block))

VELMORA_BODY deinterleave_rows_body(int lanes, const float* block, std::size_t hands,
                                    float* const* rows) {
  if (lanes == kFewLanes) {
    deinterleave<kFewLanes>(block, hands, rows);
  } else {
    deinterleave<kLanes>(block, hands, rows);
  }
}
VELMORA_MULTIVERSION(deinterleave_rows,
                     (int lanes, const float* block, std::size_t hands, float* const* rows),
                     (lanes, block, hands, rows))

/// Calls `run(lanes, batch)` for the nodes in batches of 8 lanes, the last of them of 4 if that is
/// enough, and brings the results into the nodes' rows. Those in `blocked` are in no list and stay
/// zeros. Lanes without a node repeat the first one.
template <typename Run>
void in_batches(const PayoffSeat& seat, std::span<const PayoffLane> nodes,
                std::span<const std::uint16_t> blocked, ScratchStack& scratch, const Run& run) {
  const ScratchStack::Frame frame(scratch);
  const std::size_t opp_hands = padded(seat.opp_hands());
  const std::size_t own_hands = padded(seat.own_hands());
  float* const reach_block = scratch.take<float>((opp_hands + 1) * kLanes);
  float* const result_block = scratch.take<float>(own_hands * kLanes);
  float* const nowhere = scratch.take<float>(own_hands);
  int lanes_before = 0;
  for (std::size_t first = 0; first < nodes.size(); first += kLanes) {
    const std::size_t count = std::min<std::size_t>(nodes.size() - first, kLanes);
    const int lanes = count <= kFewLanes ? kFewLanes : kLanes;
    Batch batch{reach_block, result_block, {}, {}, {}};
    std::array<const float*, kLanes> reach{};
    std::array<float*, kLanes> results{};
    for (std::size_t l = 0; l < static_cast<std::size_t>(lanes); ++l) {
      const PayoffLane& node = nodes[first + (l < count ? l : 0)];
      reach[l] = node.reach;
      results[l] = l < count ? node.result : nowhere;
      batch.win[l] = node.shares.win;
      batch.lose[l] = node.shares.lose;
      batch.tie[l] = node.shares.tie;
    }
    interleave_rows(lanes, reach.data(), opp_hands, reach_block);
    if (lanes != lanes_before) {
      lanes_before = lanes;
      const std::size_t wide = static_cast<std::size_t>(lanes);
      std::fill_n(reach_block + opp_hands * wide, wide, 0.0F);
      for (const std::uint16_t place : blocked) {
        std::fill_n(result_block + place / sizeof(float) * wide, wide, 0.0F);
      }
    }
    run(lanes, batch);
    deinterleave_rows(lanes, result_block, own_hands, results.data());
  }
}

/// The run-outs of a board, in ascending order of their cards.
std::vector<std::pair<CardCode, CardCode>> runouts_of(CardMask board, CardCode turn) {
  const CardMask used = turn == kNoCard ? board : board | mask_of(turn);
  std::vector<std::pair<CardCode, CardCode>> runouts;
  for (CardCode a = 0; a < kNumCards; ++a) {
    if (turn != kNoCard ? a != turn : (used & mask_of(a)) != 0) continue;
    const CardCode first = turn != kNoCard ? CardCode{0} : static_cast<CardCode>(a + 1);
    for (CardCode b = first; b < kNumCards; ++b) {
      if (!(used & mask_of(b))) runouts.emplace_back(a, b);
    }
  }
  return runouts;
}

}  // namespace

void fold_payoff(const PayoffSeat& seat, CardCode turn, CardCode river,
                 std::span<const PayoffLane> nodes, ScratchStack& scratch, MemoryAhead& ahead) {
  if (nodes.empty()) return;
  const auto fold = [&](const BySeat<SweepHands>& hands) {
    const SweepHands& own = hands[seat.seat];
    const SweepList opp = hands[opponent_of(seat.seat)].by_hand;
    in_batches(seat, nodes, own.blocked, scratch, [&](int lanes, const Batch& batch) {
      fold_batch(lanes, own.by_hand, opp, batch, ahead);
    });
  };
  if (turn != kNoCard && river != kNoCard) {
    fold(seat.cards.runout_order(turn, river).hands);
  } else {
    fold({seat.cards.sweep_hands(kOop, turn), seat.cards.sweep_hands(kIp, turn)});
  }
}

void showdown_payoff(const PayoffSeat& seat, CardCode turn, CardCode river,
                     std::span<const PayoffLane> nodes, ScratchStack& scratch, MemoryAhead& ahead) {
  if (nodes.empty()) return;
  const RunoutOrder& order = seat.cards.runout_order(turn, river);
  in_batches(seat, nodes, order.hands[seat.seat].blocked, scratch,
             [&](int lanes, const Batch& batch) {
               showdown_batch(lanes, order, seat.seat, batch, ahead);
             });
}

void showdown_payoff_raked(const PayoffSeat& seat, CardCode turn, CardCode river,
                           std::span<const PayoffLane> nodes, ScratchStack& scratch,
                           MemoryAhead& ahead) {
  if (nodes.empty()) return;
  const RunoutOrder& order = seat.cards.runout_order(turn, river);
  in_batches(
      seat, nodes, order.hands[seat.seat].blocked, scratch,
      [&](int lanes, const Batch& batch) { raked_batch(lanes, order, seat.seat, batch, ahead); });
}

void runout_payoff(const PayoffSeat& seat, CardCode turn, bool raked,
                   std::span<const PayoffLane> nodes, ScratchStack& scratch) {
  if (nodes.empty()) return;
  std::size_t evaluated = 0;
  const std::vector<std::pair<CardCode, CardCode>> runouts =
      runouts_of(seat.cards.board_mask(), turn);
  MemoryAhead ahead;
  in_batches(seat, nodes, {}, scratch, [&](int lanes, const Batch& batch) {
    std::fill_n(batch.results, padded(seat.own_hands()) * static_cast<std::size_t>(lanes), 0.0F);
    evaluated = 0;
    for (const auto& [first, second] : runouts) {
      const RunoutOrder& order = seat.cards.runout_order(first, second);
      if (order.hands[kOop].by_hand.empty() || order.hands[kIp].by_hand.empty()) continue;
      add_runout(lanes, raked, order, seat.seat, batch, ahead);
      ++evaluated;
    }
  });
  if (evaluated == 0) return;
  const float share = 1.0F / static_cast<float>(evaluated);
  for (const PayoffLane& node : nodes) {
    scale_row(node.result, node.result, share, padded(seat.own_hands()));
  }
}

}  // namespace velmora
