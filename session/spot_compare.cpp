#include "spot_compare.h"

#include <tuple>

namespace velmora_app {
namespace {

auto tree_of(const SolveConfig& config) {
  return std::tie(config.board, config.oop_range, config.ip_range, config.starting_pot,
                  config.effective_stack, config.starting_street, config.oop_flop, config.oop_turn,
                  config.oop_river, config.ip_flop, config.ip_turn, config.ip_river,
                  config.oop_add_all_in_jam_threshold_pct, config.ip_add_all_in_jam_threshold_pct);
}

}  // namespace

bool same_tree(const SolveConfig& a, const SolveConfig& b) {
  return tree_of(a) == tree_of(b);
}

bool same_spot(const SolveConfig& a, const SolveConfig& b) {
  return same_tree(a, b) && a.rake_percent == b.rake_percent && a.rake_cap == b.rake_cap;
}

}  // namespace velmora_app
