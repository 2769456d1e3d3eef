#include "solve_outcome.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include <QCoreApplication>
#include <QDebug>
#include <QVariantMap>

using velmora_app::SolveResult;

namespace {

QVariantList rootActionsOf(const SolveResult& result) {
  const std::size_t names = result.root_action_names.size();
  const std::size_t types = result.root_action_types.size();
  const std::size_t freqs = result.root_action_freqs.size();
  const std::size_t n = std::min({names, types, freqs});
  if (names != n || types != n || freqs != n) {
    qWarning().noquote().nospace()
        << "Result root action arrays have mismatched sizes: names=" << names << " types=" << types
        << " freqs=" << freqs << " (using n=" << n << ")";
  }
  QVariantList actions;
  for (std::size_t i = 0; i < n; ++i) {
    actions.append(QVariantMap{{"name", QString::fromStdString(result.root_action_names[i])},
                               {"actionType", QString::fromStdString(result.root_action_types[i])},
                               {"frequency", static_cast<double>(result.root_action_freqs[i])}});
  }
  return actions;
}

}  // namespace

SolveOutcome outcomeOf(const SolveResult& result) {
  SolveOutcome outcome;
  if (!result.success) {
    outcome.summary = QCoreApplication::translate("AppController", "Solve failed: %1")
                          .arg(QString::fromStdString(result.error));
    return outcome;
  }
  outcome.summary =
      QCoreApplication::translate("AppController",
                                  "Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5")
          .arg(QString::fromStdString(result.board), QString::number(result.iterations),
               QString::number(result.exploitability, 'f', 4),
               QString::number(result.ev_oop, 'f', 3), QString::number(result.ev_ip, 'f', 3));
  outcome.startingPot = result.starting_pot;
  outcome.iterations = static_cast<int>(std::min<std::uint32_t>(result.iterations, INT_MAX));
  outcome.exploitability = result.exploitability;
  outcome.evOop = result.ev_oop;
  outcome.evIp = result.ev_ip;
  outcome.stalled = result.stalled;
  outcome.rootActions = rootActionsOf(result);
  return outcome;
}
