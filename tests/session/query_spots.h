// Small solved spots for the tests of the result queries.
#pragma once

#include <algorithm>
#include <limits>
#include <memory>
#include <vector>

#include "hand_categories.h"
#include "hand_eval.h"
#include "solve_session.h"
#include "spots.h"

namespace session_test {

using velmora::CardCode;
using velmora::mask_of;
using velmora::mask_of_pocket;
using velmora::NodeKind;
using velmora::opponent_of;
using velmora::PlanNode;
using velmora::Pocket;
using velmora::Seat;
using velmora_app::SolvedSpot;

/// Action indices from the root.
using Path = std::vector<std::size_t>;
/// Stands for the first card of a deal that the first hand of OOP holds.
inline constexpr std::size_t kFirstCard = std::numeric_limits<std::size_t>::max();

inline SolvedSpot solved(const velmora_test::Spot& spot, velmora::SuitFolding folding,
                         std::uint32_t iterations = 40) {
  std::shared_ptr<velmora::Game> game = velmora_test::make_game(spot, folding);
  SolvedSpot result;
  result.solver = velmora_test::solve(*game, {.iterations = iterations});
  result.game = std::move(game);
  return result;
}

inline std::size_t follow(const SolvedSpot& spot, const Path& path) {
  const CardCode held = velmora::low_card(spot.game->cards().pockets(velmora::kOop)[0]);
  std::size_t node = 0;
  for (const std::size_t step : path) {
    const PlanNode& at = spot.game->nodes()[node];
    std::size_t action = step;
    if (step == kFirstCard) {
      const auto card = std::find_if(at.actions.begin(), at.actions.end(),
                                     [held](const auto& a) { return a.amount == held; });
      action = card == at.actions.end() ? 0 : static_cast<std::size_t>(card - at.actions.begin());
    }
    node = at.children[action];
  }
  return node;
}

struct QueryCase {
  velmora_test::Spot spot;
  std::vector<Path> paths;  ///< To decision nodes.
};

/// A river with rake, a turn, and a flop on which only the river is bet.
inline const std::vector<QueryCase>& query_cases() {
  static const std::vector<QueryCase> kCases = {
      {{.board = "KsQd7h2c3s",
        .oop_range = "AA,QQ:0.5,JTs,98s",
        .ip_range = "KK,AQs,T9s,AcAd",
        .stack = 300,
        .sizes = {{{}, {}, {"50", "60"}}},
        .rake_fraction = 0.05,
        .rake_cap = 7},
       {{}, {0}, {1}, {1, 2}}},
      {{.board = "KsQd7h2c",
        .oop_range = "AA,JJ:0.5,JTs",
        .ip_range = "KQs,AQs:0.25,T9s,AA",
        .stack = 2000,
        .sizes = {{{}, {"50", ""}, {"75", ""}}}},
       {{}, {1}, {0, 1}, {0, 0, kFirstCard}, {1, 1, 20, 1}}},
      {{.board = "8s7d2c",
        .oop_range = "AhAd,Th9h,7h7s",
        .ip_range = "KhKd,9s9c,AhKh:0.5",
        .pot = 60,
        .stack = 2000,
        .sizes = {{{}, {}, {"50", ""}}}},
       {{}, {0, 0, kFirstCard, 0}, {0, 0, 7, 0, 0, 9}}},
  };
  return kCases;
}

}  // namespace session_test
