// The log files of a run: one beside the executable, one in the temporary directory.
#pragma once

#include <QDateTime>
#include <QFile>
#include <QString>

struct LogPaths {
  QString appDirLogPath;
  QString tempLogPath;
};

/// Full paths of the two log files. Without a temporary directory the current one takes its place.
LogPaths logPaths(const QString& appDir, const QString& tempDir, const QString& currentDir);

/// Date and time as every log line begins, such as "2026-11-18T05:16:07.123".
QString logTimestamp(const QDateTime& time);
/// One line of a log file, without its end.
QString logLine(const QDateTime& time, QtMsgType type, const QString& message);

/// Writes a message to every open log file; whole lines, from any thread. A fatal message ends
/// the process once it is written.
void logMessageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);

/// The log files of the process. There is one such object; while it lives and a file of it is
/// open, `logMessageHandler` writes there.
class LogFiles {
 public:
  /// Opens nothing yet.
  explicit LogFiles(const LogPaths& paths);
  ~LogFiles();
  LogFiles(const LogFiles&) = delete;
  LogFiles& operator=(const LogFiles&) = delete;

  /// Opens both files for appending and, if one could be opened, makes every message of the
  /// process a line of theirs. False leaves the messages where they went before.
  bool open();

 private:
  QFile appDirLog_;
  QFile tempLog_;
};
