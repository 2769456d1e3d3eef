#include "charts.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace preflop_charts {

namespace {

double to_four_decimals(double frequency) {
  if (frequency < kSmallestFrequency) return 0;
  if (frequency > 1 - kSmallestFrequency) return 1;
  return std::round(frequency * 10000) / 10000;
}

ClassValues rounded(ClassValues range) {
  std::ranges::transform(range, range.begin(), to_four_decimals);
  return range;
}

/// The part of `reach` that takes an action and that `taken` leaves, rounded.
ClassValues part_of(const ClassValues& reach, const ClassValues& frequency,
                    const ClassValues& taken = {}) {
  ClassValues part{};
  for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
    const double left = to_four_decimals(reach[hand] - taken[hand]);
    part[hand] = std::min(to_four_decimals(reach[hand] * frequency[hand]), left);
  }
  return part;
}

/// Both actions of a decision, rounded so that together they stay within `reach`.
struct Continuation {
  ClassValues call{};
  ClassValues raise{};
};
Continuation continuation(const ClassValues& reach, const DecisionResult& decision) {
  Continuation result;
  result.raise = part_of(reach, decision.frequency[kRaise]);
  result.call = part_of(reach, decision.frequency[kCall], result.raise);
  return result;
}

void stray(DecisionResult& decision, double last_raise, Regular regular) {
  for (std::size_t hand = 0; hand < kNumClasses; ++hand) {
    const auto edge = [&](Action a) {
      return (decision.value[a][hand] - decision.value[kFold][hand]) / (kEdge * last_raise);
    };
    ByAction& frequency = decision.frequency;
    double& fold = frequency[kFold][hand];
    if (regular == Regular::kTighter) {
      for (const Action a : {kCall, kRaise}) {
        const double kept = frequency[a][hand] * std::clamp(edge(a), 0.0, 1.0);
        fold += frequency[a][hand] - kept;
        frequency[a][hand] = kept;
      }
    } else {
      const Action best = edge(kCall) > edge(kRaise) ? kCall : kRaise;
      const double joined = fold * std::clamp(1 + edge(best), 0.0, 1.0);
      frequency[best][hand] += joined;
      fold -= joined;
    }
  }
}

}  // namespace

std::vector<ChartRow> chart_rows(const Table& table, const PreflopSolution& solution,
                                 velmora::Seat seat) {
  std::vector<ChartRow> rows;
  const auto add = [&](std::string group, const std::string& spot, std::string leaf,
                       std::string scenario, const ClassValues& range) {
    std::vector<std::string> folders{std::move(group)};
    if (!spot.empty()) folders.push_back(spot);
    rows.push_back({std::move(folders), std::move(leaf), std::move(scenario), range});
  };
  const auto name_of = [&](std::size_t position) {
    return std::string(table.positions[position].name);
  };
  const auto for_spots = [&](bool opener_acts, const std::function<void(std::size_t)>& visit) {
    for (std::size_t s = 0; s < table.confrontations.size(); ++s) {
      const bool in_position = table.confrontations[s].opener_in_position == opener_acts;
      if (in_position == (seat == velmora::kIp)) visit(s);
    }
  };
  const auto opened = [&](std::size_t s) {
    return rounded(solution.first_in[table.confrontations[s].opener].frequency[kRaise]);
  };

  const bool two_players = table.positions.size() == 2;
  if (!two_players || seat == velmora::kIp) {
    for (std::size_t p = 0; p + 1 < table.positions.size(); ++p) {
      add("RFI", "", name_of(p), "RFI " + name_of(p),
          rounded(solution.first_in[p].frequency[kRaise]));
    }
  }
  for_spots(false, [&](std::size_t s) {
    const std::string opener = name_of(table.confrontations[s].opener);
    const std::string caller = name_of(table.confrontations[s].caller);
    const auto ranges = continuation(filled(1), solution.confrontations[s][kVsOpen]);
    const std::string prefix = "vs RFI " + opener + ": ";
    add("vs RFI", "vs " + opener + " RFI", "Call " + caller, prefix + "Call " + caller,
        ranges.call);
    add("vs RFI", "vs " + opener + " RFI", "3bet " + caller, prefix + "3bet " + caller,
        ranges.raise);
  });
  for_spots(true, [&](std::size_t s) {
    const std::string opener = name_of(table.confrontations[s].opener);
    const std::string spot = opener + " vs " + name_of(table.confrontations[s].caller) + " 3bet";
    const auto ranges = continuation(opened(s), solution.confrontations[s][kVsThreeBet]);
    add("vs 3bet", spot, opener + " Call", spot + ": " + opener + " Call", ranges.call);
    add("vs 3bet", spot, opener + " 4bet", spot + ": " + opener + " 4bet", ranges.raise);
  });
  for_spots(false, [&](std::size_t s) {
    const std::string caller = name_of(table.confrontations[s].caller);
    const std::string spot =
        caller + " 3bet vs " + name_of(table.confrontations[s].opener) + " 4bet";
    const auto& decisions = solution.confrontations[s];
    const auto three_bets = continuation(filled(1), decisions[kVsOpen]).raise;
    add("vs 4bet", spot, caller + " Call", spot + ": " + caller + " Call",
        part_of(three_bets, decisions[kVsFourBet].frequency[kCall]));
  });
  return rows;
}

PreflopSolution strayed(const Table& table, PreflopSolution solution, Regular regular) {
  for (std::size_t p = 0; p < solution.first_in.size(); ++p) {
    stray(solution.first_in[p], table.positions[p].open_size, regular);
  }
  for (std::size_t s = 0; s < table.confrontations.size(); ++s) {
    const Confrontation& spot = table.confrontations[s];
    const std::array<double, kNumDecisions> last_raise{table.positions[spot.opener].open_size,
                                                       spot.three_bet, spot.four_bet, kStack};
    for (std::size_t d = 0; d < kNumDecisions; ++d) {
      stray(solution.confrontations[s][d], last_raise.at(d), regular);
    }
  }
  return solution;
}

}  // namespace preflop_charts
