// Everything of a spot that depends on the cards and the ranges and on nothing else.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "cards.h"
#include "huge_pages.h"
#include "range.h"
#include "suit_isomorphism.h"

namespace velmora {

/// One hand on one run-out. The card codes stand beside the hand, where the payoff sweeps need
/// them.
struct StrengthEntry {
  std::uint32_t strength;  ///< `HandStrength` plus 1.
  HandIndex hand;
  CardCode card_a;
  CardCode card_b;

  bool operator==(const StrengthEntry&) const = default;
};
static_assert(sizeof(StrengthEntry) == 8);

/// Sorted by strength, then by hand, between the sentinels (0, kNoHand) and (0xFFFFFFFF, kNoHand),
/// which save the payoff sweeps any test of bounds.
using StrengthList = std::vector<StrengthEntry>;

/// One live hand with its cards.
struct LiveHand {
  HandIndex hand;
  CardCode card_a;
  CardCode card_b;

  bool operator==(const LiveHand&) const = default;
};
using LiveHandList = std::vector<LiveHand>;  ///< Ascending by hand.

/// One live hand as the payoff sweeps use it: places in tables that hold several values for each
/// hand or card, in units that the processor scales while it addresses memory.
struct SweepHand {
  std::uint16_t hand;    ///< Hand index times 4, the bytes of a float.
  std::uint16_t card_a;  ///< Card code times 8, the bytes of a double.
  std::uint16_t card_b;
  std::uint16_t same_cards;  ///< The other seat's hand of the same two cards, times 4; or the
                             ///< offset of a zero.

  bool operator==(const SweepHand&) const = default;
};
using SweepList = std::span<const SweepHand>;

/// Where the hands of one strength end in `SweepHands::by_strength`.
struct StrengthGroup {
  BySeat<std::uint16_t> end;

  bool operator==(const StrengthGroup&) const = default;
};

/// A seat's hands on one board.
struct SweepHands {
  SweepList by_hand;      ///< Live hands, ascending.
  SweepList by_strength;  ///< Ascending by strength, then by hand; on a complete board only.
  std::span<const std::uint16_t> blocked;  ///< All other places of a padded row, times 4.
};

/// One run-out in the form that the payoff sweeps run along.
struct RunoutOrder {
  BySeat<SweepHands> hands;
  /// For each strength that a hand of either seat has, ascending.
  std::span<const StrengthGroup> groups;
};

/// What the lists of `RunoutOrder` are views into: one run of entries for each run-out.
struct SweepTables {
  PageArray<SweepHand> hands;
  PageArray<StrengthGroup> groups;
  PageArray<std::uint16_t> blocked;
};

/// The computed tables of a spot; tables by seat have OOP first, per-hand lists go by hand index:
/// the position of a pocket in the seat's `pockets`.
struct CachedArtifacts {
  BySeat<std::vector<Pocket>> pockets;        ///< Weight above 0, off the board, ascending.
  BySeat<std::vector<float>> hand_weights;    ///< The weight of each pocket, 0..1.
  BySeat<std::vector<float>> matchup_shares;  ///< `matchup_weights` scaled to sum to 1.
  /// The hand's weight times the weight of the opposing hands that it can meet.
  BySeat<std::vector<float>> matchup_weights;
  /// Index of the same two cards in the other seat's list, or `kNoHand`.
  BySeat<std::vector<HandIndex>> same_hand_index;
  std::vector<BySeat<StrengthList>> strength_tables;  ///< By run-out pair; impossible ones empty.
  std::vector<RunoutOrder> runout_orders;             ///< Likewise.
  SweepTables sweep_tables;
  SuitIsomorphism isomorphism;
  std::vector<BySeat<SweepHands>> early_sweeps;  ///< By turn card; the last entry has none.
  BySeat<LiveHandList> all_hands;
  std::vector<BySeat<LiveHandList>> hands_without_card;  ///< By dealt card.
  std::vector<BySeat<LiveHandList>> hands_without_pair;  ///< By dealt turn and river.
  /// Sum of the weight products over all pairs of hands of the two seats without a common card.
  double total_matchup_weight = 0;
};

/// Whether equivalent chance cards are folded into one. Off is for checks: the values are the same.
enum class SuitFolding : std::uint8_t { kOn, kOff };

/// Built once before a solve, read-only afterwards. It evaluates every hand on every run-out here,
/// so that the solver never does.
class CardContext {
 public:
  /// `weights` by seat. Builds on up to `card_context_max_workers()` threads; the tables don't
  /// depend on their number. While another context of the same cards and weights is alive, its
  /// tables are shared. Throws the faults of `validate_board`, and `std::invalid_argument` if a
  /// seat has no hand left on the board.
  CardContext(const Board& board, const BySeat<PocketWeights>& weights,
              SuitFolding folding = SuitFolding::kOn);

  const Board& board() const { return board_; }
  Street board_street() const { return street_of(board_); }
  CardMask board_mask() const { return board_mask_; }
  /// The dealt cards: flop, then turn, then river.
  std::vector<CardCode> board_cards() const;
  const BySeat<PocketWeights>& range_weights() const { return range_weights_; }
  /// Hash of the board and the weights.
  std::uint64_t cache_key() const { return cache_key_; }

  const std::vector<Pocket>& pockets(Seat seat) const { return tables_->pockets[seat]; }
  std::size_t num_hands(Seat seat) const { return tables_->pockets[seat].size(); }
  const std::vector<float>& hand_weights(Seat seat) const { return tables_->hand_weights[seat]; }
  const std::vector<float>& matchup_shares(Seat seat) const {
    return tables_->matchup_shares[seat];
  }
  const std::vector<float>& matchup_weights(Seat seat) const {
    return tables_->matchup_weights[seat];
  }
  const std::vector<HandIndex>& same_hand_index(Seat seat) const {
    return tables_->same_hand_index[seat];
  }
  double total_matchup_weight() const { return tables_->total_matchup_weight; }
  const SuitIsomorphism& isomorphism() const { return tables_->isomorphism; }

  /// The lists of both seats on a run-out, cards in either order; empty lists for `kNoCard` or a
  /// run-out that is not possible.
  const BySeat<StrengthList>& strength_table(CardCode card_a, CardCode card_b) const;
  /// The same run-out as the payoff sweeps want it.
  const RunoutOrder& runout_order(CardCode card_a, CardCode card_b) const;
  /// The seat's hands that miss the dealt cards (`kNoCard` for none), ascending.
  const LiveHandList& live_hands(Seat seat, CardCode turn, CardCode river) const;

  /// A seat's hands on a board with cards to come (`kNoCard` for the turn too).
  const SweepHands& sweep_hands(Seat seat, CardCode turn) const;

  /// Allocated bytes of all tables.
  std::size_t memory_bytes() const;

 private:
  Board board_;
  BySeat<PocketWeights> range_weights_;
  CardMask board_mask_ = 0;
  std::uint64_t cache_key_ = 0;
  std::shared_ptr<const CachedArtifacts> tables_;
};

/// Threads that a context may use: environment variable `VELMORA_CARDCTX_MAX_WORKERS`, else the
/// processor's hardware concurrency.
std::size_t card_context_max_workers();

}  // namespace velmora
