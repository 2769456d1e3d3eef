// What a project file holds.
#pragma once

#include <QVariantMap>

#include "node_lock_table.h"
#include "result_caches.h"
#include "solve_outcome.h"
#include "tree_mirror.h"

/// A spot as the pages describe it, and what has been seen of its solution. A copy shares the data
/// and is cheap, so that a file can be written while the pages go on.
struct Project {
  QVariantMap state;        ///< As the pages gave it.
  bool hasResults = false;  ///< Without it the outcome and the tree are in no file.
  SolveOutcome outcome;
  TreeMirror tree;
  ResultCaches caches;
  QVariantMap resultCfg;      ///< The settings of the solve that made the result.
  NodeLockTable solvedLocks;  ///< In force in that solve.
  NodeLockTable nodeLocks;    ///< The user's, for the next one.
  QVariantMap lastUiCfg;
};
