// A betting tree found the slow way: every node is described anew from the list of all that
// happened before it, in whole chips of 64 bits, one node after the other.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <set>
#include <utility>
#include <vector>

#include "action_plan.h"

namespace slow_tree {

using velmora::Action;
using velmora::ActionKind;
using velmora::BetSize;
using velmora::BetSizeKind;
using velmora::CardCode;
using velmora::kIp;
using velmora::kNoCard;
using velmora::kOop;
using velmora::NodeKind;
using velmora::Seat;

struct Node {
  NodeKind kind = NodeKind::kDecision;
  Seat seat = kOop;
  int street = 0;
  bool runout = false;
  std::int64_t invested[2] = {};
  ActionKind last_action = ActionKind::kNone;
  Seat last_actor = kOop;
  CardCode turn = kNoCard;
  CardCode river = kNoCard;
  std::vector<Action> actions;
  std::vector<std::size_t> children;
};

class Tree {
 public:
  Tree(const velmora::GameSettings& settings, const velmora::CardContext& cards)
      : settings_(settings), cards_(cards) {
    build();
  }
  const std::vector<Node>& nodes() const { return nodes_; }

 private:
  /// What the table looks like after all that happened.
  struct Table {
    Node node;
    std::int64_t stack[2];
    std::int64_t in_street[2] = {};  ///< Chips of this street.
    int raises = 0;                  ///< Of this street.
    bool faces_bet = false;
    bool all_in = false;
    bool may_lead = false;  ///< OOP opens the street that it called into, or the tree.
  };

  static bool is_bet(ActionKind kind) {
    return kind == ActionKind::kBet || kind == ActionKind::kRaise || kind == ActionKind::kAllIn;
  }

  Table replay() const {
    Table t;
    t.stack[0] = t.stack[1] = settings_.effective_stack;
    t.node.street = settings_.street;
    t.node.turn = cards_.board().turn;
    t.node.river = cards_.board().river;
    t.may_lead = true;
    bool called_by_oop = false;  ///< Whether the last street ended by a call of OOP.
    for (const Action& step : past_) {
      Node& node = t.node;
      t.may_lead = false;
      if (step.kind == ActionKind::kChance) {
        const bool turn = node.turn == kNoCard;
        (turn ? node.turn : node.river) = static_cast<CardCode>(step.amount);
        t.in_street[0] = t.in_street[1] = 0;
        t.raises = 0;
        t.may_lead = called_by_oop;
        if (node.kind == NodeKind::kTerminal) {
          node.street = 2;
          node.runout = node.river == kNoCard;
        } else {
          node.kind = NodeKind::kDecision;
          node.street = turn ? 1 : 2;
        }
        continue;
      }
      const Seat me = node.seat;
      const Seat other = me == kOop ? kIp : kOop;
      node.last_action = step.kind;
      node.last_actor = me;
      called_by_oop = false;
      t.faces_bet = false;
      if (step.kind == ActionKind::kFold) {
        node.kind = NodeKind::kTerminal;
        continue;
      }
      if (step.kind == ActionKind::kCheck && me == kOop) {
        node.seat = kIp;
        continue;
      }
      if (is_bet(step.kind)) {
        put_in(t, me, step.amount - t.in_street[me]);
        ++t.raises;
        t.all_in = step.kind == ActionKind::kAllIn;
        t.faces_bet = true;
        node.seat = other;
        continue;
      }
      // A call, or the second check: the street ends.
      if (step.kind == ActionKind::kCall) {
        put_in(t, me, step.amount);
        called_by_oop = me == kOop;
        t.all_in = t.all_in || t.stack[0] < 1 || t.stack[1] < 1;
      }
      node.seat = kOop;
      const bool more_cards = node.street < 2;
      node.runout = more_cards && step.kind == ActionKind::kCall && t.all_in;
      node.kind = more_cards && !node.runout ? NodeKind::kChance : NodeKind::kTerminal;
      if (more_cards) ++node.street;
    }
    return t;
  }

  static void put_in(Table& t, Seat seat, std::int64_t chips) {
    chips = std::max<std::int64_t>(0, std::min(chips, t.stack[seat]));
    t.stack[seat] -= chips;
    t.in_street[seat] += chips;
    t.node.invested[seat] += chips;
  }

  std::vector<Action> decisions(const Table& t) const {
    const Seat me = t.node.seat;
    const Seat other = me == kOop ? kIp : kOop;
    const velmora::StreetSizing& sizes = settings_.sizing[static_cast<std::size_t>(t.node.street)];
    const std::int64_t bet = std::max(t.in_street[0], t.in_street[1]);
    const std::int64_t behind = t.node.invested[other] - t.node.invested[me];
    const std::int64_t called_pot =
        settings_.starting_pot + 2 * std::max(t.node.invested[0], t.node.invested[1]);
    const std::int64_t most = bet + t.stack[other];
    const std::int64_t least = std::max<std::int64_t>(1, bet + std::min(behind, t.stack[other]));
    const auto held = [&](std::int64_t to) { return std::max(least, std::min(to, most)); };
    const auto chips_of = [](double x) { return x < 4e9 ? std::llround(x) : 4'000'000'000LL; };

    const auto to_of = [&](const BetSize& size) -> std::int64_t {
      const auto pot = static_cast<double>(called_pot);
      switch (size.kind) {
        case BetSizeKind::kAllIn: return most;
        case BetSizeKind::kChips: return held(bet + size.chips);
        case BetSizeKind::kRaiseMultiple:
          return held(chips_of(static_cast<double>(bet) * size.value));
        case BetSizeKind::kPotPercent:
          return held((t.faces_bet ? bet : 0) + chips_of(pot * size.value));
        case BetSizeKind::kGeometric: break;
      }
      const int streets = size.geometric_streets ? size.geometric_streets : 3 - t.node.street;
      const double spr = called_pot > 0 ? static_cast<double>(t.stack[other]) / pot : 0.0;
      const double share = (std::pow(2 * spr + 1, 1.0 / streets) - 1) / 2;
      return held(chips_of(pot * std::min(share, size.max_pot_fraction)));
    };

    // What does not bet comes first; bets by amount and kind.
    std::vector<Action> list;
    std::vector<Action> bets;
    const auto add = [&](const BetSize& size) {
      const std::int64_t to = to_of(size);
      const ActionKind kind = to == most    ? ActionKind::kAllIn
                              : t.faces_bet ? ActionKind::kRaise
                                            : ActionKind::kBet;
      bets.push_back({kind, static_cast<std::int32_t>(to)});
    };
    if (t.faces_bet) {
      list = {{ActionKind::kFold, 0},
              {ActionKind::kCall, static_cast<std::int32_t>(std::min(behind, t.stack[me]))}};
      for (const BetSize& size : sizes.seats[me].raises) {
        const bool capped = size.raise_cap > 0 && t.raises >= size.raise_cap;
        if (!t.all_in && !capped) add(size);
      }
    } else {
      list = {{ActionKind::kCheck, 0}};
      const bool leads = me == kOop && t.may_lead && sizes.donk;
      for (const BetSize& size : leads ? *sizes.donk : sizes.seats[me].bets) add(size);
    }
    const double jam = settings_.jam_threshold[me];
    const bool has_all_in = std::any_of(
        bets.begin(), bets.end(), [](const Action& a) { return a.kind == ActionKind::kAllIn; });
    if (!t.all_in && jam > 0 && !has_all_in && most >= 1 &&
        most <= chips_of(static_cast<double>(called_pot) * jam)) {
      bets.push_back({ActionKind::kAllIn, static_cast<std::int32_t>(most)});
    }

    std::multiset<std::pair<std::int64_t, ActionKind>> sorted;
    const std::int64_t pot_now = settings_.starting_pot + t.node.invested[0] + t.node.invested[1];
    for (Action action : bets) {
      const double pot_after = static_cast<double>(pot_now + 2 * (action.amount - bet));
      if (most <= bet + chips_of(pot_after * settings_.force_all_in_threshold)) {
        action = {ActionKind::kAllIn, static_cast<std::int32_t>(most)};
      }
      if (action.amount < 1) {
        list.push_back(action);
      } else {
        sorted.emplace(action.amount, action.kind);
      }
    }

    // From the greatest down, what is too close to the one kept before it goes.
    std::vector<Action> kept;
    double above = (2147483647.0 - static_cast<double>(bet)) / static_cast<double>(called_pot);
    for (auto it = sorted.rbegin(); it != sorted.rend(); ++it) {
      const double share = static_cast<double>(it->first - bet) / static_cast<double>(called_pot);
      const double merge = settings_.merge_threshold;
      if (called_pot > 0 && !((above - merge) / (1 + merge) * 0.999999999999 > share)) continue;
      above = share;
      kept.push_back({it->second, static_cast<std::int32_t>(it->first)});
    }
    list.insert(list.end(), kept.rbegin(), kept.rend());
    return list;
  }

  std::vector<Action> deals(const Table& t) const {
    const Node& node = t.node;
    std::vector<Action> list;
    if (node.river != kNoCard) return list;
    const velmora::SuitIsomorphism& same = cards_.isomorphism();
    const std::vector<CardCode>& folded =
        node.turn == kNoCard ? same.turn_cards : same.river_cards[node.turn % 4];
    for (CardCode card = 0; card < 52; ++card) {
      const auto& flop = cards_.board().flop;
      const bool dead = std::count(flop.begin(), flop.end(), card) > 0 || card == node.turn;
      const bool skipped = std::count(folded.begin(), folded.end(), card) > 0;
      if (!dead && !skipped) list.push_back({ActionKind::kChance, card});
    }
    return list;
  }

  void build() {
    const Table table = replay();
    const std::size_t index = nodes_.size();
    nodes_.push_back(table.node);
    std::vector<Action> actions;
    if (table.node.kind == NodeKind::kDecision) {
      actions = decisions(table);
    } else if (table.node.kind == NodeKind::kChance || table.node.runout) {
      actions = deals(table);
    }
    for (const Action& action : actions) {
      nodes_[index].actions.push_back(action);
      nodes_[index].children.push_back(nodes_.size());
      past_.push_back(action);
      build();
      past_.pop_back();
    }
  }

  const velmora::GameSettings& settings_;
  const velmora::CardContext& cards_;
  std::vector<Action> past_;
  std::vector<Node> nodes_;
};

}  // namespace slow_tree
