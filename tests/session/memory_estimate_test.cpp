#include "memory_estimate.h"

#include <gtest/gtest.h>

#include "game.h"
#include "runs.h"
#include "spot.h"

namespace session_test {
namespace {

using velmora::Game;
using velmora::NodeKind;
using velmora::PlanNode;
using velmora_app::estimate_memory;
using velmora_app::MemoryEstimate;

std::unique_ptr<Game> build(const SolveConfig& config) {
  const velmora_app::SpotCards spot = translate_cards(config);
  velmora::GameSettings settings = translate_settings(config);
  translate_sizing(config, settings);
  return std::make_unique<Game>(settings, velmora::CardContext(spot.board, spot.weights));
}

std::vector<SolveConfig> requests() {
  SolveConfig flop = flop_request();
  SolveConfig rainbow = flop_request();
  rainbow.board = "AhKd7c";
  SolveConfig turn = river_request();
  turn.board = "AhKd7c2s";
  turn.starting_street = "turn";
  turn.effective_stack = 400;
  turn.oop_turn = turn.ip_turn = {"33,75", "2.5x", true, true};
  SolveConfig mismatch = turn;
  mismatch.starting_street = "flop";
  return {flop, rainbow, turn, mismatch, river_request()};
}

TEST(MemoryEstimate, IsThatOfTheBuiltGame) {
  for (SolveConfig config : requests()) {
    SCOPED_TRACE(config.board + " " + config.starting_street);
    const auto game = build(config);
    std::uint64_t decisions = 0;
    std::uint64_t cells = 0;
    std::uint64_t entries = 0;
    for (const PlanNode& node : game->nodes()) {
      entries += node.actions.size() + node.children.size();
      if (node.kind != NodeKind::kDecision) continue;
      ++decisions;
      cells += node.actions.size() * game->num_hands(node.seat);
    }
    std::uint64_t plain_peak = 0;
    for (const bool compressed : {false, true}) {
      config.compressed_storage = compressed;
      config.node_locks = {{12345678, "AA", 9, 1}};
      std::string error = "untouched";
      const std::optional<MemoryEstimate> found = estimate_memory(config, error);
      ASSERT_TRUE(found) << error;
      EXPECT_EQ(error, "untouched");
      EXPECT_TRUE(found->complete);
      EXPECT_EQ(found->node_count, game->nodes().size());
      EXPECT_EQ(found->decision_node_count, decisions);
      EXPECT_EQ(found->oop_hands, game->num_hands(velmora::kOop));
      EXPECT_EQ(found->ip_hands, game->num_hands(velmora::kIp));
      EXPECT_EQ(found->state_bytes, cells * (compressed ? 4 : 8));
      EXPECT_EQ(found->tree_bytes, game->nodes().size() * 72 + entries * 8);
      EXPECT_EQ(found->context_bytes, game->cards().memory_bytes());
      if (!compressed) plain_peak = found->peak_bytes;
      EXPECT_GE(plain_peak, found->peak_bytes + (compressed ? cells * 4 : 0));
      const std::uint64_t sum = found->tree_bytes + found->context_bytes + found->state_bytes;
      EXPECT_EQ(found->total_bytes, static_cast<std::uint64_t>(static_cast<double>(sum) * 1.1));
    }
  }
}

/// Where even counting would take too long, what was counted is a lower bound; nothing is built.
TEST(MemoryEstimate, StopsCountingAtABound) {
  std::string many;
  for (int percent = 1; percent < 3000; ++percent) many += std::to_string(percent) + ',';
  const char* const wide = "1,2,3,5,8,13,21,34,55,89";
  const char* const raises = "1.01x,1.02x,1.05x,1.1x,1.2x,1.5x,2x,3x,4x,5x";
  const struct {
    const char* board;
    std::string bets;
    std::string raises;
    std::int32_t stack;
  } cases[] = {{"AhKd7c", wide, raises, 2'000'000'000}, {"AhKd7c2s9h", many, many, 100'000}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.board) + " " + c.bets.substr(0, 20));
    SolveConfig config = flop_request();
    config.board = c.board;
    config.starting_street = config.board.size() == 6 ? "flop" : "river";
    config.effective_stack = c.stack;
    config.oop_flop = config.ip_flop = config.oop_turn = config.ip_turn = config.oop_river =
        config.ip_river = {.bet_sizes = c.bets, .raise_sizes = c.raises};
    std::string error;
    const std::optional<MemoryEstimate> found = estimate_memory(config, error);
    ASSERT_TRUE(found) << error;
    EXPECT_FALSE(found->complete);
    EXPECT_GT(found->node_count, 1000U);
    EXPECT_GT(found->total_bytes, found->state_bytes);
    EXPECT_GT(found->state_bytes, 0U);
    SolveSession session;  // Which is not lured into building it.
    EXPECT_EQ(result_of(session, config).error, "Betting tree is too large");
  }
}

}  // namespace
}  // namespace session_test
