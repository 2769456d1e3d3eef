// From the settings map of the pages (or a spot file) to a solve request.
#pragma once

#include <QString>
#include <QVariantMap>

#include "solve_session.h"

/// Text of a board as the solver reads it: every pair of a rank and a suit character as upper-case
/// rank and lower-case suit, pairs that are no card dropped. "as Kd 7h" gives "AsKd7h".
QString normalizedBoard(const QString& text);

/// The request that a solve configuration map (snake-case keys) describes. Absent keys keep the
/// defaults of `SolveConfig`; node locks are not in the map and stay empty.
velmora_app::SolveConfig makeSolveConfig(const QVariantMap& map);

/// The solve configuration map of a project state (camel-case keys, as project files store it).
/// The target, a percentage of the starting pot there, becomes an amount in chips.
QVariantMap solveConfigMapOfProject(const QVariantMap& projectState);

/// The project state that a solve configuration map was made of, without `threadCount`, which
/// belongs to the machine.
QVariantMap projectStateOfSolveConfigMap(const QVariantMap& map);
