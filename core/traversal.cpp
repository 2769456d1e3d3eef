#include "traversal.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <new>
#include <utility>

#include "rows.h"

namespace velmora {
namespace {

using Kind = StreetShape::Kind;

/// A learning traversal spreads a chance node over the pool from these on.
constexpr std::size_t kLeastCards = 12;
constexpr std::size_t kLeastHands = 128;

/// Trees are swept together up to so many rows of scratch memory. On the river that keeps them and
/// their tables in the second cache. Before it a deal counts for the rows of its cards, which are
/// written and read once.
constexpr std::size_t kRiverRowsTogether = 200;
constexpr std::size_t kRowsTogether = 2000;

/// Terminal nodes to come that share an evaluation of their run-outs.
constexpr std::size_t kAllInsTogether = 8;

/// Chance of a dealt card: one of those that neither the board nor four hole cards hold. A constant
/// of the street, not the number of children, since folded deals are added back.
float deal_factor(const PlanNode& node) {
  return node.turn == kNoCard ? 1.0F / 45.0F : 1.0F / 44.0F;
}

std::size_t rows_of(const StreetShape& shape) {
  return shape.nodes.size() + shape.deals.size() * kNumCards;
}

/// A growing list in scratch memory of known greatest size.
template <typename T>
class ScratchList {
 public:
  ScratchList(ScratchStack& scratch, std::size_t most) : items_(scratch.take<T>(most)) {}
  void push_back(const T& item) { new (&items_[size_++]) T(item); }
  std::span<T> items() const { return {items_, size_}; }

 private:
  T* items_;
  std::size_t size_ = 0;
};

}  // namespace

Traversal::Traversal(const Game& game, SolverState& states, Seat seat,
                     const DiscountParams& discount, WorkerPool* pool,
                     std::span<ScratchStack> scratch)
    : game_(game),
      states_(states),
      learning_(&states),
      seat_(seat),
      num_responses_(1),
      discount_(discount),
      pool_(pool),
      scratch_(scratch) {}

Traversal::Traversal(const Game& game, const SolverState& states, Seat seat,
                     std::span<const Response> responses, WorkerPool* pool,
                     std::span<ScratchStack> scratch)
    : game_(game),
      states_(states),
      learning_(nullptr),
      seat_(seat),
      num_responses_(responses.size()),
      pool_(pool),
      scratch_(scratch) {
  std::copy(responses.begin(), responses.end(), responses_.begin());
}

void Traversal::run(const StreetShape& shape, NodeIndex root, const float* reach,
                    std::span<float* const> results) {
  Line line{&shape, root, reach, {}};
  std::copy(results.begin(), results.end(), line.results.begin());
  const bool may_fan_out = pool_ && !WorkerPool::in_worker() && scratch_.size() > pool_->size();
  walk({&line, 1}, {}, {scratch_[0], may_fan_out});
}

double Traversal::street_bytes(const CardContext& cards, const StreetCounts& trees, Seat seat,
                               std::size_t responses) {
  const auto row_bytes = [&cards](Seat of) {
    return static_cast<double>(
        ScratchStack::taken_bytes(padded(cards.num_hands(of)) * sizeof(float)));
  };
  const Seat other = opponent_of(seat);
  const double own_row = row_bytes(seat);
  const double opp_row = row_bytes(other);
  const auto wide = [](float count) { return static_cast<double>(count); };
  // At a node of the other seat with one action the child's values and reach are the node's.
  const double split_rows = wide(trees.action_rows[other] - trees.single_rows[other]);
  const double value_rows = wide(trees.action_rows[seat]) + split_rows;
  // Two responses share what a terminal node pays.
  const double inner = wide(trees.decisions[kOop] + trees.decisions[kIp] + trees.deals);
  double bytes = wide(trees.nodes) * sizeof(Slot) + wide(trees.terminals()) * sizeof(PayoffLane);
  // The lists of folds and of showdowns have a place for every node. Where that is much, the huge
  // page at which each of them ends is half empty on the average.
  const double list = wide(trees.nodes) * sizeof(PayoffLane);
  bytes += 2 * std::min(list, ScratchStack::kHugePage / 2);
  bytes += (value_rows + static_cast<double>(responses - 1) * inner) * own_row;
  bytes += split_rows * opp_row;
  bytes += wide(trees.decisions[other]) * static_cast<double>(ScratchStack::taken_bytes(1));
  bytes += wide(trees.deals) * (sizeof(Deal) + opp_row);
  bytes += wide(trees.cards) * static_cast<double>(responses) * own_row;
  return bytes;
}

double Traversal::scratch_bytes(const CardContext& cards, const BettingTrees& trees, Seat seat,
                                bool learns, std::size_t responses, std::size_t workers) {
  // What is walked together below a card: everything, or as much as the cache bears, or the largest
  // tree alone.
  const auto group_bytes = [&](const StreetCounts& street, bool river) {
    const double all = street_bytes(cards, street, seat, responses);
    const double rows =
        static_cast<double>(street.nodes) + static_cast<double>(street.deals) * kNumCards;
    const auto most = static_cast<double>(river ? kRiverRowsTogether : kRowsTogether);
    if (rows <= most) return all;
    return all * std::max(most / rows, static_cast<double>(street.largest / street.nodes));
  };
  const bool next_is_river = cards.board_street() != kFlop;
  const double below = group_bytes(trees[1], next_is_river) + group_bytes(trees[2], true);
  // The first cards that are dealt are spread over the threads.
  const float deals = trees[0].deals;
  const auto first_cards = deals > 0 ? static_cast<std::size_t>(trees[0].cards / deals) : 0;
  const bool fans_out =
      learns ? first_cards >= kLeastCards && cards.num_hands(opponent_of(seat)) >= kLeastHands
             : first_cards > 1;
  const std::size_t walkers = fans_out ? std::min(workers, first_cards) : 1;
  const double root = street_bytes(cards, trees[0], seat, responses);
  return ScratchStack::resident_bytes(root + below) +
         static_cast<double>(walkers - 1) * ScratchStack::resident_bytes(below);
}

void Traversal::walk(std::span<const Line> lines, std::span<const Line> next,
                     const Worker& worker) {
  const ScratchStack::Frame frame(worker.scratch);
  std::size_t size = 0;
  for (const Line& line : lines) size += line.shape->nodes.size();
  Slot* const slots = worker.scratch.take<Slot>(size);
  for (const Line& line : next) {
    if (line.shape->river) states_.fetch_nodes(line.root, line.shape->nodes.size());
  }

  Slot* first = slots;
  for (const Line& line : lines) {
    sweep_down(line, first, worker.scratch);
    first += line.shape->nodes.size();
  }
  sweep_across(lines, next, slots, worker);
  first = slots;
  for (const Line& line : lines) {
    sweep_up(line, first, worker.scratch);
    first += line.shape->nodes.size();
  }
}

void Traversal::sweep_down(const Line& line, Slot* slots, ScratchStack& scratch) {
  const std::vector<StreetShape::Node>& nodes = line.shape->nodes;
  slots[0] = {line.root, line.reach, line.results};
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    const StreetShape::Node& node = nodes[i];
    const std::size_t num_actions = node.num_actions;
    if (num_actions == 0) continue;
    Slot* const children = slots + node.first_child;
    for (std::size_t a = 0; a < num_actions; ++a) {
      children[a].node = line.shape->river ? line.root + nodes[node.first_child + a].offset
                                           : game_.nodes()[slots[i].node].children[a];
    }
    if (node.seat != seat_ && num_actions == 1) {
      // The other seat's strategy is certain: the child's values are the node's.
      children[0].reach = slots[i].reach;
      children[0].values = slots[i].values;
      continue;
    }
    for (std::size_t a = 0; a < num_actions; ++a) {
      children[a].reach = slots[i].reach;
      children[a].values[0] = scratch.take<float>(own_row());
      for (std::size_t r = 1; r < num_responses_; ++r) {
        // What a terminal node pays doesn't depend on the response.
        const bool shared = nodes[node.first_child + a].kind > Kind::kDeal;
        children[a].values[r] = shared ? children[a].values[0] : scratch.take<float>(own_row());
      }
    }
    if (node.seat == seat_ || !slots[i].reach) continue;
    float* const rows = scratch.take<float>(num_actions * opp_row());
    bool* const live = scratch.take<bool>(num_actions);
    split_reach(slots[i].node, num_actions, slots[i].reach, rows, live, scratch);
    for (std::size_t a = 0; a < num_actions; ++a) {
      children[a].reach = live[a] ? rows + a * opp_row() : nullptr;
    }
  }
}

void Traversal::sweep_across(std::span<const Line> lines, std::span<const Line> next, Slot* slots,
                             const Worker& worker) {
  const ScratchStack::Frame frame(worker.scratch);
  ScratchStack& scratch = worker.scratch;
  const PlanNode& board = game_.nodes()[lines[0].root];
  const PayoffSeat payoff_seat{game_.cards(), seat_};

  // Step 1. The terminal nodes by kind. Without reach nothing is won or lost.
  std::size_t size = 0;
  for (const Line& line : lines) size += line.shape->nodes.size();
  ScratchList<PayoffLane> folds(scratch, size);
  ScratchList<PayoffLane> showdowns[2] = {{scratch, size}, {scratch, size}};
  ScratchList<PayoffLane> all_ins[2] = {{scratch, size}, {scratch, size}};
  Slot* slot = slots;
  for (const Line& line : lines) {
    for (const StreetShape::Node& node : line.shape->nodes) {
      const Slot& at = *slot++;
      if (node.kind <= Kind::kDeal) continue;
      if (!at.reach) {
        std::fill_n(at.values[0], own_row(), 0.0F);
        continue;
      }
      const PayoffLane lane{at.reach, at.values[0], node.shares[seat_]};
      ScratchList<PayoffLane>& list = node.kind == Kind::kFold       ? folds
                                      : node.kind == Kind::kShowdown ? showdowns[node.raked]
                                                                     : all_ins[node.raked];
      list.push_back(lane);
    }
  }

  // Step 2. What is decided on this board.
  MemoryAhead ahead;
  list_tables(lines, next, ahead);
  fold_payoff(payoff_seat, board.turn, board.river, folds.items(), scratch, ahead);
  showdown_payoff(payoff_seat, board.turn, board.river, showdowns[0].items(), scratch, ahead);
  showdown_payoff_raked(payoff_seat, board.turn, board.river, showdowns[1].items(), scratch, ahead);

  // Step 3. What takes more cards: all-ins, and the streets to come, card by card.
  const std::span<const Deal> deals = list_deals(lines, slots, scratch);
  const std::size_t cards = deals.empty() ? 0 : deals[0].node->children.size();
  struct AllIns {
    std::span<PayoffLane> lanes;
    bool raked;
  };
  ScratchList<AllIns> batches(scratch, 2 + size / kAllInsTogether);
  for (const bool raked : {false, true}) {
    const std::span<PayoffLane> all = all_ins[raked].items();
    for (std::size_t first = 0; first < all.size(); first += kAllInsTogether) {
      batches.push_back({all.subspan(first, std::min(kAllInsTogether, all.size() - first)), raked});
    }
  }
  const auto run_task = [&](std::size_t task, ScratchStack& own) {
    if (task < batches.items().size()) {
      const AllIns& batch = batches.items()[task];
      runout_payoff(payoff_seat, board.turn, batch.raked, batch.lanes, own);
    } else {
      const std::size_t card = task - batches.items().size();
      deal_cards(deals, card, card + 1, own);
    }
  };
  const std::size_t tasks = batches.items().size() + cards;
  const bool wide_enough =
      learning_ ? cards >= kLeastCards && game_.num_hands(opponent_of(seat_)) >= kLeastHands
                : tasks > 1;
  const bool safe = std::all_of(deals.begin(), deals.end(), [this](const Deal& deal) {
    return states_.parallel_safe(static_cast<std::size_t>(deal.node - game_.nodes().data()));
  });
  if (worker.may_fan_out && wide_enough && safe) {
    std::atomic<std::size_t> next_task = 0;
    pool_->parallel_for(pool_->size() + 1, [&](std::size_t begin, std::size_t end) {
      for (std::size_t w = begin; w < end; ++w) {
        for (std::size_t task = next_task++; task < tasks; task = next_task++) {
          run_task(task, scratch_[w]);
        }
      }
    });
  } else {
    for (std::size_t batch = 0; batch < batches.items().size(); ++batch) run_task(batch, scratch);
    deal_cards(deals, 0, cards, scratch);
  }

  // Step 4. The sum over the cards, and what two responses don't share after all: the values of a
  // terminal node that have the place of a node above it.
  for (const Deal& deal : deals) {
    for (std::size_t r = 0; r < num_responses_; ++r) add_up(deal, r, scratch);
  }
  if (num_responses_ == 1) return;
  slot = slots;
  for (const Line& line : lines) {
    for (const StreetShape::Node& node : line.shape->nodes) {
      const Slot& at = *slot++;
      if (node.kind > Kind::kDeal && at.values[1] != at.values[0]) {
        std::copy_n(at.values[0], own_row(), at.values[1]);
      }
    }
  }
}

std::span<Traversal::Deal> Traversal::list_deals(std::span<const Line> lines, Slot* slots,
                                                 ScratchStack& scratch) {
  std::size_t size = 0;
  for (const Line& line : lines) size += line.shape->deals.size();
  ScratchList<Deal> deals(scratch, size);
  Slot* slot = slots;
  for (const Line& line : lines) {
    for (const StreetShape::Node& node : line.shape->nodes) {
      const Slot& at = *slot++;
      if (node.kind != Kind::kDeal) continue;
      Deal deal{&line.shape->deals[node.deal], &game_.nodes()[at.node], nullptr, {}, at.values};
      if (at.reach) {
        float* const scaled = scratch.take<float>(opp_row());
        scale_row(scaled, at.reach, deal_factor(*deal.node), opp_row());
        deal.reach = scaled;
      }
      for (std::size_t r = 0; r < num_responses_; ++r) {
        deal.rows[r] = scratch.take<float>(deal.node->children.size() * own_row());
      }
      deals.push_back(deal);
    }
  }
  return deals.items();
}

/// The trees below one dealt card.
std::span<Traversal::Line> Traversal::lines_below(std::span<const Deal> deals, std::size_t card,
                                                  ScratchStack& scratch) const {
  Line* const lines = scratch.take<Line>(deals.size());
  for (std::size_t i = 0; i < deals.size(); ++i) {
    const Deal& deal = deals[i];
    lines[i] = {deal.below, deal.node->children[card], deal.reach, {}};
    for (std::size_t r = 0; r < num_responses_; ++r) {
      lines[i].results[r] = deal.rows[r] + card * own_row();
    }
  }
  return {lines, deals.size()};
}

/// Walks the trees below some of the dealt cards, as many together as the cache bears.
void Traversal::deal_cards(std::span<const Deal> deals, std::size_t begin, std::size_t end,
                           ScratchStack& scratch) {
  if (begin == end) return;
  const ScratchStack::Frame frame(scratch);

  // Step 1. Who goes together: the same for every card.
  ScratchList<std::size_t> group_ends(scratch, deals.size());
  const std::size_t most = deals[0].below->river ? kRiverRowsTogether : kRowsTogether;
  std::size_t rows = 0;
  for (std::size_t i = 0; i < deals.size(); ++i) {
    const std::size_t more = rows_of(*deals[i].below);
    if (i > 0 && rows + more > most) {
      group_ends.push_back(i);
      rows = 0;
    }
    rows += more;
  }
  group_ends.push_back(deals.size());

  // Step 2. Card by card, group by group.
  std::span<const Line> lines = lines_below(deals, begin, scratch);
  for (std::size_t card = begin; card < end; ++card) {
    const std::span<const Line> next_card =
        card + 1 < end ? lines_below(deals, card + 1, scratch) : std::span<Line>();
    std::size_t first = 0;
    for (std::size_t g = 0; g < group_ends.items().size(); ++g) {
      const std::size_t last = group_ends.items()[g];
      const bool last_group = g + 1 == group_ends.items().size();
      const std::span<const Line> next =
          !last_group         ? lines.subspan(last, group_ends.items()[g + 1] - last)
          : next_card.empty() ? next_card
                              : next_card.first(group_ends.items()[0]);
      walk(lines.subspan(first, last - first), next, {scratch, false});
      first = last;
    }
    lines = next_card;
  }
}

/// What the sweeps after the payoffs and before the next ones read: the own tables of these trees
/// and the other seat's of the next ones.
void Traversal::list_tables(std::span<const Line> lines, std::span<const Line> next,
                            MemoryAhead& ahead) const {
  const bool plays_average = std::find(responses_.begin(), responses_.begin() + num_responses_,
                                       Response::kAverage) != responses_.begin() + num_responses_;
  for (const Line& line : lines) {
    const StreetShape::Decisions& own = line.shape->decisions[seat_];
    if (!own.any) continue;
    if (learning_) states_.list_tables(line.root + own.first, line.root + own.last, false, ahead);
    if (learning_ || plays_average) {
      states_.list_tables(line.root + own.first, line.root + own.last, true, ahead);
    }
  }
  if (!next.empty() && next[0].shape->river) {
    const PlanNode& board = game_.nodes()[lines[0].root];
    const PlanNode& next_board = game_.nodes()[next[0].root];
    if (next_board.river != board.river) {
      const RunoutOrder& order = game_.cards().runout_order(next_board.turn, next_board.river);
      for (const Seat seat : {kOop, kIp}) {
        const SweepHands& hands = order.hands[seat];
        ahead.add(hands.by_hand.data(), hands.by_hand.size_bytes());
        ahead.add(hands.by_strength.data(), hands.by_strength.size_bytes());
        ahead.add(hands.blocked.data(), hands.blocked.size_bytes());
      }
      ahead.add(order.groups.data(), order.groups.size_bytes());
    }
  }
  for (const Line& line : next) {
    const StreetShape::Decisions& other = line.shape->decisions[opponent_of(seat_)];
    if (!other.any || !line.reach) continue;
    if (learning_) {
      states_.list_tables(line.root + other.first, line.root + other.last, false, ahead);
    } else {
      states_.list_tables(line.root + other.first, line.root + other.last, true, ahead);
    }
  }
}

/// The value of a chance node: the sum over its cards, row by row, then over the folded deals, each
/// of which is the same card with two suits exchanged.
void Traversal::add_up(const Deal& deal, std::size_t response, ScratchStack& scratch) {
  const ScratchStack::Frame frame(scratch);
  const std::size_t hands = game_.num_hands(seat_);
  const std::size_t row = own_row();
  const std::size_t cards = deal.node->children.size();
  const float* const rows = deal.rows[response];
  float* const sum = deal.results[response];
  std::fill_n(sum, row, 0.0F);
  add_rows(sum, rows, cards, row);
  const std::vector<std::uint8_t>& refs = game_.chance_refs(*deal.node);
  if (refs.empty()) return;
  float* const swapped = scratch.take<float>(row);
  for (std::size_t i = 0; i < refs.size(); ++i) {
    if (refs[i] >= cards) continue;
    std::copy_n(rows + refs[i] * row, row, swapped);
    for (const auto& [x, y] : game_.chance_swaps(*deal.node, i)[seat_]) {
      if (x < hands && y < hands) std::swap(swapped[x], swapped[y]);
    }
    add_rows(sum, swapped, 1, row);
  }
}

void Traversal::sweep_up(const Line& line, const Slot* slots, ScratchStack& scratch) {
  const ScratchStack::Frame frame(scratch);
  const std::vector<StreetShape::Node>& nodes = line.shape->nodes;
  for (std::size_t i = nodes.size(); i-- > 0;) {
    const StreetShape::Node& node = nodes[i];
    if (node.kind != Kind::kDecision) continue;
    const std::size_t num_actions = node.num_actions;
    if (node.seat != seat_ && num_actions == 1) continue;
    const ScratchStack::Frame node_frame(scratch);
    const float** const values = scratch.take<const float*>(num_actions);
    for (std::size_t r = 0; r < num_responses_; ++r) {
      float* const result = slots[i].values[r];
      for (std::size_t a = 0; a < num_actions; ++a) {
        values[a] = slots[node.first_child + a].values[r];
      }
      if (num_actions == 0) {
        std::fill_n(result, own_row(), 0.0F);
      } else if (node.seat != seat_) {
        // The reach has weighted the values already.
        sum_actions(result, values, num_actions, own_row());
      } else if (learning_) {
        std::size_t next = i;
        do {
          next = next > 0 ? next - 1 : i;
        } while (next < i && (nodes[next].num_actions == 0 || nodes[next].seat != seat_));
        learn(slots[i].node, slots[next].node, values, result, scratch);
      } else {
        respond(responses_[r], slots[i].node, values, result, scratch);
      }
    }
  }
}

namespace {

/// Puts the fixed frequencies of a lock table in place of the strategy's. A set sign bit marks a
/// hand without a lock.
void apply_lock(float* strategy, const LockTable& lock, std::size_t num_actions,
                std::size_t num_hands) {
  const std::size_t stride = padded(num_hands);
  for (std::size_t a = 0; a < num_actions; ++a) {
    for (std::size_t h = 0; h < num_hands; ++h) {
      const std::size_t cell = a * num_hands + h;
      if (cell >= lock.size()) return;
      if (!std::signbit(lock[cell])) strategy[a * stride + h] = lock[cell];
    }
  }
}

/// Best response at a node with a lock: a locked hand keeps its mix, a free one takes its best
/// action.
void best_values_with_lock(float* result, ValueRows values, const LockTable& lock,
                           std::size_t num_actions, std::size_t num_hands) {
  for (std::size_t h = 0; h < num_hands; ++h) {
    if (std::signbit(lock[h])) {
      result[h] = values[0][h];
      for (std::size_t a = 1; a < num_actions; ++a) result[h] = std::max(result[h], values[a][h]);
      continue;
    }
    double value = 0;
    for (std::size_t a = 0; a < num_actions; ++a) {
      const float frequency = lock[a * num_hands + h];
      if (std::signbit(frequency)) continue;
      value += static_cast<double>(values[a][h]) * static_cast<double>(frequency);
    }
    result[h] = static_cast<float>(value);
  }
}

}  // namespace

/// The other seat's strategy splits its reach over the actions.
void Traversal::split_reach(NodeIndex node, std::size_t num_actions, const float* reach,
                            float* rows, bool* live, ScratchStack& scratch) {
  const ScratchStack::Frame frame(scratch);
  const NodeState& state = states_.node(node);
  const std::size_t row = opp_row();
  if (!learning_) {
    const float* const sums = states_.strategy_sums(state, scratch);
    if (has_fused_kernels(num_actions)) {
      split_average_fused(rows, live, sums, reach, num_actions, row);
      return;
    }
    float* const strategy = scratch.take<float>(num_actions * row);
    average_strategy_rows(strategy, sums, num_actions, row);
    split_rows(rows, live, strategy, reach, num_actions, row);
    return;
  }
  const float* const regrets = states_.regrets(state, scratch);
  const LockTable* const lock = game_.find_node_lock(node);
  if (!lock && has_fused_kernels(num_actions)) {
    split_reach_fused(rows, live, regrets, reach, num_actions, row);
    return;
  }
  float* const strategy = scratch.take<float>(num_actions * row);
  regret_match(strategy, scratch.take<float>(row), regrets, num_actions, row);
  if (lock) apply_lock(strategy, *lock, num_actions, state.num_hands);
  split_rows(rows, live, strategy, reach, num_actions, row);
}

/// The traversing seat's node: the value of its current strategy, and what is learnt. A node with a
/// lock keeps its regrets, for all of its hands. `next` is the node that will learn after this one.
void Traversal::learn(NodeIndex node, NodeIndex next, ValueRows values, float* result,
                      ScratchStack& scratch) {
  const ScratchStack::Frame frame(scratch);
  const NodeState& state = states_.node(node);
  const std::size_t num_actions = state.num_actions;
  const std::size_t row = own_row();
  float* const regrets = learning_->ensure_regrets(state, scratch);
  float* const sums = learning_->ensure_strategy_sums(state, scratch);
  const LockTable* const lock = game_.find_node_lock(node);
  if (!lock && has_fused_kernels(num_actions)) {
    // Compressed tables are expanded before use, so there is nothing to fetch.
    const NodeState& ahead = states_.node(next);
    const float* const next_regrets =
        states_.compressed() ? regrets : states_.regrets(ahead, scratch);
    const float* const next_sums =
        states_.compressed() ? sums : states_.strategy_sums(ahead, scratch);
    learn_fused(result, regrets, sums, values, num_actions, row, discount_.alpha_t,
                discount_.beta_t, discount_.gamma_t, next_regrets, next_sums);
  } else {
    float* const strategy = scratch.take<float>(num_actions * row);
    regret_match(strategy, scratch.take<float>(row), regrets, num_actions, row);
    if (lock) apply_lock(strategy, *lock, num_actions, state.num_hands);
    weighted_action_sum(result, strategy, values, num_actions, row);
    update_strategy_sum(sums, strategy, discount_.gamma_t, num_actions * row);
    if (!lock) {
      update_regrets(regrets, values, result, num_actions, row, discount_.alpha_t,
                     discount_.beta_t);
    }
  }
  learning_->store_strategy_sums(node, sums);
  if (!lock) learning_->store_regrets(node, regrets);
}

void Traversal::respond(Response response, NodeIndex node, ValueRows values, float* result,
                        ScratchStack& scratch) {
  const ScratchStack::Frame frame(scratch);
  const NodeState& state = states_.node(node);
  const std::size_t num_actions = state.num_actions;
  const std::size_t row = own_row();
  if (response == Response::kAverage) {
    const float* const sums = states_.strategy_sums(state, scratch);
    if (has_fused_kernels(num_actions)) {
      average_values_fused(result, sums, values, num_actions, row);
      return;
    }
    float* const strategy = scratch.take<float>(num_actions * row);
    average_strategy_rows(strategy, sums, num_actions, row);
    expected_values(result, strategy, values, num_actions, row);
    return;
  }
  const LockTable* const lock = game_.find_node_lock(node);
  if (lock && lock->size() == num_actions * state.num_hands) {
    best_values_with_lock(result, values, *lock, num_actions, state.num_hands);
  } else {
    best_values(result, values, num_actions, row);
  }
}

}  // namespace velmora
