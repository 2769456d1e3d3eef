// A node of a result: whether there is one to answer for, how it is reached, and how the solver's
// values there become chips.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "discounted_cfr.h"
#include "game.h"
#include "solve_session.h"

namespace velmora_app {

/// Weights and frequencies that are not finite or not above 0 count for nothing.
inline bool counts(float weight) {
  return std::isfinite(weight) && weight > 0.0F;
}

/// Writes the frequencies of `raw` over `frequencies`: what is missing, not finite or negative
/// counts 0, and the list adds up to 1; a list of zeros becomes uniform.
void normalize_frequencies(std::span<const float> raw, std::span<float> frequencies);

/// A node of the game, or null.
inline const velmora::PlanNode* node_at(const SolvedSpot& spot, std::uint64_t node) {
  return spot.game && node < spot.game->nodes().size() ? &spot.game->nodes()[node] : nullptr;
}

/// A decision node with actions, or null; also null without a solver.
inline const velmora::PlanNode* decision_at(const SolvedSpot& spot, std::uint64_t node) {
  const velmora::PlanNode* const found = spot.solver ? node_at(spot, node) : nullptr;
  const bool decides = found && found->kind == velmora::NodeKind::kDecision &&
                       !found->actions.empty() && found->children.size() >= found->actions.size() &&
                       spot.game->num_hands(found->seat) > 0;
  return decides ? found : nullptr;
}

/// The average strategy of a decision node, action-major; empty if it doesn't fit the node.
inline std::vector<float> strategy_at(const SolvedSpot& spot, std::uint64_t node) {
  const velmora::PlanNode& decision = spot.game->nodes()[node];
  std::vector<float> strategy = spot.solver->average_strategy(node);
  const std::size_t cells = decision.actions.size() * spot.game->num_hands(decision.seat);
  if (strategy.size() != cells) strategy.clear();
  return strategy;
}

/// Base of the percentages of a node's actions, in chips.
inline std::int32_t percent_base(const velmora::Game& game, const velmora::PlanNode& node) {
  return node.pot >= 1 ? node.pot : game.settings().starting_pot;
}

/// An edge of the tree: the action with this index at this node.
struct PathStep {
  std::size_t node = 0;
  std::size_t action = 0;

  bool operator==(const PathStep&) const = default;
};

/// The edges from the root to a node. Found by going down: a subtree takes consecutive places in
/// the node list. Throws `std::out_of_range`.
std::vector<PathStep> path_to(const velmora::Game& game, std::size_t node);

/// The chance that a seat plays towards a node with each of its hands: `start` (by hand of the
/// seat), 0 for the hands that the cards of the node block, times the seat's average strategy along
/// the path. What is not finite and above 0 counts 0. Deals change nothing.
std::vector<float> reach_at(const SolvedSpot& spot, std::size_t node, velmora::Seat seat,
                            std::vector<float> start);
/// The same from the range weights of the seat.
std::vector<float> range_reach_at(const SolvedSpot& spot, std::size_t node, velmora::Seat seat);

/// The opposing reach that a hand can meet: the sum over the opposing hands without a common card.
class OpponentMass {
 public:
  /// `seat` holds the hands that are asked for; `opponent_reach` goes by hand of the other seat.
  OpponentMass(const velmora::CardContext& cards, velmora::Seat seat,
               std::span<const float> opponent_reach);

  /// Never negative; exactly 0 if all hands that have reach share a card with this one.
  double of(std::size_t hand) const;

 private:
  /// Reach and number of the hands that have any.
  struct Sum {
    double reach = 0;
    int hands = 0;

    void add(float share) {
      reach += static_cast<double>(share);
      ++hands;
    }
  };

  const velmora::CardContext& cards_;
  velmora::Seat seat_;
  std::span<const float> opponent_reach_;
  Sum total_;
  std::array<Sum, velmora::kNumCards> by_card_;
};

/// From the solver's scale to chips at one node.
class ChipScale {
 public:
  ChipScale(const velmora::Game& game, const velmora::PlanNode& node);

  /// Chips that a hand gains from its half of the pot against the opposing hands that it meets.
  double gain(double value, double mass) const;
  /// The same from nothing: what the hand is worth at the node. 0 if that is not finite.
  double chips(double value, double mass) const;
  /// Half of the matched pot, in chips; 0 if that is not finite and above 0.
  double half_pot() const { return half_pot_; }

 private:
  double total_matchup_weight_;
  double half_pot_;
};

}  // namespace velmora_app
