#include "betting_rules.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace velmora {
namespace {

constexpr std::int32_t kMostChips = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeastChips = std::numeric_limits<std::int32_t>::min();

std::int32_t saturate(std::int64_t chips) {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(chips, kLeastChips, kMostChips));
}

/// The nearest whole number of chips, a half away from zero. What no chip count can hold, a
/// not-a-number value included, becomes the largest one.
std::int32_t round_chips(double chips) {
  if (!(chips < static_cast<double>(kMostChips))) return kMostChips;
  if (chips <= static_cast<double>(kLeastChips)) return kLeastChips;
  return static_cast<std::int32_t>(std::llround(chips));
}

std::int32_t add_chips(std::int32_t a, std::int32_t b) {
  return saturate(std::int64_t{a} + b);
}

std::int32_t clamp_to_legal(std::int32_t to, const SizingContext& c) {
  return std::max(c.min_raise_to, std::min(to, c.all_in_to));
}

bool is_aggressive(const Action& action) {
  return (action.kind == ActionKind::kBet || action.kind == ActionKind::kRaise ||
          action.kind == ActionKind::kAllIn) &&
         action.amount >= 1;
}

void append_bets(std::vector<Action>& actions, const std::vector<BetSize>& sizes,
                 const SizingContext& c) {
  actions.push_back({ActionKind::kCheck, 0});
  for (const BetSize& size : sizes) {
    const std::int32_t to = resolve_size(size, c);
    actions.push_back({to == c.all_in_to ? ActionKind::kAllIn : ActionKind::kBet, to});
  }
}

void append_raises(std::vector<Action>& actions, const std::vector<BetSize>& sizes,
                   const SizingContext& c, std::int32_t raises) {
  for (const BetSize& size : sizes) {
    if (size.kind == BetSizeKind::kChips && size.raise_cap >= 1 && raises >= size.raise_cap) {
      continue;
    }
    // A share of the pot is what a raise adds to the bet that is faced.
    const std::int32_t to =
        size.kind == BetSizeKind::kPotPercent
            ? clamp_to_legal(add_chips(c.street_bet, round_chips(c.pot_after_call * size.value)), c)
            : resolve_size(size, c);
    actions.push_back({to == c.all_in_to ? ActionKind::kAllIn : ActionKind::kRaise, to});
  }
}

void add_all_in_by_threshold(std::vector<Action>& actions, double threshold,
                             const SizingContext& c) {
  const bool has_all_in = std::any_of(actions.begin(), actions.end(), [](const Action& action) {
    return action.kind == ActionKind::kAllIn;
  });
  if (has_all_in || c.all_in_to < 1) return;
  if (c.all_in_to <= round_chips(c.pot_after_call * threshold)) {
    actions.push_back({ActionKind::kAllIn, c.all_in_to});
  }
}

void clamp_and_force(std::vector<Action>& actions, const GameSettings& settings,
                     const BuildContext& context, const SizingContext& c) {
  for (Action& action : actions) {
    if (action.kind != ActionKind::kBet && action.kind != ActionKind::kRaise) continue;
    const std::int32_t to = clamp_to_legal(action.amount, c);
    const double pot_after =
        static_cast<double>(context.pot) + 2.0 * (static_cast<double>(to) - c.street_bet);
    const std::int32_t limit =
        add_chips(round_chips(pot_after * settings.force_all_in_threshold), c.street_bet);
    action = c.all_in_to <= limit || to == c.all_in_to ? Action{ActionKind::kAllIn, c.all_in_to}
                                                       : Action{action.kind, to};
  }
}

void sort_actions(std::vector<Action>& actions) {
  const auto first = std::stable_partition(actions.begin(), actions.end(),
                                           [](const Action& a) { return !is_aggressive(a); });
  std::sort(first, actions.end(), [](const Action& x, const Action& y) {
    return x.amount != y.amount ? x.amount < y.amount : x.kind < y.kind;
  });
}

void merge_actions(std::vector<Action>& actions, double threshold, const SizingContext& c) {
  if (c.pot_after_call <= 0) return;
  const auto share = [&c](std::int32_t to) {
    return (static_cast<double>(to) - c.street_bet) / c.pot_after_call;
  };
  std::int32_t kept = kMostChips;
  std::vector<Action> merged;
  for (auto action = actions.rbegin(); action != actions.rend(); ++action) {
    if (is_aggressive(*action)) {
      const double reduced = (share(kept) - threshold) / (1 + threshold) * 0.999999999999;
      if (!(reduced > share(action->amount))) continue;
      kept = action->amount;
    }
    merged.push_back(*action);
  }
  actions.assign(merged.rbegin(), merged.rend());
}

PlanPoint child_by_action(const PlanPoint& parent, const Action& action, const SizingContext& c) {
  PlanPoint child = parent;
  child.node.actions = {};
  child.node.children = {};
  BuildContext& context = child.context;
  const Seat me = parent.node.seat;
  const Seat opponent = opponent_of(me);
  context.last_edge = action.kind;
  context.last_action = action.kind;
  context.last_actor = me;
  context.aggressor = kOop;

  const auto end_street = [&child](NodeKind kind, bool runout) {
    child.node.kind = kind;
    child.node.seat = kOop;
    child.node.runout = runout;
    if (child.node.street < kRiver) ++child.node.street;
  };

  switch (action.kind) {
    case ActionKind::kFold: child.node.kind = NodeKind::kTerminal; break;
    case ActionKind::kCheck:
      if (me == kOop) {
        child.node.seat = kIp;
      } else {
        end_street(parent.node.street < kRiver ? NodeKind::kChance : NodeKind::kTerminal, false);
      }
      break;
    case ActionKind::kCall: {
      context.raises = 0;
      context.street_bet = 0;
      context.aggressor = opponent;
      context.stacks[me] = add_chips(context.stacks[me], -action.amount);
      context.pot = add_chips(context.pot, action.amount);
      context.invested[me] = add_chips(context.invested[me], action.amount);
      child.node.commit = add_chips(child.node.commit, action.amount);
      const bool stacks_in = context.all_in || context.stacks[0] < 1 || context.stacks[1] < 1;
      if (parent.node.street == kRiver) {
        end_street(NodeKind::kTerminal, false);
      } else if (stacks_in) {
        context.all_in = true;
        end_street(NodeKind::kTerminal, true);
      } else {
        end_street(NodeKind::kChance, false);
      }
      break;
    }
    case ActionKind::kBet:
    case ActionKind::kRaise:
    case ActionKind::kAllIn: {
      ++context.raises;
      context.all_in = action.kind == ActionKind::kAllIn;
      const std::int32_t increment = std::max(0, add_chips(action.amount, -c.street_bet));
      const std::int32_t call_part = std::min(std::max(0, c.to_call), context.stacks[me]);
      const std::int32_t chips =
          std::max(0, std::min(add_chips(increment, call_part), context.stacks[me]));
      context.stacks[me] -= chips;
      context.invested[me] = add_chips(context.invested[me], chips);
      context.pot = add_chips(context.pot, chips);
      context.street_bet = action.amount;
      child.node.commit = add_chips(child.node.commit, call_part);
      child.node.seat = opponent;
      break;
    }
    case ActionKind::kNone:
    case ActionKind::kChance: break;
  }

  child.node.pot = context.pot;
  child.node.invested = context.invested;
  child.node.last_action = context.last_action;
  child.node.last_actor = context.last_actor;
  return child;
}

PlanPoint child_by_card(const PlanPoint& parent, CardCode card) {
  PlanPoint child = parent;
  child.node.actions = {};
  child.node.children = {};
  BuildContext& context = child.context;
  context.last_edge = ActionKind::kChance;
  context.dead_cards |= mask_of(card);
  const bool deals_turn = context.turn == kNoCard;
  (deals_turn ? context.turn : context.river) = card;
  child.node.turn = context.turn;
  child.node.river = context.river;
  child.node.pot = context.pot;
  child.node.invested = context.invested;
  child.node.last_action = context.last_action;
  child.node.last_actor = context.last_actor;
  child.node.seat = kOop;
  if (parent.node.kind == NodeKind::kChance) {
    child.node.kind = NodeKind::kDecision;
    child.node.street = deals_turn ? kTurn : kRiver;
  } else {
    // A run-out node stands on the street that it deals, so what follows a dealt turn is the river.
    child.node.street = kRiver;
    child.node.runout = context.river == kNoCard;
  }
  return child;
}

}  // namespace

PlanPoint root_point(const GameSettings& settings, const Board& board) {
  PlanPoint root;
  root.node.street = settings.street;
  root.node.pot = settings.starting_pot;
  root.node.turn = board.turn;
  root.node.river = board.river;
  BuildContext& context = root.context;
  context.stacks = {settings.effective_stack, settings.effective_stack};
  context.pot = settings.starting_pot;
  for (const CardCode card : board.flop) context.dead_cards |= mask_of(card);
  context.dead_cards |= mask_of(board.turn) | mask_of(board.river);
  context.turn = board.turn;
  context.river = board.river;
  return root;
}

SizingContext sizing_context(const GameSettings& settings, const PlanPoint& point) {
  const BuildContext& context = point.context;
  const Seat me = point.node.seat;
  const Seat opponent = opponent_of(me);
  SizingContext c;
  c.street_bet = context.street_bet;
  c.to_call = saturate(std::int64_t{context.stacks[me]} - context.stacks[opponent]);
  c.pot_after_call = saturate(std::int64_t{settings.starting_pot} +
                              2 * (std::int64_t{point.node.commit} + c.to_call));
  c.all_in_to = add_chips(c.street_bet, context.stacks[opponent]);
  c.min_raise_to =
      std::max(1, add_chips(c.street_bet, std::min(c.to_call, context.stacks[opponent])));
  c.streets_left = 3 - point.node.street;
  c.spr =
      c.pot_after_call > 0 ? static_cast<double>(context.stacks[opponent]) / c.pot_after_call : 0.0;
  return c;
}

std::int32_t resolve_size(const BetSize& size, const SizingContext& c) {
  switch (size.kind) {
    case BetSizeKind::kPotPercent:
      return clamp_to_legal(round_chips(c.pot_after_call * size.value), c);
    case BetSizeKind::kRaiseMultiple:
      return clamp_to_legal(round_chips(c.street_bet * size.value), c);
    case BetSizeKind::kChips: return clamp_to_legal(add_chips(size.chips, c.street_bet), c);
    case BetSizeKind::kGeometric: {
      const std::int32_t streets = size.geometric_streets ? size.geometric_streets : c.streets_left;
      if (streets <= 0) return c.min_raise_to;
      double ratio = (std::pow(2 * c.spr + 1, 1.0 / streets) - 1) * 0.5;
      if (std::isfinite(size.max_pot_fraction)) ratio = std::min(size.max_pot_fraction, ratio);
      return clamp_to_legal(round_chips(c.pot_after_call * ratio), c);
    }
    case BetSizeKind::kAllIn: break;
  }
  return c.all_in_to;
}

std::vector<Action> legal_actions(const GameSettings& settings, const PlanPoint& point) {
  const BuildContext& context = point.context;
  const Seat me = point.node.seat;
  if (point.node.street > kRiver) throw std::logic_error("Unknown street");
  const StreetSizing& sizing = settings.sizing[point.node.street];
  const SizingContext c = sizing_context(settings, point);

  // Step 1. The list by what is faced: a lead into aggression, an open pot, or a bet.
  std::vector<Action> actions;
  actions.reserve(sizing.seats[me].bets.size() + sizing.seats[me].raises.size() + 3);
  const bool leads =
      (context.last_edge == ActionKind::kChance && context.aggressor != kOop) ||
      (context.last_edge == ActionKind::kNone && point.node.street == settings.street);
  if (sizing.donk && me == kOop && leads) {
    append_bets(actions, *sizing.donk, c);
  } else if (context.last_edge == ActionKind::kNone || context.last_edge == ActionKind::kCheck ||
             context.last_edge == ActionKind::kChance) {
    append_bets(actions, sizing.seats[me].bets, c);
  } else {
    actions.push_back({ActionKind::kFold, 0});
    actions.push_back({ActionKind::kCall, std::max(0, std::min(c.to_call, context.stacks[me]))});
    if (!context.all_in) append_raises(actions, sizing.seats[me].raises, c, context.raises);
  }

  // Step 2. The all-in of the add-all-in rule.
  if (!context.all_in && settings.jam_threshold[me] > 0) {
    add_all_in_by_threshold(actions, settings.jam_threshold[me], c);
  }

  // Step 3. Amounts within the rules, in order, without near duplicates.
  clamp_and_force(actions, settings, context, c);
  sort_actions(actions);
  merge_actions(actions, settings.merge_threshold, c);
  return actions;
}

std::vector<CardCode> chance_cards(const BuildContext& context, const CardContext& cards) {
  if (context.turn != kNoCard && context.river != kNoCard) return {};
  const bool deals_turn = context.turn == kNoCard;
  const CardCode preset = deals_turn ? cards.board().turn : cards.board().river;
  if (preset != kNoCard) {
    if (context.dead_cards & mask_of(preset)) return {};
    return {preset};
  }
  CardMask dead = context.dead_cards;
  const SuitIsomorphism& isomorphism = cards.isomorphism();
  for (const CardCode folded :
       deals_turn ? isomorphism.turn_cards : isomorphism.river_cards[suit_of(context.turn)]) {
    dead |= mask_of(folded);
  }
  std::vector<CardCode> dealt;
  dealt.reserve(kNumCards);
  for (CardCode card = 0; card < kNumCards; ++card) {
    if (!(dead & mask_of(card))) dealt.push_back(card);
  }
  return dealt;
}

std::vector<PlanChild> expand(const GameSettings& settings, const CardContext& cards,
                              const PlanPoint& point) {
  std::vector<PlanChild> children;
  if (point.node.kind == NodeKind::kDecision) {
    const SizingContext c = sizing_context(settings, point);
    const std::vector<Action> actions = legal_actions(settings, point);
    children.reserve(actions.size());
    for (const Action& action : actions) {
      children.push_back({action, child_by_action(point, action, c)});
    }
  } else if (point.node.kind == NodeKind::kChance || point.node.runout) {
    const std::vector<CardCode> dealt = chance_cards(point.context, cards);
    children.reserve(dealt.size());
    for (const CardCode card : dealt) {
      children.push_back({{ActionKind::kChance, card}, child_by_card(point, card)});
    }
  }
  return children;
}

}  // namespace velmora
