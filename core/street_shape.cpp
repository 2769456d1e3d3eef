#include "street_shape.h"

#include <algorithm>

namespace velmora {
namespace {

using Kind = StreetShape::Kind;

/// Below this a rake counts as none.
constexpr double kLeastRake = 1e-9;

PotShares pot_shares(const Game& game, double pot, double rake) {
  const double weight = game.cards().total_matchup_weight();
  if (!(weight > 0)) return {};
  return {(pot / 2 - rake) / weight, -(pot / 2) / weight, -(rake / 2) / weight};
}

Kind kind_of(const PlanNode& node) {
  switch (node.kind) {
    case NodeKind::kDecision: return Kind::kDecision;
    case NodeKind::kChance: return Kind::kDeal;
    case NodeKind::kTerminal: break;
  }
  if (node.last_action == ActionKind::kFold) return Kind::kFold;
  return node.turn != kNoCard && node.river != kNoCard ? Kind::kShowdown : Kind::kAllIn;
}

}  // namespace

double rake_of(const Game& game, double pot) {
  return std::min(game.settings().rake_cap, pot * game.settings().rake_fraction);
}

StreetShape::Node shape_node(const Game& game, const PlanNode& plan_node) {
  StreetShape::Node node;
  node.kind = kind_of(plan_node);
  node.seat = plan_node.seat;
  // The chips that were matched: a bet that was not called is no part of them.
  const double matched = static_cast<double>(game.settings().starting_pot) + 2.0 * plan_node.commit;
  const double pot = plan_node.pot;
  switch (node.kind) {
    case Kind::kDecision:
      node.num_actions = static_cast<std::uint32_t>(plan_node.actions.size());
      break;
    case Kind::kDeal: break;
    case Kind::kFold: {
      const PotShares shares = pot_shares(game, matched, rake_of(game, matched));
      for (const Seat seat : {kOop, kIp}) {
        const double amount = plan_node.last_actor == seat ? shares.lose : shares.win;
        node.shares[seat].win = static_cast<double>(static_cast<float>(amount));
      }
      break;
    }
    case Kind::kShowdown:
    case Kind::kAllIn:
      node.raked = rake_of(game, node.kind == Kind::kAllIn ? pot : matched) > kLeastRake;
      node.shares.fill(pot_shares(game, pot, node.raked ? rake_of(game, pot) : 0));
      break;
  }
  return node;
}

StreetShape street_shape(const Game& game, NodeIndex root) {
  const std::span<const PlanNode> plan = game.nodes();
  StreetShape shape;
  shape.river = plan[root].river != kNoCard;
  shape.nodes.emplace_back();
  for (std::size_t i = 0; i < shape.nodes.size(); ++i) {
    const NodeIndex offset = shape.nodes[i].offset;
    const PlanNode& plan_node = plan[root + offset];
    StreetShape::Node node = shape_node(game, plan_node);
    node.offset = offset;
    if (node.kind == Kind::kDecision) {
      node.first_child = static_cast<std::uint32_t>(shape.nodes.size());
      for (const NodeIndex child : plan_node.children) {
        shape.nodes.emplace_back().offset = child - root;
      }
    } else if (node.kind == Kind::kDeal) {
      node.deal = static_cast<std::uint32_t>(shape.deals.size());
      shape.deals.push_back(plan_node.children.empty()
                                ? StreetShape{}
                                : street_shape(game, plan_node.children.front()));
    }
    shape.nodes[i] = node;
  }
  if (!shape.river) return shape;
  for (const StreetShape::Node& node : shape.nodes) {
    if (node.kind != Kind::kDecision || node.num_actions == 0) continue;
    StreetShape::Decisions& own = shape.decisions[node.seat];
    own.first = own.any ? std::min(own.first, node.offset) : node.offset;
    own.last = std::max(own.last, node.offset);
    own.any = true;
  }
  return shape;
}

}  // namespace velmora
