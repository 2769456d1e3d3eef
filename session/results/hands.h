// Single hands at a node: how often they get there, what they do and what that is worth; and the
// same by hand category.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cards.h"
#include "results/values.h"
#include "solve_session.h"

namespace velmora_app {

/// One hand of the acting seat at a node.
struct HandCombo {
  std::string c1;  ///< Card text; the card with the smaller code.
  std::string c2;
  double weight = 0;                        ///< Range weight times the seat's own reach.
  double ev = 0;                            ///< Chips.
  std::vector<double> action_evs;           ///< Chips, by action.
  std::vector<std::string_view> buckets;    ///< Names of its hand categories.
  std::vector<float> action_probabilities;  ///< By action; the sum is 1.
};

/// From the highest expected value down. A hand that the cards of the node block is listed with
/// weight 0.
struct NodeHandCombos {
  std::vector<HandCombo> combos;
  bool ok = false;
};

/// Not `ok` for a node that is no decision node of the spot.
NodeHandCombos query_hand_combos(const SolvedSpot& spot, std::uint64_t node, ActionValues& values);

struct SeatHandCombo {
  std::string c1;
  std::string c2;
  double weight = 0;  ///< Range weight.
};

struct SeatHandCombos {
  std::vector<SeatHandCombo> combos;
  bool ok = false;
};

/// The hands of the seat's range that the cards of a node of any kind leave possible, in list
/// order. Needs no solver.
SeatHandCombos query_seat_hand_combos(const SolvedSpot& spot, std::uint64_t node,
                                      velmora::Seat seat);

struct PocketActionEvs {
  std::vector<double> evs;  ///< Chips, by action.
  bool ok = false;
};

/// The action values of one hand of the acting seat, its cards in either order. Not `ok` if the
/// seat does not act at the node, for cards that are none, or for a hand that is not in its range.
PocketActionEvs query_pocket_action_evs(const SolvedSpot& spot, std::uint64_t node,
                                        velmora::Seat seat, std::string_view c1,
                                        std::string_view c2, ActionValues& values);

struct HandBucket {
  std::string name;                         ///< Of the hand category.
  double combos = 0;                        ///< Summed range weight of its hands, at the root.
  std::vector<float> action_probabilities;  ///< By action; the sum is 1.
};

/// The categories that some hand belongs to, in the order of their table. A hand can be in several.
struct NodeHandBuckets {
  std::vector<HandBucket> buckets;
  bool ok = false;
};

/// Not `ok` for a node that is no decision node of the spot. The hands of the classes in `locks`
/// play these instead of their strategy; the node of a lock is not looked at.
NodeHandBuckets query_hand_buckets(const SolvedSpot& spot, std::uint64_t node,
                                   std::span<const NodeLockEntry> locks = {});

}  // namespace velmora_app
