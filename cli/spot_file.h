// Spots and node locks from JSON files.
#pragma once

#include <vector>

#include <QString>

#include "solve_session.h"

/// Reads a solve configuration map (snake-case keys) or the spot of a project file. The street
/// follows from the board; a file that states another one is refused. Keys that no spot has are
/// ignored. Throws `InputFault` with a line that names the file.
velmora_app::SolveConfig read_spot(const QString& path);

/// Reads a list of objects with "node", "hand", "action" and "frequency". Throws `InputFault`.
std::vector<velmora_app::NodeLockEntry> read_locks(const QString& path);
