// Project files: reading.
#pragma once

#include <functional>

#include <QString>

#include "project.h"

struct ProjectReading {
  QString error;    ///< Why the file was refused, translated; empty if it was read.
  Project project;  ///< Blank if it was refused.
};

/// What is missing in the file or of a wrong type reads as empty, 0 or false. May run on any
/// thread. `progress` receives fractions, 0..1, and may be empty.
ProjectReading readProject(const QString& path, const std::function<void(double)>& progress = {});
