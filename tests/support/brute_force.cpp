#include "brute_force.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <utility>

#include "hand_eval.h"

namespace velmora_test {

using velmora::Action;
using velmora::ActionKind;
using velmora::CardCode;
using velmora::CardMask;
using velmora::NodeKind;
using velmora::PlanNode;
using velmora::Pocket;
using velmora::Seat;

namespace {

/// Real suit to suit in the tree: a card that the tree folds is walked in its twin's subtree.
using SuitMap = std::array<int, 4>;

CardCode mapped(CardCode card, const SuitMap& suits) {
  return velmora::make_card(velmora::rank_of(card), suits[velmora::suit_of(card)]);
}

class BruteForce {
 public:
  BruteForce(const velmora::Game& game, const velmora::DiscountedCfr& solver, Seat seat, Play play)
      : game_(game), solver_(solver), seat_(seat), play_(play) {
    for (const Seat s : {velmora::kOop, velmora::kIp}) {
      for (std::size_t h = 0; h < game.num_hands(s); ++h) {
        index_of_[s][game.cards().pockets(s)[h]] = h;
      }
    }
    for (const CardCode card : game.cards().board_cards()) board_.push_back(card);
    const Seat other = velmora::opponent_of(seat);
    for (std::size_t i = 0; i < game.num_hands(seat); ++i) {
      for (std::size_t j = 0; j < game.num_hands(other); ++j) {
        if (own(i) == opp(j) || masks_meet(own(i), opp(j))) continue;
        total_weight_ += static_cast<double>(game.cards().hand_weights(seat)[i]) *
                         static_cast<double>(game.cards().hand_weights(other)[j]);
      }
    }
  }

  double value_of(std::size_t hand) {
    const auto& weights = game_.cards().hand_weights(velmora::opponent_of(seat_));
    std::vector<double> reach(weights.begin(), weights.end());
    for (std::size_t j = 0; j < reach.size(); ++j) {
      if (masks_meet(own(hand), opp(j))) reach[j] = 0;
    }
    return visit(0, hand, reach, {0, 1, 2, 3}) / total_weight_;
  }

 private:
  Pocket own(std::size_t h) const { return game_.cards().pockets(seat_)[h]; }
  Pocket opp(std::size_t h) const { return game_.cards().pockets(velmora::opponent_of(seat_))[h]; }
  static bool masks_meet(Pocket a, Pocket b) {
    return (velmora::mask_of_pocket(a) & velmora::mask_of_pocket(b)) != 0;
  }

  /// Index of a real hand in the tree that is walked under a suit map.
  std::size_t tree_hand(Seat seat, Pocket pocket, const SuitMap& suits) const {
    return index_of_[seat].at(velmora::make_pocket(mapped(velmora::low_card(pocket), suits),
                                                   mapped(velmora::high_card(pocket), suits)));
  }

  const std::vector<float>& strategy_at(std::size_t node) {
    auto [entry, is_new] = strategies_.try_emplace(node);
    if (is_new) entry->second = solver_.average_strategy(node);
    return entry->second;
  }

  /// Sum over opposing hands of reach times the chips that the hand gains from them.
  double visit(std::size_t index, std::size_t hand, const std::vector<double>& reach,
               const SuitMap& suits) {
    const PlanNode& node = game_.nodes()[index];
    if (node.kind == NodeKind::kTerminal) return payoff(node, hand, reach);
    if (node.kind == NodeKind::kChance) return deal(node, hand, reach, suits);
    const std::vector<float>& strategy = strategy_at(index);
    const std::size_t hands = game_.num_hands(node.seat);
    if (node.seat != seat_) {
      double value = 0;
      for (std::size_t a = 0; a < node.actions.size(); ++a) {
        std::vector<double> child_reach = reach;
        for (std::size_t j = 0; j < reach.size(); ++j) {
          if (reach[j] == 0) continue;
          const std::size_t h = tree_hand(node.seat, opp(j), suits);
          child_reach[j] *= static_cast<double>(strategy[a * hands + h]);
        }
        value += visit(node.children[a], hand, child_reach, suits);
      }
      return value;
    }
    const std::size_t h = tree_hand(node.seat, own(hand), suits);
    std::vector<double> values;
    for (const auto child : node.children) values.push_back(visit(child, hand, reach, suits));
    const velmora::LockTable* lock = game_.find_node_lock(index);
    const bool locked = lock && !std::signbit((*lock)[h]);
    if (play_ == Play::kBestResponse && !locked) {
      return *std::max_element(values.begin(), values.end());
    }
    double value = 0;
    for (std::size_t a = 0; a < values.size(); ++a) {
      const float frequency =
          locked && play_ == Play::kBestResponse ? (*lock)[a * hands + h] : strategy[a * hands + h];
      value += values[a] * static_cast<double>(frequency);
    }
    return value;
  }

  /// Every card that neither the board nor the own hand holds; opposing hands with it drop out.
  double deal(const PlanNode& node, std::size_t hand, const std::vector<double>& reach,
              const SuitMap& suits) {
    double value = 0;
    for (CardCode card = 0; card < velmora::kNumCards; ++card) {
      if (std::count(board_.begin(), board_.end(), card)) continue;
      if (velmora::mask_of_pocket(own(hand)) & velmora::mask_of(card)) continue;
      std::vector<double> child_reach = reach;
      for (std::size_t j = 0; j < reach.size(); ++j) {
        if (velmora::mask_of_pocket(opp(j)) & velmora::mask_of(card)) child_reach[j] = 0;
      }
      const auto [child, child_suits] = child_for(node, card, suits);
      board_.push_back(card);
      value += visit(child, hand, child_reach, child_suits);
      board_.pop_back();
    }
    return value / static_cast<double>(velmora::kNumCards - board_.size() - 4);
  }

  /// The subtree that stands for a real card: its own, or that of a card of the same rank whose
  /// suit can be exchanged for it without changing the cards dealt so far.
  std::pair<std::size_t, SuitMap> child_for(const PlanNode& node, CardCode card,
                                            const SuitMap& suits) const {
    const CardCode tree_card = mapped(card, suits);
    const int suit = velmora::suit_of(tree_card);
    for (const int exchange : {suit, 0, 1, 2, 3}) {
      if (exchange != suit &&
          !(board_is_unchanged(suits, suit, exchange) && ranges_are_unchanged(suit, exchange))) {
        continue;
      }
      const CardCode wanted = velmora::make_card(velmora::rank_of(tree_card), exchange);
      for (std::size_t c = 0; c < node.children.size(); ++c) {
        if (node.actions[c].amount != wanted) continue;
        SuitMap child_suits = suits;
        for (int& s : child_suits) s = s == suit ? exchange : s == exchange ? suit : s;
        return {node.children[c], child_suits};
      }
    }
    throw std::logic_error("No subtree stands for a dealt card");
  }

  bool board_is_unchanged(const SuitMap& suits, int s, int t) const {
    CardMask before = 0;
    CardMask after = 0;
    for (const CardCode card : board_) {
      const CardCode c = mapped(card, suits);
      const int suit = velmora::suit_of(c);
      before |= velmora::mask_of(c);
      after |= velmora::mask_of(velmora::make_card(velmora::rank_of(c), suit == s   ? t
                                                                        : suit == t ? s
                                                                                    : suit));
    }
    return before == after;
  }

  bool ranges_are_unchanged(int s, int t) const {
    SuitMap exchange = {0, 1, 2, 3};
    std::swap(exchange[static_cast<std::size_t>(s)], exchange[static_cast<std::size_t>(t)]);
    for (const Seat seat : {velmora::kOop, velmora::kIp}) {
      for (velmora::CardCode a = 0; a < velmora::kNumCards; ++a) {
        for (velmora::CardCode b = 0; b < a; ++b) {
          const auto& weights = game_.cards().range_weights()[seat];
          if (velmora::get_weight(weights, a, b) !=
              velmora::get_weight(weights, mapped(a, exchange), mapped(b, exchange))) {
            return false;
          }
        }
      }
    }
    return true;
  }

  double payoff(const PlanNode& node, std::size_t hand, const std::vector<double>& reach) const {
    const velmora::GameSettings& settings = game_.settings();
    const double matched = settings.starting_pot + 2.0 * node.commit;
    if (node.last_action == ActionKind::kFold) {
      const double rake = std::min(settings.rake_cap, matched * settings.rake_fraction);
      const double amount = node.last_actor == seat_ ? -matched / 2 : matched / 2 - rake;
      return amount * std::accumulate(reach.begin(), reach.end(), 0.0);
    }
    const double rake = std::min(settings.rake_cap, node.pot * settings.rake_fraction);
    double value = 0;
    std::size_t runouts = 0;
    std::vector<CardCode> board = board_;
    run_out(board, 0, [&](const std::vector<CardCode>& full) {
      ++runouts;
      for (std::size_t j = 0; j < reach.size(); ++j) {
        if (reach[j] != 0) value += reach[j] * showdown(full, own(hand), opp(j), node.pot, rake);
      }
    });
    return runouts ? value / static_cast<double>(runouts) : 0.0;
  }

  /// Calls `on_board` for each completion of a board on which both seats have a hand.
  template <typename OnBoard>
  void run_out(std::vector<CardCode>& board, int from, const OnBoard& on_board) const {
    if (board.size() == 5) {
      CardMask mask = 0;
      for (const CardCode card : board) mask |= velmora::mask_of(card);
      for (const Seat seat : {velmora::kOop, velmora::kIp}) {
        const auto& pockets = game_.cards().pockets(seat);
        const bool any = std::any_of(pockets.begin(), pockets.end(), [mask](Pocket pocket) {
          return (velmora::mask_of_pocket(pocket) & mask) == 0;
        });
        if (!any) return;
      }
      on_board(board);
      return;
    }
    for (int card = from; card < velmora::kNumCards; ++card) {
      const auto code = static_cast<CardCode>(card);
      if (std::count(board.begin(), board.end(), code)) continue;
      board.push_back(code);
      run_out(board, card + 1, on_board);
      board.pop_back();
    }
  }

  static double showdown(const std::vector<CardCode>& board, Pocket own, Pocket opp, double pot,
                         double rake) {
    for (const CardCode card : board) {
      if ((velmora::mask_of_pocket(own) | velmora::mask_of_pocket(opp)) & velmora::mask_of(card)) {
        return 0;
      }
    }
    const auto mine = velmora::evaluate_hand(own, board);
    const auto theirs = velmora::evaluate_hand(opp, board);
    return mine > theirs ? pot / 2 - rake : mine < theirs ? -pot / 2 : -rake / 2;
  }

  const velmora::Game& game_;
  const velmora::DiscountedCfr& solver_;
  Seat seat_;
  Play play_;
  double total_weight_ = 0;
  std::vector<CardCode> board_;  ///< The real cards dealt so far.
  velmora::BySeat<std::map<Pocket, std::size_t>> index_of_;
  std::map<std::size_t, std::vector<float>> strategies_;
};

}  // namespace

std::vector<double> brute_force_values(const velmora::Game& game,
                                       const velmora::DiscountedCfr& solver, Seat seat, Play play) {
  BruteForce brute(game, solver, seat, play);
  std::vector<double> values(game.num_hands(seat));
  for (std::size_t h = 0; h < values.size(); ++h) values[h] = brute.value_of(h);
  return values;
}

double brute_force_gain(const velmora::Game& game, const velmora::DiscountedCfr& solver, Seat seat,
                        Play play) {
  const std::vector<double> values = brute_force_values(game, solver, seat, play);
  double gain = 0;
  for (std::size_t h = 0; h < values.size(); ++h) {
    gain += static_cast<double>(game.cards().hand_weights(seat)[h]) * values[h];
  }
  return gain;
}

}  // namespace velmora_test
