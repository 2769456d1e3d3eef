// Queries that sum a node's strategy: by hand class, by hand category, by action.
#include <cmath>
#include <functional>
#include <map>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "query_spots.h"
#include "results/actions.h"
#include "results/equity.h"
#include "results/hands.h"
#include "results/strategy.h"

namespace session_test {
namespace {

using velmora::kNoCard;
using velmora_app::ActionValues;
using velmora_app::NodeActionStats;
using velmora_app::query_hand_strategy;

double weight_of(const SolvedSpot& spot, Seat seat, std::size_t hand) {
  return static_cast<double>(spot.game->cards().hand_weights(seat)[hand]);
}

TEST(StrategyQueries, GridAndBucketsSumTheRange) {
  const auto& labels = velmora_app::hand_class_labels();
  EXPECT_EQ(labels[0] + labels[1] + labels[13] + labels[168], "AAAKsAKo22");
  const auto from_cards = velmora_app::hand_class_label_from_cards;
  EXPECT_EQ(from_cards("2d", "aH") + from_cards("2h", "AH") + from_cards("tc", "Td"), "A2oA2sTT");
  EXPECT_EQ(from_cards("1h", "Ah") + from_cards("A", "Kh"), "");
  for (const QueryCase& c : query_cases()) {
    const SolvedSpot spot = solved(c.spot, velmora::SuitFolding::kOn);
    for (const Path& path : c.paths) {
      const std::size_t node = follow(spot, path);
      const PlanNode& at = spot.game->nodes()[node];
      const auto& pockets = spot.game->cards().pockets(at.seat);
      const std::size_t actions = at.actions.size();
      const std::vector<float> strategy = spot.solver->average_strategy(node);
      const auto grid = query_hand_strategy(spot, node);
      const auto buckets = query_hand_buckets(spot, node);
      ASSERT_TRUE(grid.ok && buckets.ok);

      // Weight, and weight that takes the last action, of each class and category.
      std::map<std::string, std::pair<double, double>> sums;
      for (std::size_t h = 0; h < pockets.size(); ++h) {
        std::vector<std::string> keys = {velmora::hand_class_label(pockets[h])};
        for (std::string_view name : velmora::hand_categories(*spot.game, at, pockets[h])) {
          keys.emplace_back(name == "pair" ? "air" : name);
        }
        for (const std::string& key : keys) {
          const double weight = weight_of(spot, at.seat, h);
          sums[key].first += weight;
          sums[key].second +=
              weight * static_cast<double>(strategy[(actions - 1) * pockets.size() + h]);
        }
      }
      const auto expect_sums = [&](const std::string& key, double weight, double probability) {
        EXPECT_NEAR(weight, sums[key].first, 1e-6) << key;
        EXPECT_NEAR(probability * weight, sums[key].second, 1e-6) << key;
        sums.erase(key);
      };
      for (std::size_t i = 0; i < labels.size(); ++i) {
        EXPECT_EQ(grid.dominant_action_types[i].empty(), grid.weights[i] == 0);
        expect_sums(labels[i], grid.weights[i], grid.action_probabilities[(i + 1) * actions - 1]);
      }
      const auto* row = velmora::kHandCategoryNames.begin();
      for (const auto& bucket : buckets.buckets) {
        row = std::find(row, velmora::kHandCategoryNames.end(), bucket.name);  // In their order.
        ASSERT_NE(row, velmora::kHandCategoryNames.end()) << bucket.name;
        expect_sums(bucket.name, bucket.combos, bucket.action_probabilities.back());
      }
      EXPECT_TRUE(sums.empty());
    }
  }
}

TEST(StrategyQueries, OfEqualActionsTheFirstDominates) {
  const SolvedSpot spot = solved(query_cases()[0].spot, velmora::SuitFolding::kOn, 0);
  const auto grid = query_hand_strategy(spot, 0);
  EXPECT_EQ(grid.dominant_action_types[0], "check");
  EXPECT_THAT(grid.action_names, ::testing::ElementsAre("Check", "Bet 50%"));
  EXPECT_FALSE(query_hand_strategy(spot, follow(spot, {0, 0})).ok);
  EXPECT_FALSE(query_hand_buckets(spot, follow(spot, {0, 0})).ok);
  EXPECT_FALSE(query_hand_strategy({}, 0).ok);
}

/// Chance that a pocket wins against another one, over all boards; ties count half.
double equity_of(const SolvedSpot& spot, const PlanNode& node, Pocket own, Pocket other) {
  std::vector<CardCode> board(spot.game->cards().board().flop.begin(),
                              spot.game->cards().board().flop.end());
  if (node.turn != kNoCard) board.push_back(node.turn);
  if (node.river != kNoCard) board.push_back(node.river);
  double score = 0;
  int boards = 0;
  const std::function<void(CardCode)> run_out = [&](CardCode from) {
    if (board.size() == 5) {
      const auto mine = velmora::evaluate_hand(own, board);
      const auto theirs = velmora::evaluate_hand(other, board);
      score += mine > theirs ? 1.0 : mine == theirs ? 0.5 : 0.0;
      ++boards;
      return;
    }
    for (CardCode card = from; card < velmora::kNumCards; ++card) {
      const auto used = mask_of_pocket(own) | mask_of_pocket(other);
      if ((used & mask_of(card)) || std::count(board.begin(), board.end(), card)) continue;
      board.push_back(card);
      run_out(static_cast<CardCode>(card + 1));
      board.pop_back();
    }
  };
  run_out(0);
  return score / boards;
}

TEST(StrategyQueries, ActionStatisticsAgreeWithSumsOverPairs) {
  for (const QueryCase& c : query_cases()) {
    const SolvedSpot spot = solved(c.spot, velmora::SuitFolding::kOn);
    for (const Path& path : c.paths) {
      const std::size_t node = follow(spot, path);
      SCOPED_TRACE("node " + std::to_string(node));
      const PlanNode& at = spot.game->nodes()[node];
      const Seat other = opponent_of(at.seat);
      const auto& own = spot.game->cards().pockets(at.seat);
      const auto& opposing = spot.game->cards().pockets(other);
      const auto dealt = mask_of(at.turn) | mask_of(at.river);
      const std::vector<float> strategy = spot.solver->average_strategy(node);
      ActionValues values;
      const NodeActionStats stats = query_action_stats(spot, node, values);
      ASSERT_TRUE(stats.ok);
      EXPECT_EQ(stats.frequencies, spot.solver->average_action_frequencies(node));

      for (std::size_t a = 0; a < at.actions.size(); ++a) {
        const auto child = spot.solver->compute_cfvalue(*spot.game, at.children[a], at.seat);
        double combos = 0, value = 0, share = 0, met_total = 0, mean = 0, hero_total = 0;
        for (std::size_t h = 0; h < own.size(); ++h) {
          const double played =
              weight_of(spot, at.seat, h) * static_cast<double>(strategy[a * own.size() + h]);
          double mass = 0, met = 0, won = 0;
          for (std::size_t o = 0; o < opposing.size(); ++o) {
            if (mask_of_pocket(own[h]) & mask_of_pocket(opposing[o])) continue;
            const double weight = weight_of(spot, other, o);
            mass += weight;  // Of the whole range, whatever the node's cards take away.
            if ((mask_of_pocket(own[h]) | mask_of_pocket(opposing[o])) & dealt) continue;
            met += weight;
            if (played > 0) won += weight * equity_of(spot, at, own[h], opposing[o]);
          }
          combos += played;
          if (mass > 0) {
            value += played * static_cast<double>(child[h]) *
                     spot.game->cards().total_matchup_weight() / mass;
          }
          share += played * won;
          met_total += played * met;
          if (met > 0) mean += played * won / met;
          if (met > 0) hero_total += played;
        }
        EXPECT_NEAR(stats.combos[a], combos, 1e-6);
        const double half = c.spot.pot / 2.0 + at.commit;
        EXPECT_NEAR(stats.evs[a], half + (combos > 0 ? value / combos : 0), 1e-3 * c.spot.pot);
        if (met_total == 0) {
          EXPECT_TRUE(std::isnan(stats.equity[a]));
        } else if (at.river != kNoCard) {
          EXPECT_NEAR(stats.equity[a], share / met_total, 1e-6);
        } else {
          // Sampled: the hand is drawn first, then whom it meets. Four standard errors.
          EXPECT_NEAR(stats.equity[a], mean / hero_total, 4 * 0.5 / std::sqrt(4000));
        }
      }

      // The node alone decides the figures.
      ActionValues fresh;
      const NodeActionStats again = query_action_stats(spot, node, fresh);
      EXPECT_EQ(again.evs, stats.evs);
      for (std::size_t a = 0; a < stats.equity.size(); ++a) {
        EXPECT_TRUE(again.equity[a] == stats.equity[a] || std::isnan(stats.equity[a]));
      }
    }
  }
}

/// The numbers that samples take out of the generator: two for a hand of a range, one for a card.
TEST(StrategyQueries, SamplesFollowFromTheGenerator) {
  const std::vector<Pocket> pockets = {velmora::make_pocket(30, 51), velmora::make_pocket(0, 8),
                                       velmora::make_pocket(28, 29)};
  const std::vector<double> first = {0.25, 0, 0}, blocked = {0, 0.5, 0}, last = {0, 0, 3};
  const velmora::Board board{.flop = {8, 17, 47}, .turn = 50};
  const auto expect = [&](const std::vector<double>& hero, std::size_t numbers, bool known) {
    std::mt19937 generator(99), after(99);
    after.discard(10 * numbers);
    const double equity =
        velmora_app::sampled_equity(generator, board, {pockets, hero}, {pockets, last}, 10);
    EXPECT_EQ(std::isnan(equity), !known);
    EXPECT_EQ(generator, after) << numbers;
  };
  expect(first, 2 + 2 + 1, true);
  expect(blocked, 2, false);  // The board holds a card of it: the sample is dropped.
  // A hand can't meet itself: each sample draws 32 opposing hands and gives up.
  expect(last, 2 + 32 * 2, false);
  expect({0, -1, NAN}, 0, false);
  expect({1, 1}, 0, false);
}

TEST(Showdown, ComparesTwoHandsOnAFullBoard) {
  const struct {
    const char* board;
    const char* oop;
    const char* ip;
    const char* winner;
  } cases[] = {
      {"KsQd7h2c3s", "KdKh", "AcAd", "OOP"},     {"KsQd7h2c3s", "AhJs", "AcAd", "IP"},
      {"AsKsQsJsTs", "2d2c", "3d3c", "TIE"},     {" Ks Qd\t7h2c 3s ", "Kd Kh", "AcAd", "OOP"},
      {"KsQd7h2c3s9x", "KdKhzz", "AcAd", "OOP"},  // What stands behind is not read.
      {"KsQd7h2c", "KdKh", "AcAd", "UNKNOWN"},   {"KsQd7h2c3s", "Kd", "AcAd", "UNKNOWN"},
      {"KsQd7h2c3x", "KdKh", "AcAd", "UNKNOWN"}, {"KsQd7h2c3s", "KdKh", "AcZd", "UNKNOWN"},
  };
  for (const auto& c : cases) {
    const auto result = velmora_app::showdown_winner(c.board, c.oop, c.ip);
    EXPECT_EQ(result.winner, c.winner) << c.board;
    EXPECT_EQ(result.oop_strength == 0, result.winner == "UNKNOWN");
    if (result.winner == "OOP") {
      EXPECT_GT(result.oop_strength, result.ip_strength);
    }
  }
}

}  // namespace
}  // namespace session_test
