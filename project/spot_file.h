// Spots and node locks from JSON files.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include <QString>

#include "spot.h"

/// Input that can't be used. The text is one line for the user.
struct InputFault : std::runtime_error {
  using std::runtime_error::runtime_error;
  explicit InputFault(const QString& text) : std::runtime_error(text.toStdString()) {}
};

/// Reads a solve configuration map (snake-case keys) or the spot of a project file. The street
/// follows from the board; a file that states another one is refused. Keys that no spot has are
/// ignored. Throws `InputFault` with a line that names the file.
velmora_app::SolveConfig read_spot(const QString& path);

/// Reads a list of objects with "node", "hand", "action" and "frequency". Throws `InputFault`.
std::vector<velmora_app::NodeLockEntry> read_locks(const QString& path);
