#include "bench_spots.h"

#include <bit>
#include <chrono>

#include "discounted_cfr.h"
#include "game.h"
#include "spot.h"

namespace {

using velmora_app::SolveConfig;

constexpr const char* kWideOop =
    "22+,A2s+,K8s+,Q9s+,J8s+,T8s+,97s+,86s+,75s+,64s+,54s,A9o+,KTo+,QJo:0.5,JTo:0.5";
constexpr const char* kWideIp =
    "99-22,AJs-A2s,K2s+,Q5s+,J7s+,T7s+,96s+,85s+,74s+,AQo-A8o,K9o+,QTo+,J9o+,T9o:0.5";

SolveConfig spot(const char* board, const char* street, std::uint32_t iterations) {
  SolveConfig config;
  config.board = board;
  config.starting_street = street;
  config.max_iterations = iterations;
  config.oop_range = kWideOop;
  config.ip_range = kWideIp;
  config.starting_pot = 180;
  config.effective_stack = 910;
  for (auto* sizing : {&config.oop_flop, &config.oop_turn, &config.oop_river, &config.ip_flop,
                       &config.ip_turn, &config.ip_river}) {
    sizing->bet_sizes = "60";
    sizing->raise_sizes = "50";
  }
  return config;
}

class Signature {
 public:
  void add(float value) {
    hash_ = (hash_ ^ std::bit_cast<std::uint32_t>(value)) * 0x100000001B3;
    hash_ ^= hash_ >> 31;
  }
  std::uint64_t value() const { return hash_; }

 private:
  std::uint64_t hash_ = 0xCBF29CE484222325;
};

void sign(const velmora::Game& game, const velmora::DiscountedCfr& solver, Signature& signature) {
  signature.add(solver.measure_exploitability(game));
  for (const float value : solver.cf_values(game)) signature.add(value);
  velmora::ScratchStack scratch;
  for (std::size_t i = 0; i < solver.states().size(); ++i) {
    const velmora::NodeState& state = solver.states().node(i);
    if (!state.active) continue;
    const velmora::ScratchStack::Frame frame(scratch);
    const float* const sums = solver.states().strategy_sums(state, scratch);
    for (std::size_t a = 0; a < state.num_actions; ++a) {
      for (std::size_t h = 0; h < state.num_hands; ++h) {
        signature.add(sums[a * state.row_length() + h]);
      }
    }
  }
}

}  // namespace

std::vector<BenchSpot> bench_spots() {
  std::vector<BenchSpot> spots = {
      {"river", spot("QsJh2h7c5d", "river", 2000)},
      {"river, rake, three sizes", spot("QsJh2h7c5d", "river", 600)},
      {"turn", spot("QsJh2h7c", "turn", 30)},
      {"turn, compressed", spot("QsJh2h7c", "turn", 12)},
      {"flop, shallow, rake", spot("QsJh2h", "flop", 3)},
      {"flop, one suit, shallow", spot("Ah7h2h", "flop", 3)},
  };
  SolveConfig& sizes = spots[1].config;
  sizes.rake_percent = 5;
  sizes.rake_cap = 30;
  sizes.oop_river.bet_sizes = sizes.ip_river.bet_sizes = "33,75,150";
  spots[3].config.compressed_storage = true;
  spots[4].config.effective_stack = 250;
  spots[4].config.rake_percent = 5;
  spots[4].config.rake_cap = 10;
  spots[5].config.effective_stack = 250;
  return spots;
}

velmora_app::SolveConfig quick_spot() {
  SolveConfig config = spot("QsJh2h", "flop", 400);
  config.oop_range =
      "88+,A8s+,A5s,A4s,A3s-A2s:0.5,AJo+,ATo,K9s+,KQo,KJo:0.75,KTo:0.25,Q9s+,QJo:0.5,J8s+,JTo:0.25,"
      "T8s+,T7s:0.45,97s+,96s:0.45,87s,86s:0.75,85s:0.45,75s+:0.75,65s:0.75,64s:0.5,54s:0.75,"
      "53s:0.5,43s:0.5,32s:0.45,A9o:0.5,K8s:0.5,Q8s:0.5,77:0.5,66:0.5,55:0.25";
  config.ip_range =
      "AA:0.25,99-22,AJs-A6s,A5s-A4s:0.5,A3s-A2s,AQo-A7o,K2s+,K9o+,Q4s+,Q3s-Q2s:0.5,Q9o+,J6s+,J9o+,"
      "T6s+,T9o,96s+,95s:0.5,98o,86s+,85s:0.5,75s+,74s:0.5,64s+,63s:0.5,54s,53s:0.5,43s,QQ:0.25,"
      "JJ:0.25,TT:0.5,A5o:0.5,A4o:0.5,J5s:0.5,T5s:0.5";
  config.rake_percent = 5;
  config.rake_cap = 30;
  const auto size = [](velmora_app::StreetSizingText& oop, velmora_app::StreetSizingText& ip,
                       const char* bet) {
    oop.bet_sizes = ip.bet_sizes = bet;
    oop.raise_sizes = ip.raise_sizes = "45";
  };
  size(config.oop_flop, config.ip_flop, "52");
  size(config.oop_turn, config.ip_turn, "55");
  size(config.oop_river, config.ip_river, "70");
  return config;
}

velmora_app::SolveConfig two_size_spot() {
  SolveConfig config = quick_spot();
  config.board = "Ts8d4c";
  config.effective_stack = 500;
  config.rake_percent = 0;
  config.oop_range = "99-22,ATs-A2s,KTs+,QTs+,J9s+,T8s+,97s+,87s,76s,65s,AJo-ATo,KQo";
  config.ip_range = "88+,A5s+,K9s+,Q9s+,J9s+,T9s,98s,87s,ATo+,KJo+,QJo";
  for (auto* sizing : {&config.oop_flop, &config.oop_turn, &config.oop_river, &config.ip_flop,
                       &config.ip_turn, &config.ip_river}) {
    sizing->bet_sizes = "33,75";
    sizing->raise_sizes = "50";
  }
  return config;
}

BenchReport run_bench(std::uint64_t threads, const std::function<void(const BenchLine&)>& on_line) {
  BenchReport report;
  Signature signature;
  for (const BenchSpot& spot : bench_spots()) {
    const velmora_app::SpotCards cards = translate_cards(spot.config);
    velmora::GameSettings settings = translate_settings(spot.config);
    translate_sizing(spot.config, settings);
    velmora::Game game(std::move(settings), velmora::CardContext(cards.board, cards.weights));
    velmora::SolverOptions options;
    options.threads = threads;
    options.compressed_storage = spot.config.compressed_storage;
    velmora::DiscountedCfr solver(std::move(options));
    solver.prepare_states(game);

    const auto start = std::chrono::steady_clock::now();
    for (std::uint32_t i = 0; i < spot.config.max_iterations; ++i) solver.run_iteration(game, i);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;

    sign(game, solver, signature);
    report.lines.push_back({spot.name, spot.config.max_iterations, elapsed.count()});
    if (on_line) on_line(report.lines.back());
  }
  report.signature = signature.value();
  return report;
}
