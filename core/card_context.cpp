#include "card_context.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <unordered_map>

#include "hand_eval.h"
#include "rows.h"
#include "worker_pool.h"

namespace velmora {
namespace {

/// 64-bit FNV-1a over the bytes of x, low byte first.
std::uint64_t fnv(std::uint64_t x) {
  std::uint64_t hash = 0xCBF29CE484222325;
  for (int byte = 0; byte < 8; ++byte, x >>= 8) {
    hash = (hash ^ (x & 0xFF)) * 0x100000001B3;
  }
  return hash;
}

void combine(std::uint64_t& seed, std::uint64_t x) {
  seed ^= fnv(x) + 0x9E3779B97F4A7C15 + (seed << 6) + (seed >> 2);
}

std::uint64_t table_hash(const PocketWeights& weights) {
  std::uint64_t hash = kNumPockets;
  for (const float weight : weights) combine(hash, std::bit_cast<std::uint32_t>(weight));
  return hash;
}

std::uint64_t key_of(const Board& board, const BySeat<PocketWeights>& weights) {
  std::uint64_t key = 0;
  for (const CardCode card : board.flop) combine(key, card);
  combine(key, board.turn);
  combine(key, board.river);
  combine(key, 1);
  combine(key, table_hash(weights[kOop]));
  combine(key, table_hash(weights[kIp]));
  return key;
}

/// The tables of the contexts that are alive, by key.
class ArtifactTable : public std::enable_shared_from_this<ArtifactTable> {
 public:
  std::shared_ptr<const CachedArtifacts> find(std::uint64_t key) {
    const std::lock_guard lock(mutex_);
    const auto entry = entries_.find(key);
    return entry == entries_.end() ? nullptr : entry->second.lock();
  }

  /// Shares tables under a key for as long as somebody holds them.
  std::shared_ptr<const CachedArtifacts> publish(std::uint64_t key,
                                                 std::unique_ptr<const CachedArtifacts> artifacts) {
    // The last holder may outlive the end of `main`, so each keeps the table alive as well.
    const auto release = [table = shared_from_this(), key](const CachedArtifacts* unused) {
      delete unused;
      table->forget(key);
    };
    std::shared_ptr<const CachedArtifacts> shared(artifacts.release(), release);
    const std::lock_guard lock(mutex_);
    entries_[key] = shared;
    return shared;
  }

 private:
  /// Removes an entry, unless other tables have taken its place.
  void forget(std::uint64_t key) {
    const std::lock_guard lock(mutex_);
    const auto entry = entries_.find(key);
    if (entry != entries_.end() && entry->second.expired()) entries_.erase(entry);
  }

  std::mutex mutex_;
  std::unordered_map<std::uint64_t, std::weak_ptr<const CachedArtifacts>> entries_;
};

ArtifactTable& artifact_table() {
  static const auto table = std::make_shared<ArtifactTable>();
  return *table;
}

void fill_pockets(CachedArtifacts& tables, const BySeat<PocketWeights>& weights, CardMask board) {
  for (const Seat seat : {kOop, kIp}) {
    for (std::size_t index = 0; index < kNumPockets; ++index) {
      const float weight = weights[seat][index];
      if (!(weight > 0)) continue;
      const auto [a, b] = pocket_cards(index);
      if (board & (mask_of(a) | mask_of(b))) continue;
      tables.pockets[seat].push_back(make_pocket(a, b));
      tables.hand_weights[seat].push_back(weight);
    }
    if (tables.pockets[seat].empty()) {
      throw std::invalid_argument("Player range empty after filtering board cards");
    }
  }
}

void fill_same_hand_index(CachedArtifacts& tables) {
  for (const Seat seat : {kOop, kIp}) {
    std::vector<HandIndex> index_of(kNumPockets, kNoHand);
    const std::vector<Pocket>& others = tables.pockets[opponent_of(seat)];
    for (std::size_t i = 0; i < others.size(); ++i) {
      index_of[pocket_index(others[i])] = static_cast<HandIndex>(i);
    }
    for (const Pocket pocket : tables.pockets[seat]) {
      tables.same_hand_index[seat].push_back(index_of[pocket_index(pocket)]);
    }
  }
}

void fill_matchup_weights(CachedArtifacts& tables) {
  for (std::size_t i = 0; i < tables.pockets[kOop].size(); ++i) {
    const CardMask mask = mask_of_pocket(tables.pockets[kOop][i]);
    const double weight = static_cast<double>(tables.hand_weights[kOop][i]);
    for (std::size_t j = 0; j < tables.pockets[kIp].size(); ++j) {
      if (mask & mask_of_pocket(tables.pockets[kIp][j])) continue;
      tables.total_matchup_weight += weight * static_cast<double>(tables.hand_weights[kIp][j]);
    }
  }

  BySeat<double> total{};
  BySeat<std::array<double, kNumCards>> card_total{};
  for (const Seat seat : {kOop, kIp}) {
    for (std::size_t i = 0; i < tables.pockets[seat].size(); ++i) {
      const double weight = static_cast<double>(tables.hand_weights[seat][i]);
      total[seat] += weight;
      card_total[seat][low_card(tables.pockets[seat][i])] += weight;
      card_total[seat][high_card(tables.pockets[seat][i])] += weight;
    }
  }
  for (const Seat seat : {kOop, kIp}) {
    const Seat opponent = opponent_of(seat);
    double sum = 0;
    for (std::size_t i = 0; i < tables.pockets[seat].size(); ++i) {
      const Pocket pocket = tables.pockets[seat][i];
      const HandIndex same_cards = tables.same_hand_index[seat][i];
      // Inclusion and exclusion: the identical pocket has been taken out with both of its cards.
      const double same = same_cards == kNoHand
                              ? 0.0
                              : static_cast<double>(tables.hand_weights[opponent][same_cards]);
      const double meets = total[opponent] - card_total[opponent][low_card(pocket)] -
                           card_total[opponent][high_card(pocket)] + same;
      const double value =
          meets > 0 ? meets * static_cast<double>(tables.hand_weights[seat][i]) : 0.0;
      tables.matchup_weights[seat].push_back(static_cast<float>(value));
      sum += value;
    }
    tables.matchup_shares[seat] = tables.matchup_weights[seat];
    if (sum > std::numeric_limits<double>::epsilon()) {
      const float reciprocal = static_cast<float>(1.0 / sum);
      for (float& share : tables.matchup_shares[seat]) share *= reciprocal;
    }
  }
}

struct RunoutPair {
  CardCode a;
  CardCode b;
};

/// Every pair of last two cards that the board allows.
std::vector<RunoutPair> runout_pairs(const Board& board, CardMask flop) {
  if (board.river != kNoCard) return {{board.turn, board.river}};
  std::vector<RunoutPair> pairs;
  for (CardCode a = 0; a < kNumCards; ++a) {
    for (CardCode b = static_cast<CardCode>(a + 1); b < kNumCards; ++b) {
      if (flop & (mask_of(a) | mask_of(b))) continue;
      if (board.turn != kNoCard && a != board.turn && b != board.turn) continue;
      pairs.push_back({a, b});
    }
  }
  return pairs;
}

LiveHandList hands_off(const std::vector<Pocket>& pockets, CardMask dead) {
  LiveHandList hands;
  hands.reserve(pockets.size());
  for (std::size_t i = 0; i < pockets.size(); ++i) {
    if (mask_of_pocket(pockets[i]) & dead) continue;
    hands.push_back({static_cast<HandIndex>(i), low_card(pockets[i]), high_card(pockets[i])});
  }
  hands.shrink_to_fit();
  return hands;
}

StrengthList rank_hands(const std::vector<Pocket>& pockets, const LiveHandList& live,
                        const std::array<CardCode, 5>& board) {
  StrengthList list;
  list.reserve(live.size() + 2);
  list.push_back({0, kNoHand, 0, 0});
  for (const LiveHand& hand : live) {
    list.push_back(
        {evaluate_hand(pockets[hand.hand], board) + 1, hand.hand, hand.card_a, hand.card_b});
  }
  list.push_back({0xFFFFFFFF, kNoHand, 0, 0});
  std::sort(list.begin(), list.end(), [](const StrengthEntry& x, const StrengthEntry& y) {
    return x.strength != y.strength ? x.strength < y.strength : x.hand < y.hand;
  });
  return list;
}

/// Fills the sweep lists of one board after the other into the arrays.
class SweepWriter {
 public:
  /// Places in the three arrays.
  struct Place {
    std::size_t hands = 0;
    std::size_t groups = 0;
    std::size_t blocked = 0;
  };

  SweepWriter(CachedArtifacts& tables, Place place) : tables_(tables), place_(place) {}

  void write(BySeat<SweepHands>& hands, const BySeat<LiveHandList>& live) {
    for (const Seat seat : {kOop, kIp}) {
      const std::size_t row = padded(tables_.pockets[seat].size());
      const Place first = place_;
      std::size_t h = 0;
      for (const LiveHand& hand : live[seat]) {
        for (; h < hand.hand; ++h) add_blocked(h);
        ++h;
        add_hand(hand.hand, hand.card_a, hand.card_b, seat);
      }
      for (; h < row; ++h) add_blocked(h);
      hands[seat].by_hand = hands_since(first);
      hands[seat].blocked = {tables_.sweep_tables.blocked.data() + first.blocked,
                             place_.blocked - first.blocked};
    }
  }

  void write(RunoutOrder& order, const BySeat<LiveHandList>& live,
             const BySeat<StrengthList>& lists) {
    write(order.hands, live);
    for (const Seat seat : {kOop, kIp}) {
      const Place first = place_;
      for (std::size_t i = 1; i + 1 < lists[seat].size(); ++i) {
        const StrengthEntry& entry = lists[seat][i];
        add_hand(entry.hand, entry.card_a, entry.card_b, seat);
      }
      order.hands[seat].by_strength = hands_since(first);
    }
    // The sentinel at the end is stronger than every hand.
    constexpr std::uint32_t kEnd = 0xFFFFFFFF;
    const Place first = place_;
    BySeat<std::size_t> next = {1, 1};
    for (;;) {
      const std::uint32_t strength =
          std::min(lists[kOop][next[kOop]].strength, lists[kIp][next[kIp]].strength);
      if (strength == kEnd) break;
      StrengthGroup& group = tables_.sweep_tables.groups[place_.groups++];
      for (const Seat seat : {kOop, kIp}) {
        while (lists[seat][next[seat]].strength == strength) ++next[seat];
        group.end[seat] = static_cast<std::uint16_t>(next[seat] - 1);
      }
    }
    order.groups = {tables_.sweep_tables.groups.data() + first.groups,
                    place_.groups - first.groups};
  }

 private:
  void add_hand(HandIndex hand, CardCode a, CardCode b, Seat seat) {
    // A hand that the other range does not hold finds zeros behind the padded row of the other
    // seat's hands.
    const std::size_t nobody = padded(tables_.pockets[opponent_of(seat)].size());
    const HandIndex same_cards = tables_.same_hand_index[seat][hand];
    tables_.sweep_tables.hands[place_.hands++] = {
        static_cast<std::uint16_t>(hand * sizeof(float)),
        static_cast<std::uint16_t>(a * sizeof(double)),
        static_cast<std::uint16_t>(b * sizeof(double)),
        static_cast<std::uint16_t>((same_cards == kNoHand ? nobody : same_cards) * sizeof(float))};
  }
  void add_blocked(std::size_t hand) {
    tables_.sweep_tables.blocked[place_.blocked++] =
        static_cast<std::uint16_t>(hand * sizeof(float));
  }
  SweepList hands_since(const Place& first) const {
    return {tables_.sweep_tables.hands.data() + first.hands, place_.hands - first.hands};
  }

  CachedArtifacts& tables_;
  Place place_;
};

/// The lists of all boards: first where each one's begin, then the lists, spread over the pool.
void fill_sweep_tables(CachedArtifacts& tables, std::span<const CardCode> turns,
                       std::span<const RunoutPair> pairs, WorkerPool* pool) {
  tables.early_sweeps.resize(kNumCards + 1);
  tables.runout_orders.resize(kNumPockets);
  SweepWriter::Place size;
  std::vector<SweepWriter::Place> places;
  const auto reserve = [&](const BySeat<LiveHandList>& live, bool complete) {
    places.push_back(size);
    for (const Seat seat : {kOop, kIp}) {
      size.hands += live[seat].size() * (complete ? 2 : 1);
      size.groups += complete ? live[seat].size() : 0;
      size.blocked += padded(tables.pockets[seat].size()) - live[seat].size();
    }
  };
  reserve(tables.all_hands, false);
  for (const CardCode turn : turns) reserve(tables.hands_without_card[turn], false);
  for (const RunoutPair& pair : pairs) {
    reserve(tables.hands_without_pair[pocket_index(pair.a, pair.b)], true);
  }
  tables.sweep_tables = {PageArray<SweepHand>(size.hands), PageArray<StrengthGroup>(size.groups),
                         PageArray<std::uint16_t>(size.blocked)};

  // Also a turn that blocks every hand of both seats has its list of blocked places: it is what
  // sets the results of these hands to 0.
  SweepWriter(tables, places[0]).write(tables.early_sweeps[kNumCards], tables.all_hands);
  for (std::size_t i = 0; i < turns.size(); ++i) {
    SweepWriter(tables, places[1 + i])
        .write(tables.early_sweeps[turns[i]], tables.hands_without_card[turns[i]]);
  }
  parallel_for(pool, pairs.size(), [&](std::size_t begin, std::size_t end) {
    for (std::size_t i = begin; i < end; ++i) {
      const std::size_t index = pocket_index(pairs[i].a, pairs[i].b);
      SweepWriter(tables, places[1 + turns.size() + i])
          .write(tables.runout_orders[index], tables.hands_without_pair[index],
                 tables.strength_tables[index]);
    }
  });
}

void fill_hand_lists(CachedArtifacts& tables, const Board& board) {
  CardMask flop = 0;
  for (const CardCode card : board.flop) flop |= mask_of(card);
  tables.hands_without_card.resize(kNumCards);
  tables.hands_without_pair.resize(kNumPockets);
  tables.strength_tables.resize(kNumPockets);

  std::vector<CardCode> turns;
  for (CardCode card = 0; card < kNumCards; ++card) {
    const bool possible = board.turn != kNoCard ? card == board.turn : (flop & mask_of(card)) == 0;
    if (possible) turns.push_back(card);
  }
  for (const Seat seat : {kOop, kIp}) {
    tables.all_hands[seat] = hands_off(tables.pockets[seat], 0);
    for (const CardCode turn : turns) {
      tables.hands_without_card[turn][seat] = hands_off(tables.pockets[seat], mask_of(turn));
    }
  }

  const std::vector<RunoutPair> pairs = runout_pairs(board, flop);
  const std::size_t workers = std::min(card_context_max_workers(), pairs.size());
  std::optional<WorkerPool> pool;
  if (workers >= 2) pool.emplace(workers - 1);
  parallel_for(pool ? &*pool : nullptr, pairs.size(), [&](std::size_t begin, std::size_t end) {
    for (std::size_t i = begin; i < end; ++i) {
      const auto [a, b] = pairs[i];
      const std::size_t index = pocket_index(a, b);
      for (const Seat seat : {kOop, kIp}) {
        LiveHandList& live = tables.hands_without_pair[index][seat];
        live = hands_off(tables.pockets[seat], mask_of(a) | mask_of(b));
        tables.strength_tables[index][seat] = rank_hands(
            tables.pockets[seat], live, {board.flop[0], board.flop[1], board.flop[2], a, b});
      }
    }
  });
  fill_sweep_tables(tables, turns, pairs, pool ? &*pool : nullptr);
}

std::unique_ptr<const CachedArtifacts> compute(const Board& board, CardMask board_mask,
                                               const BySeat<PocketWeights>& weights,
                                               SuitFolding folding) {
  auto tables = std::make_unique<CachedArtifacts>();
  fill_pockets(*tables, weights, board_mask);
  fill_same_hand_index(*tables);
  fill_hand_lists(*tables, board);
  fill_matchup_weights(*tables);
  if (folding == SuitFolding::kOn) {
    tables->isomorphism = find_suit_isomorphism(board, weights, tables->pockets);
  }
  return tables;
}

template <typename T>
std::size_t bytes_of(const T&) {
  return 0;
}
template <typename T, typename U>
std::size_t bytes_of(const std::pair<T, U>&) {
  return 0;
}
template <typename T>
std::size_t bytes_of(const std::vector<T>& list);
template <typename T, std::size_t N>
std::size_t bytes_of(const std::array<T, N>& items);

template <typename Items>
std::size_t nested_bytes(const Items& items) {
  std::size_t bytes = 0;
  for (const auto& item : items) bytes += bytes_of(item);
  return bytes;
}
template <typename T>
std::size_t bytes_of(const std::vector<T>& list) {
  return list.capacity() * sizeof(T) + nested_bytes(list);
}
template <typename T, std::size_t N>
std::size_t bytes_of(const std::array<T, N>& items) {
  return nested_bytes(items);
}

}  // namespace

CardContext::CardContext(const Board& board, const BySeat<PocketWeights>& weights,
                         SuitFolding folding)
    : board_(board), range_weights_(weights) {
  validate_board(board_);
  for (const CardCode card : board_cards()) board_mask_ |= mask_of(card);
  cache_key_ = key_of(board_, range_weights_);
  if (folding == SuitFolding::kOff) {
    tables_ = compute(board_, board_mask_, range_weights_, folding);
    return;
  }
  tables_ = artifact_table().find(cache_key_);
  if (tables_) return;
  tables_ =
      artifact_table().publish(cache_key_, compute(board_, board_mask_, range_weights_, folding));
}

std::vector<CardCode> CardContext::board_cards() const {
  std::vector<CardCode> cards(board_.flop.begin(), board_.flop.end());
  if (board_.turn != kNoCard) cards.push_back(board_.turn);
  if (board_.river != kNoCard) cards.push_back(board_.river);
  return cards;
}

const BySeat<StrengthList>& CardContext::strength_table(CardCode card_a, CardCode card_b) const {
  static const BySeat<StrengthList> kEmpty;
  if (card_a >= kNumCards || card_b >= kNumCards || card_a == card_b) return kEmpty;
  return tables_->strength_tables[pocket_index(card_a, card_b)];
}

const RunoutOrder& CardContext::runout_order(CardCode card_a, CardCode card_b) const {
  static const RunoutOrder kEmpty;
  if (card_a >= kNumCards || card_b >= kNumCards || card_a == card_b) return kEmpty;
  return tables_->runout_orders[pocket_index(card_a, card_b)];
}

const LiveHandList& CardContext::live_hands(Seat seat, CardCode turn, CardCode river) const {
  if (turn >= kNumCards) return tables_->all_hands[seat];
  if (river < kNumCards && river != turn) {
    return tables_->hands_without_pair[pocket_index(turn, river)][seat];
  }
  return tables_->hands_without_card[turn][seat];
}

const SweepHands& CardContext::sweep_hands(Seat seat, CardCode turn) const {
  return tables_->early_sweeps[std::min(turn, kNumCards)][seat];
}

std::size_t CardContext::memory_bytes() const {
  const CachedArtifacts& t = *tables_;
  const SuitIsomorphism& iso = t.isomorphism;
  return bytes_of(t.pockets) + bytes_of(t.hand_weights) + bytes_of(t.matchup_shares) +
         bytes_of(t.matchup_weights) + bytes_of(t.same_hand_index) + bytes_of(t.strength_tables) +
         bytes_of(t.runout_orders) + bytes_of(t.early_sweeps) +
         t.sweep_tables.hands.size() * sizeof(SweepHand) +
         t.sweep_tables.groups.size() * sizeof(StrengthGroup) +
         t.sweep_tables.blocked.size() * sizeof(std::uint16_t) + bytes_of(t.all_hands) +
         bytes_of(t.hands_without_card) + bytes_of(t.hands_without_pair) + bytes_of(iso.turn_refs) +
         bytes_of(iso.turn_cards) + bytes_of(iso.turn_swaps) + bytes_of(iso.river_refs) +
         bytes_of(iso.river_cards) + bytes_of(iso.river_swaps);
}

std::size_t card_context_max_workers() {
  return worker_limit("VELMORA_CARDCTX_MAX_WORKERS");
}

}  // namespace velmora
