// The rules of the game tree: how a size becomes chips, which actions a node has, when a street
// ends, which cards are dealt.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "action_plan.h"

namespace velmora {

/// The running state of one path down the tree.
struct BuildContext {
  ActionKind last_edge = ActionKind::kNone;  ///< Edge into the node, dealt cards included.
  std::int32_t raises = 0;                   ///< Bets and raises on this street.
  bool all_in = false;                       ///< An all-in is pending or done.
  Seat aggressor = kOop;  ///< After a call: the seat that was called; OOP in every other case.
  std::array<std::int32_t, 2> stacks{};  ///< By seat: chips left.
  std::int32_t street_bet = 0;           ///< The street total that a seat must match.
  std::array<std::int32_t, 2> invested{};
  std::int32_t pot = 0;
  Seat last_actor = kOop;
  ActionKind last_action = ActionKind::kNone;
  CardMask dead_cards = 0;
  CardCode turn = kNoCard;
  CardCode river = kNoCard;
};

/// A node before it has its place in the list, with the state of the path to it.
struct PlanPoint {
  PlanNode node;
  BuildContext context;
};

struct PlanChild {
  Action action;
  PlanPoint point;
};

/// What a size resolves against at a decision node. All amounts in chips.
struct SizingContext {
  std::int32_t pot_after_call = 0;
  std::int32_t street_bet = 0;
  std::int32_t to_call = 0;
  std::int32_t all_in_to = 0;     ///< No bet goes above what the opponent can match.
  std::int32_t min_raise_to = 0;  ///< A raise at least repeats the last increment.
  std::int32_t streets_left = 0;
  double spr = 0;  ///< The opponent's stack over the pot after a call.
};

PlanPoint root_point(const GameSettings& settings, const Board& board);

SizingContext sizing_context(const GameSettings& settings, const PlanPoint& point);
/// The street total that a size stands for. Sizes beyond 32 bits become the all-in.
std::int32_t resolve_size(const BetSize& size, const SizingContext& context);
/// The actions of a decision node, in tree order. Throws `std::logic_error` on an unknown street.
std::vector<Action> legal_actions(const GameSettings& settings, const PlanPoint& point);
/// The cards that a chance or run-out node deals, ascending, without those that suit symmetry
/// folds into another one.
std::vector<CardCode> chance_cards(const BuildContext& context, const CardContext& cards);
/// The children of any node, in order; none for a leaf.
std::vector<PlanChild> expand(const GameSettings& settings, const CardContext& cards,
                              const PlanPoint& point);

}  // namespace velmora
