#include <algorithm>
#include <map>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "query_spots.h"
#include "results/hands.h"
#include "results/node.h"

namespace session_test {
namespace {

using ::testing::IsEmpty;
using velmora_app::ActionValues;
using velmora_app::HandCombo;
using velmora_app::NodeHandCombos;
using velmora_app::path_to;
using velmora_app::PathStep;
using velmora_app::PocketActionEvs;
using velmora_app::query_seat_hand_combos;
using velmora_app::range_reach_at;

/// The chips that hands end with, found pair by pair and card by card.
class PairByPair {
 public:
  explicit PairByPair(const SolvedSpot& spot) : spot_(spot) {}

  /// Chips of a hand of the node's seat after each action, against the opposing hands that it can
  /// meet, weighted with their range weight and what they have played.
  std::vector<double> action_evs(std::size_t node, std::size_t hand) {
    const PlanNode& at = spot_.game->nodes()[node];
    std::vector<double> evs(at.actions.size());
    double met = 0;
    for (std::size_t o = 0; o < hands(opponent_of(at.seat)).size(); ++o) {
      if (mask_of_pocket(hands(at.seat)[hand]) & mask_of_pocket(hands(opponent_of(at.seat))[o])) {
        continue;
      }
      const double reach = reach_of(node, opponent_of(at.seat), o);
      met += reach;
      for (std::size_t a = 0; a < evs.size() && reach > 0; ++a) {
        evs[a] += reach * chips(at.children[a], at, hand, o);
      }
    }
    // With nobody to meet it holds its half of the pot.
    const double half = spot_.game->settings().starting_pot / 2.0 + at.commit;
    for (double& ev : evs) ev = met > 0 ? ev / met : half;
    return evs;
  }

  /// Range weight times what the seat has played towards a node; 0 if its cards block the hand.
  double reach_of(std::size_t node, Seat seat, std::size_t hand) {
    double reach = spot_.game->cards().hand_weights(seat)[hand];
    std::size_t at = node;
    for (std::size_t parent = node; parent-- > 0;) {
      const PlanNode& above = spot_.game->nodes()[parent];
      const auto edge = std::find(above.children.begin(), above.children.end(), at);
      if (edge == above.children.end()) continue;
      at = parent;
      if (above.kind != NodeKind::kDecision || above.seat != seat) continue;
      reach *= play(parent, static_cast<std::size_t>(edge - above.children.begin()), hand);
    }
    return is_blocked(spot_.game->nodes()[node], seat, hand) ? 0.0 : reach;
  }

 private:
  const std::vector<Pocket>& hands(Seat seat) const { return spot_.game->cards().pockets(seat); }

  bool is_blocked(const PlanNode& node, Seat seat, std::size_t hand) const {
    return (mask_of_pocket(hands(seat)[hand]) & (mask_of(node.turn) | mask_of(node.river))) != 0;
  }

  double play(std::size_t node, std::size_t action, std::size_t hand) {
    auto [entry, is_new] = strategies_.try_emplace(node);
    if (is_new) entry->second = spot_.solver->average_strategy(node);
    return entry->second[action * spot_.game->num_hands(spot_.game->nodes()[node].seat) + hand];
  }

  /// What the hand of `from`'s seat takes out of the game, less what it pays after `from`.
  double chips(std::size_t index, const PlanNode& from, std::size_t hand, std::size_t other) {
    const PlanNode& node = spot_.game->nodes()[index];
    const Seat seat = from.seat;
    const auto& settings = spot_.game->settings();
    double sum = 0;
    if (node.kind == NodeKind::kTerminal) {
      const double pot = settings.starting_pot + 2.0 * node.commit;
      const double rake = std::min(settings.rake_cap, pot * settings.rake_fraction);
      const double paid = node.commit - from.commit;
      if (node.last_action == velmora::ActionKind::kFold) {
        return (node.last_actor == seat ? 0.0 : pot - rake) - paid;
      }
      const CardCode board[] = {spot_.game->cards().board().flop[0],
                                spot_.game->cards().board().flop[1],
                                spot_.game->cards().board().flop[2], node.turn, node.river};
      const auto mine = velmora::evaluate_hand(hands(seat)[hand], board);
      const auto theirs = velmora::evaluate_hand(hands(opponent_of(seat))[other], board);
      return (mine > theirs ? pot - rake : mine == theirs ? (pot - rake) / 2 : 0.0) - paid;
    }
    if (node.kind == NodeKind::kChance) {
      // The cards that nobody holds are equally likely.
      int deals = 0;
      for (const auto child : node.children) {
        const PlanNode& dealt = spot_.game->nodes()[child];
        if (is_blocked(dealt, seat, hand) || is_blocked(dealt, opponent_of(seat), other)) continue;
        ++deals;
        sum += chips(child, from, hand, other);
      }
      return sum / deals;
    }
    for (std::size_t a = 0; a < node.actions.size(); ++a) {
      const double frequency = play(index, a, node.seat == seat ? hand : other);
      if (frequency > 0) sum += frequency * chips(node.children[a], from, hand, other);
    }
    return sum;
  }

  const SolvedSpot& spot_;
  std::map<std::size_t, std::vector<float>> strategies_;
};

TEST(HandCombosQuery, AgreesWithPlayingOutEveryPairOfHands) {
  for (const QueryCase& c : query_cases()) {
    const SolvedSpot spot = solved(c.spot, velmora::SuitFolding::kOff);
    PairByPair pairs(spot);
    ActionValues values;
    for (const auto& path : c.paths) {
      const std::size_t node = follow(spot, path);
      const PlanNode& at = spot.game->nodes()[node];
      const auto& pockets = spot.game->cards().pockets(at.seat);
      const double tolerance = 1e-3 * c.spot.pot;
      const NodeHandCombos result = query_hand_combos(spot, node, values);
      ASSERT_TRUE(result.ok);
      ASSERT_EQ(result.combos.size(), pockets.size());
      EXPECT_TRUE(std::is_sorted(result.combos.begin(), result.combos.end(),
                                 [](auto& a, auto& b) { return a.ev > b.ev; }));
      for (const HandCombo& combo : result.combos) {
        const Pocket pocket =
            velmora::make_pocket(velmora::parse_card(combo.c1), velmora::parse_card(combo.c2));
        const auto hand = static_cast<std::size_t>(
            std::find(pockets.begin(), pockets.end(), pocket) - pockets.begin());
        SCOPED_TRACE(combo.c1 + combo.c2 + " at node " + std::to_string(node));
        ASSERT_EQ(velmora::low_card(pocket), velmora::parse_card(combo.c1));
        EXPECT_NEAR(combo.weight, pairs.reach_of(node, at.seat, hand), 1e-5);
        EXPECT_EQ(combo.buckets, velmora::hand_categories(*spot.game, at, pocket));

        double mixed = 0;
        double played = 0;
        for (std::size_t a = 0; a < combo.action_evs.size(); ++a) {
          mixed += combo.action_evs[a] * static_cast<double>(combo.action_probabilities[a]);
          played += static_cast<double>(combo.action_probabilities[a]);
        }
        EXPECT_NEAR(played, 1, 1e-6);
        EXPECT_NEAR(combo.ev, mixed, tolerance);

        // One hand asked for by itself, its cards in either order.
        const PocketActionEvs alone =
            query_pocket_action_evs(spot, node, at.seat, combo.c2, combo.c1, values);
        ASSERT_TRUE(alone.ok);
        EXPECT_EQ(alone.evs, combo.action_evs);

        if (mask_of_pocket(pocket) & (mask_of(at.turn) | mask_of(at.river))) continue;
        const std::vector<double> expected = pairs.action_evs(node, hand);
        for (std::size_t a = 0; a < expected.size(); ++a) {
          EXPECT_NEAR(combo.action_evs[a], expected[a], tolerance) << "action " << a;
        }
      }
    }
  }
}

/// A hand that shares a card with every opposing hand that is left has nobody to play against: its
/// values are its half of the pot, whatever rests the sums leave.
TEST(HandCombosQuery, MeetsNobodyExactly) {
  const auto game = velmora_test::make_game({.board = "KsQd7h2c3s",
                                             .oop_range = "AcAd,JJ",
                                             .ip_range = "AcAd,AcAh,AdAh,AhAs",
                                             .sizes = {}});
  const auto& pockets = game->cards().pockets(velmora::kIp);
  const std::vector<float> reach = {0.3F, 1e-13F, 1e-15F, 0};
  const velmora_app::OpponentMass blocked(game->cards(), velmora::kOop, reach);
  const auto& own = game->cards().pockets(velmora::kOop);
  ASSERT_EQ(pockets.size(), reach.size());
  for (std::size_t h = 0; h < own.size(); ++h) {
    double expected = 0;
    for (std::size_t o = 0; o < reach.size(); ++o) {
      if (!(mask_of_pocket(own[h]) & mask_of_pocket(pockets[o]))) expected += reach[o];
    }
    if (expected == 0) {
      EXPECT_EQ(blocked.of(h), 0.0);
    } else {
      EXPECT_NEAR(blocked.of(h), expected, 1e-9);
    }
  }
}

TEST(HandCombosQuery, FindsPathsWithoutATable) {
  const SolvedSpot spot = solved(query_cases()[1].spot, velmora::SuitFolding::kOn, 0);
  EXPECT_THAT(path_to(*spot.game, 0), IsEmpty());
  for (std::size_t node = 0; node < spot.game->nodes().size(); ++node) {
    const PlanNode& parent = spot.game->nodes()[node];
    for (std::size_t a = 0; a < parent.children.size(); ++a) {
      const std::vector<PathStep> path = path_to(*spot.game, parent.children[a]);
      ASSERT_EQ(path.back(), (PathStep{node, a}));
      ASSERT_EQ(path.front().node, 0U);
    }
  }
  EXPECT_THROW(path_to(*spot.game, spot.game->nodes().size()), std::out_of_range);
}

TEST(HandCombosQuery, SharesOneWalkForOneNodeReachAndSolver) {
  const SolvedSpot spot = solved(query_cases()[0].spot, velmora::SuitFolding::kOn);
  const SolvedSpot other = solved(query_cases()[0].spot, velmora::SuitFolding::kOn, 1);
  const std::vector<float> range = range_reach_at(spot, 0, velmora::kIp);
  ActionValues values;
  const auto table = values.at(spot, 0, range);
  EXPECT_EQ(values.at(spot, 0, range), table);
  EXPECT_EQ(values.at(spot, 0, spot.game->cards().hand_weights(velmora::kIp)), table);
  EXPECT_NE(*values.at(other, 0, range), *table);
  std::vector<float> less = range;
  for (int i = 0; i < 100; ++i) {
    less[0] *= 0.9F;
    EXPECT_NE(*values.at(spot, 0, less), *table);
  }
  EXPECT_EQ(*values.at(spot, 0, range), *table);  // Walked again: the same to the last bit.
  EXPECT_EQ(values.at(spot, 0, less, [] { return true; })->size(), table->size());  // Known.
  EXPECT_EQ(values.at(spot, follow(spot, {0}), less, [] { return true; }), nullptr);
}

TEST(HandCombosQuery, AnswersOnlyWhatItCan) {
  const SolvedSpot spot = solved(query_cases()[1].spot, velmora::SuitFolding::kOn, 2);
  const std::size_t chance = follow(spot, {0, 0});
  ASSERT_EQ(spot.game->nodes()[chance].kind, NodeKind::kChance);
  const std::size_t river = follow(spot, {0, 0, kFirstCard});
  ActionValues values;
  for (const std::size_t node : {chance, spot.game->nodes().size(), std::size_t(-1)}) {
    EXPECT_FALSE(query_hand_combos(spot, node, values).ok);
    EXPECT_FALSE(prepare_node(spot, node, values));
  }
  EXPECT_FALSE(query_hand_combos({}, 0, values).ok);
  EXPECT_FALSE(prepare_node(spot, 0, values, [] { return true; }));
  EXPECT_TRUE(prepare_node(spot, river, values));

  const Seat oop = velmora::kOop;
  const struct {
    Seat seat;
    const char* c1;
    const char* c2;
    bool ok;
  } pockets[] = {{oop, "Ac", "Ah", true},  {oop, "ah", "AC", true},
                 {oop, "Ac", "Ac", false}, {velmora::kIp, "Ac", "Ah", false},
                 {oop, "A", "Ah", false},  {oop, "Acx", "Ah", false},
                 {oop, "Zz", "Ah", false}, {oop, "2c", "2d", false}};
  for (const auto& c : pockets) {
    EXPECT_EQ(query_pocket_action_evs(spot, 0, c.seat, c.c1, c.c2, values).ok, c.ok) << c.c1;
  }

  // The cards of a node take hands away from the list of what a seat can hold; any node will do.
  const auto range = query_seat_hand_combos(spot, 0, oop);
  const auto left = query_seat_hand_combos({spot.game, nullptr}, river, oop);
  ASSERT_TRUE(range.ok && left.ok);
  EXPECT_TRUE(query_seat_hand_combos(spot, chance, oop).ok);
  EXPECT_EQ(range.combos.size(), spot.game->num_hands(oop));
  const CardCode card = spot.game->nodes()[river].river;
  for (const auto& combo : left.combos) {
    EXPECT_NE(velmora::parse_card(combo.c1), card);
    EXPECT_NE(velmora::parse_card(combo.c2), card);
  }
  EXPECT_LT(left.combos.size(), range.combos.size());
  EXPECT_FALSE(query_seat_hand_combos({}, 0, oop).ok);
  EXPECT_FALSE(query_seat_hand_combos(spot, spot.game->nodes().size(), oop).ok);
}

}  // namespace
}  // namespace session_test
