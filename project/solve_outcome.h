// What the pages show of a finished solve.
#pragma once

#include <QString>
#include <QVariantList>

#include "solve_result.h"

/// The figures of a result, 0 and empty where there is none.
struct SolveOutcome {
  QString summary;  ///< One line: the figures, or why the solve failed.
  int startingPot = 0;
  int iterations = 0;
  double exploitability = 0;  ///< Chips.
  double evOop = 0;           ///< Chips.
  double evIp = 0;
  /// Locks kept the exploitability from falling, and the solve ended above its target.
  bool stalled = false;
  QVariantList rootActions;  ///< Maps of "name", "actionType" and "frequency" (0..1).
};

/// A failed result has a summary and nothing else.
SolveOutcome outcomeOf(const velmora_app::SolveResult& result);
