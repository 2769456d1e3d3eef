// The betting tree of one street in the form that the traversals run along. Cards change nothing
// about betting, so the tree below every card that one chance node deals has the same shape.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "game.h"
#include "payoffs.h"

namespace velmora {

struct StreetShape {
  enum class Kind : std::uint8_t {
    kDecision,
    kDeal,  ///< A chance node; the street ends.
    kFold,
    kShowdown,  ///< On a complete board.
    kAllIn,     ///< A showdown with cards to come.
  };

  /// One node. Nodes stand in level order, so that the children of a node are neighbours.
  struct Node {
    Kind kind = Kind::kDecision;
    Seat seat = kOop;               ///< Who acts.
    bool raked = false;             ///< Of a showdown or all-in.
    std::uint32_t num_actions = 0;  ///< Of a decision; else 0.
    std::uint32_t first_child = 0;  ///< Place in this list.
    NodeIndex offset = 0;           ///< On the river: node index less that of the first node.
    std::uint32_t deal = 0;         ///< Place of a deal in `deals`.
    BySeat<PotShares> shares;       ///< What a terminal node pays to a seat.
  };

  /// Nodes of a street before the river are as far apart as the cards below them ask, and that
  /// differs between boards; on the river they follow each other.
  bool river = false;
  /// On the river: offsets of a seat's first and last decision, whose tables are contiguous.
  struct Decisions {
    NodeIndex first = 0;
    NodeIndex last = 0;
    bool any = false;
  };
  BySeat<Decisions> decisions;
  std::vector<Node> nodes;
  /// For each deal the tree below any of its cards.
  std::vector<StreetShape> deals;
};

/// A node of a street by itself: its kind, who acts, and what it pays if it is terminal.
StreetShape::Node shape_node(const Game& game, const PlanNode& plan_node);

/// The shape of the tree from a node on.
StreetShape street_shape(const Game& game, NodeIndex root);

/// min(cap, pot * fraction), in chips. A cap of 0 means no rake.
double rake_of(const Game& game, double pot);

}  // namespace velmora
