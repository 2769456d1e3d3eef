#include "solution_export.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <vector>

#include "action_plan.h"
#include "discounted_cfr.h"
#include "game.h"

using velmora::Action;
using velmora::ActionKind;
using velmora::NodeKind;
using velmora::PlanNode;

namespace {

constexpr std::array<std::string_view, 2> kSeatNames{"OOP", "IP"};
constexpr std::array<std::string_view, 3> kStreetNames{"flop", "turn", "river"};

/// The shortest text that reads back as the same number.
template <typename Number>
void append_number(std::string& text, Number number) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  text.append(digits.data(), end);
}

/// No text of an export holds a character that JSON would escape.
void append_quoted(std::string& text, std::string_view value) {
  text += '"';
  text += value;
  text += '"';
}

std::string action_text(const Action& action) {
  switch (action.kind) {
    case ActionKind::kFold: return "fold";
    case ActionKind::kCheck: return "check";
    case ActionKind::kCall: return "call";
    case ActionKind::kBet: return "bet " + std::to_string(action.amount);
    case ActionKind::kRaise: return "raise " + std::to_string(action.amount);
    case ActionKind::kAllIn: return "allin " + std::to_string(action.amount);
    case ActionKind::kChance:
      return velmora::card_to_string(static_cast<velmora::CardCode>(action.amount));
    case ActionKind::kNone: break;
  }
  return "none";
}

void append_hands(std::string& line, const velmora::CardContext& cards, velmora::Seat seat) {
  line += '[';
  for (std::size_t hand = 0; hand < cards.num_hands(seat); ++hand) {
    const velmora::Pocket pocket = cards.pockets(seat)[hand];
    if (hand > 0) line += ',';
    line += '[';
    append_quoted(line, velmora::card_to_string(velmora::high_card(pocket)) +
                            velmora::card_to_string(velmora::low_card(pocket)));
    line += ',';
    append_number(line, cards.hand_weights(seat)[hand]);
    line += ']';
  }
  line += ']';
}

/// Walks the tree depth first and keeps the path to where it stands.
class Exporter {
 public:
  Exporter(const velmora_app::SolvedSpot& spot, const LineSink& sink)
      : game_(*spot.game), solver_(*spot.solver), sink_(sink) {}

  bool write_spot(const velmora_app::SolveConfig& config) {
    line_ = "{\"board\":";
    append_quoted(line_, config.board);
    line_ += ",\"starting_pot\":";
    append_number(line_, config.starting_pot);
    line_ += ",\"effective_stack\":";
    append_number(line_, config.effective_stack);
    line_ += ",\"oop_hands\":";
    append_hands(line_, game_.cards(), velmora::kOop);
    line_ += ",\"ip_hands\":";
    append_hands(line_, game_.cards(), velmora::kIp);
    line_ += '}';
    return sink_(line_);
  }

  bool write_subtree(std::size_t index) {
    const PlanNode& node = game_.nodes()[index];
    // Below a terminal node cards may be dealt, but nobody acts any more.
    if (node.kind == NodeKind::kTerminal) return true;
    if (node.kind == NodeKind::kDecision && !node.actions.empty() && !write_node(index, node)) {
      return false;
    }
    const std::size_t path_size = path_.size();
    for (std::size_t a = 0; a < node.children.size(); ++a) {
      if (path_size > 0) path_ += '/';
      path_ += action_text(node.actions[a]);
      if (!write_subtree(node.children[a])) return false;
      path_.resize(path_size);
    }
    return true;
  }

 private:
  bool write_node(std::size_t index, const PlanNode& node) {
    line_ = "{\"node\":";
    append_number(line_, index);
    line_ += ",\"path\":";
    append_quoted(line_, path_);
    line_ += ",\"player\":";
    append_quoted(line_, kSeatNames[node.seat]);
    line_ += ",\"street\":";
    append_quoted(line_, kStreetNames[node.street]);
    line_ += ",\"pot\":";
    append_number(line_, node.pot);
    line_ += ",\"actions\":[";
    for (std::size_t a = 0; a < node.actions.size(); ++a) {
      if (a > 0) line_ += ',';
      append_quoted(line_, action_text(node.actions[a]));
    }
    line_ += "],\"strategy\":[";
    const std::vector<float> strategy = solver_.average_strategy(index);
    const std::size_t num_hands = game_.num_hands(node.seat);
    for (std::size_t i = 0; i < strategy.size(); ++i) {
      if (i > 0) line_ += ',';
      if (i % num_hands == 0) line_ += '[';
      append_number(line_, strategy[i]);
      if (i % num_hands == num_hands - 1) line_ += ']';
    }
    line_ += "]}";
    return sink_(line_);
  }

  const velmora::Game& game_;
  const velmora::DiscountedCfr& solver_;
  const LineSink& sink_;
  std::string path_;
  std::string line_;
};

}  // namespace

bool export_solution(const velmora_app::SolvedSpot& spot, const velmora_app::SolveConfig& config,
                     const LineSink& sink) {
  Exporter exporter(spot, sink);
  return exporter.write_spot(config) && exporter.write_subtree(0);
}
