// Project files: writing.
#pragma once

#include <functional>

#include <QString>

#include "project.h"

/// Writes the file, or leaves what was there. Answers with the translated reason of a failure,
/// which is in the log as well, or with nothing. May run on any thread. `progress` receives
/// fractions, 0..1, and may be empty.
QString writeProject(const Project& project, const QString& path,
                     const std::function<void(double)>& progress = {});
