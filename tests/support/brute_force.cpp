#include "brute_force.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <stdexcept>

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

class BruteForce {
 public:
  BruteForce(const velmora::Game& game, const velmora::DiscountedCfr& solver, Seat seat, Play play)
      : game_(game), solver_(solver), seat_(seat), play_(play) {
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
    return visit(0, hand, reach) / total_weight_;
  }

 private:
  Pocket own(std::size_t h) const { return game_.cards().pockets(seat_)[h]; }
  Pocket opp(std::size_t h) const { return game_.cards().pockets(velmora::opponent_of(seat_))[h]; }
  static bool masks_meet(Pocket a, Pocket b) {
    return (velmora::mask_of_pocket(a) & velmora::mask_of_pocket(b)) != 0;
  }

  const std::vector<float>& strategy_at(std::size_t node) {
    auto [entry, is_new] = strategies_.try_emplace(node);
    if (is_new) entry->second = solver_.average_strategy(node);
    return entry->second;
  }

  /// Sum over opposing hands of reach times the chips that the hand gains from them.
  double visit(std::size_t index, std::size_t hand, const std::vector<double>& reach) {
    const PlanNode& node = game_.nodes()[index];
    if (node.kind == NodeKind::kTerminal) return payoff(node, hand, reach);
    if (node.kind == NodeKind::kChance) return deal(node, hand, reach);
    const std::vector<float>& strategy = strategy_at(index);
    const std::size_t hands = game_.num_hands(node.seat);
    if (node.seat != seat_) {
      double value = 0;
      for (std::size_t a = 0; a < node.actions.size(); ++a) {
        std::vector<double> child_reach = reach;
        for (std::size_t j = 0; j < reach.size(); ++j) {
          if (reach[j] == 0) continue;
          child_reach[j] *= static_cast<double>(strategy[a * hands + j]);
        }
        value += visit(node.children[a], hand, child_reach);
      }
      return value;
    }
    std::vector<double> values;
    for (const auto child : node.children) values.push_back(visit(child, hand, reach));
    const velmora::LockTable* lock = game_.find_node_lock(index);
    const bool locked = lock && !std::signbit((*lock)[hand]);
    if (play_ == Play::kBestResponse && !locked) {
      return *std::max_element(values.begin(), values.end());
    }
    double value = 0;
    for (std::size_t a = 0; a < values.size(); ++a) {
      const float frequency = locked && play_ == Play::kBestResponse ? (*lock)[a * hands + hand]
                                                                     : strategy[a * hands + hand];
      value += values[a] * static_cast<double>(frequency);
    }
    return value;
  }

  /// Every card that neither the board nor the own hand holds; opposing hands with it drop out.
  double deal(const PlanNode& node, std::size_t hand, const std::vector<double>& reach) {
    double value = 0;
    for (std::size_t c = 0; c < node.children.size(); ++c) {
      const auto card = static_cast<CardCode>(node.actions[c].amount);
      if (velmora::mask_of_pocket(own(hand)) & velmora::mask_of(card)) continue;
      std::vector<double> child_reach = reach;
      for (std::size_t j = 0; j < reach.size(); ++j) {
        if (velmora::mask_of_pocket(opp(j)) & velmora::mask_of(card)) child_reach[j] = 0;
      }
      board_.push_back(card);
      value += visit(node.children[c], hand, child_reach);
      board_.pop_back();
    }
    return value / static_cast<double>(velmora::kNumCards - board_.size() - 4);
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
  std::map<std::size_t, std::vector<float>> strategies_;
};

}  // namespace

std::vector<double> brute_force_values(const velmora::Game& game,
                                       const velmora::DiscountedCfr& solver, Seat seat, Play play) {
  if (!game.cards().isomorphism().turn_cards.empty()) {
    throw std::invalid_argument("The tree must hold every deal");
  }
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
