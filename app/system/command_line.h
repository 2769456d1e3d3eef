// What a user may type behind the program's name.
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

struct CommandLine {
  bool help = false;
  bool version = false;
  QString error;  ///< Why the line is refused, one sentence; empty if it isn't.
  QUrl project;   ///< To open at the start; empty if none was named.
};

/// Reads the arguments, the program's name first. The project may be a path, relative to
/// `currentDir`, or a file URL. Needs no application object.
CommandLine readCommandLine(const QStringList& arguments, const QString& currentDir);

/// The text of --help. Needs an application object for the program's name.
QString commandLineHelp();
