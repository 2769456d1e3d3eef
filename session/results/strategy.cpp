#include "results/strategy.h"

#include <algorithm>

#include "results/actions.h"
#include "results/node.h"
#include "text.h"

namespace velmora_app {
namespace {

constexpr std::size_t kRanks = velmora::kNumRanks;

/// Place of a pocket's class in grid order.
std::size_t class_of(velmora::Pocket pocket) {
  // The grid starts with the ace. The code of the high card is the greater one, so is its rank.
  const std::size_t high = kRanks - 1 - velmora::rank_of(velmora::high_card(pocket));
  const std::size_t low = kRanks - 1 - velmora::rank_of(velmora::low_card(pocket));
  const bool suited =
      velmora::suit_of(velmora::high_card(pocket)) == velmora::suit_of(velmora::low_card(pocket));
  return suited ? high * kRanks + low : low * kRanks + high;
}

}  // namespace

const std::array<std::string, kNumHandClasses>& hand_class_labels() {
  static const auto kLabels = [] {
    std::array<std::string, kNumHandClasses> labels;
    for (velmora::CardCode a = 0; a < velmora::kNumCards; ++a) {
      for (velmora::CardCode b = 0; b < a; ++b) {
        const velmora::Pocket pocket = velmora::make_pocket(a, b);
        labels[class_of(pocket)] = velmora::hand_class_label(pocket);
      }
    }
    return labels;
  }();
  return kLabels;
}

std::string hand_class_label_from_cards(std::string_view c1, std::string_view c2) {
  constexpr std::string_view kRankChars = "AKQJT98765432";
  if (c1.size() < 2 || c2.size() < 2) return {};
  const auto rank_of = [&](char c) {
    return static_cast<std::size_t>(
        std::find_if(kRankChars.begin(), kRankChars.end(),
                     [c](char rank) { return velmora::to_lower(rank) == velmora::to_lower(c); }) -
        kRankChars.begin());
  };
  const auto [high, low] = std::minmax({rank_of(c1[0]), rank_of(c2[0])});
  if (low == kRankChars.size()) return {};
  std::string label{kRankChars[high], kRankChars[low]};
  if (high != low) label += velmora::to_lower(c1[1]) == velmora::to_lower(c2[1]) ? 's' : 'o';
  return label;
}

NodeHandStrategy query_hand_strategy(const SolvedSpot& spot, std::uint64_t node) {
  NodeHandStrategy grid;
  const velmora::PlanNode* const decision = decision_at(spot, node);
  if (!decision) return grid;
  const std::vector<float> strategy = strategy_at(spot, node);
  if (strategy.empty()) return grid;
  const std::size_t num_actions = decision->actions.size();
  const std::size_t hands = spot.game->num_hands(decision->seat);

  // Step 1. The actions.
  const std::int32_t base = percent_base(*spot.game, *decision);
  std::vector<std::string> types;
  for (const velmora::Action& action : decision->actions) {
    grid.action_names.push_back(action_label(action, base));
    types.push_back(action_key(action, base));
  }

  // Step 2. Sums over the hands of each class.
  std::array<double, kNumHandClasses> class_weight{};
  std::vector<double> class_action(kNumHandClasses * num_actions);
  for (std::size_t h = 0; h < hands; ++h) {
    const double weight = static_cast<double>(spot.game->cards().hand_weights(decision->seat)[h]);
    if (!(weight > 0)) continue;
    const std::size_t label = class_of(spot.game->cards().pockets(decision->seat)[h]);
    class_weight[label] += weight;
    for (std::size_t a = 0; a < num_actions; ++a) {
      class_action[label * num_actions + a] +=
          static_cast<double>(strategy[a * hands + h]) * weight;
    }
  }

  // Step 3. Their means. Of equal actions the first is the dominant one.
  grid.labels.assign(hand_class_labels().begin(), hand_class_labels().end());
  grid.weights.resize(kNumHandClasses);
  grid.dominant_action_types.resize(kNumHandClasses);
  grid.action_probabilities.resize(kNumHandClasses * num_actions);
  for (std::size_t label = 0; label < kNumHandClasses; ++label) {
    if (!(class_weight[label] > 0)) continue;
    grid.weights[label] = static_cast<float>(class_weight[label]);
    double best = -1;
    for (std::size_t a = 0; a < num_actions; ++a) {
      const std::size_t cell = label * num_actions + a;
      const double probability = class_action[cell] / class_weight[label];
      grid.action_probabilities[cell] = static_cast<float>(probability);
      if (probability > best) {
        best = probability;
        grid.dominant_action_types[label] = types[a];
      }
    }
  }
  grid.ok = true;
  return grid;
}

}  // namespace velmora_app
