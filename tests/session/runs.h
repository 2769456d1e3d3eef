// Requests for tests, and runs with what they report.
#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "solve_session.h"

namespace session_test {

using velmora_app::SolveConfig;
using velmora_app::SolveProgress;
using velmora_app::SolveResult;
using velmora_app::SolveSession;

/// A river spot of a few nodes: check, a bet of half of the pot, all-in.
inline SolveConfig river_request() {
  SolveConfig config;
  config.board = "AhKd7c2s9h";
  config.starting_street = "river";
  config.oop_range = "AA,QQ:0.5,JTs";
  config.ip_range = "KK,AQs,T9s";
  config.max_iterations = 3;
  config.target_exploitability = 0;
  config.oop_river = config.ip_river = {.bet_sizes = "50, a", .raise_sizes = "3x"};
  return config;
}

/// A flop spot with all kinds of nodes: folded chance cards, all-ins with cards to come.
inline SolveConfig flop_request() {
  SolveConfig config = river_request();
  config.board = "AhKh7h";
  config.starting_street = "flop";
  config.oop_range = "AA,QJs";
  config.ip_range = "KK,87s";
  config.oop_flop = {.bet_sizes = "50", .raise_sizes = "a"};
  config.ip_flop = {.bet_sizes = "a", .raise_sizes = ""};
  config.oop_turn = config.ip_turn = {};
  config.oop_river = {.bet_sizes = "a", .raise_sizes = ""};
  config.ip_river = {};
  return config;
}

/// The reports of one run.
class Reports {
 public:
  /// The callback to start with; `also` is called with each report before it can be seen here.
  SolveSession::Callback callback(std::function<void(const SolveProgress&)> also = {}) {
    return [kept = kept_, also = std::move(also)](const SolveProgress& report) {
      if (also) also(report);
      const std::lock_guard lock(kept->mutex);
      kept->reports.push_back(report);
      kept->changed.notify_all();
    };
  }

  /// Waits for the report that ends the run.
  SolveResult result() const {
    std::unique_lock lock(kept_->mutex);
    kept_->changed.wait(lock,
                        [this] { return !kept_->reports.empty() && kept_->reports.back().result; });
    return *kept_->reports.back().result;
  }
  /// Waits until there are so many reports.
  void wait_for(std::size_t count) const {
    std::unique_lock lock(kept_->mutex);
    kept_->changed.wait(lock, [&] { return kept_->reports.size() >= count; });
  }
  std::vector<SolveProgress> all() const {
    const std::lock_guard lock(kept_->mutex);
    return kept_->reports;
  }
  std::vector<std::string> statuses() const {
    std::vector<std::string> texts;
    for (const SolveProgress& report : all()) texts.push_back(report.status);
    return texts;
  }

 private:
  /// Shared with the callback, which may still be returning when the test goes on.
  struct Kept {
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<SolveProgress> reports;
  };

  std::shared_ptr<Kept> kept_ = std::make_shared<Kept>();
};

/// Runs a request to its end.
inline std::vector<SolveProgress> run(SolveSession& session, const SolveConfig& config) {
  Reports reports;
  if (!session.start(config, reports.callback())) return {};
  reports.result();
  return reports.all();
}

inline SolveResult result_of(SolveSession& session, const SolveConfig& config) {
  return *run(session, config).back().result;
}

}  // namespace session_test
