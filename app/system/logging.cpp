#include "system/logging.h"

#include <cstdlib>
#include <mutex>
#include <vector>

#include <QDir>
#include <QTextStream>

namespace {

std::mutex logMutex;             ///< Makes a line whole.
std::vector<QFile*> logDevices;  ///< Those that could be opened.

const char* levelWord(QtMsgType type) {
  switch (type) {
    case QtDebugMsg: return "DEBUG";
    case QtWarningMsg: return "WARN";
    case QtCriticalMsg: return "ERROR";
    case QtFatalMsg: return "FATAL";
    default: return "INFO";
  }
}

}  // namespace

LogPaths logPaths(const QString& appDir, const QString& tempDir, const QString& currentDir) {
  const QString file = QDir::separator() + QStringLiteral("dunmarrow.log");
  return {appDir + file, (tempDir.isEmpty() ? currentDir : tempDir) + file};
}

QString logTimestamp(const QDateTime& time) {
  return time.toString(Qt::ISODateWithMs);
}

QString logLine(const QDateTime& time, QtMsgType type, const QString& message) {
  return logTimestamp(time) + " [" + levelWord(type) + "] " + message;
}

void logMessageHandler(QtMsgType type, const QMessageLogContext& /*context*/,
                       const QString& message) {
  const QString line = logLine(QDateTime::currentDateTime(), type, message);
  const std::lock_guard lock(logMutex);
  for (QFile* device : logDevices) {
    if (!device->isOpen()) continue;
    QTextStream stream(device);
    stream << line << '\n';
    stream.flush();
  }
  if (type == QtFatalMsg) std::abort();
}

LogFiles::LogFiles(const LogPaths& paths)
    : appDirLog_(paths.appDirLogPath), tempLog_(paths.tempLogPath) {}

LogFiles::~LogFiles() {
  if (!appDirLog_.isOpen() && !tempLog_.isOpen()) return;
  qInstallMessageHandler(nullptr);
  const std::lock_guard lock(logMutex);
  logDevices.clear();
}

bool LogFiles::open() {
  for (QFile* file : {&appDirLog_, &tempLog_}) {
    if (!file->open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) continue;
    const std::lock_guard lock(logMutex);
    logDevices.push_back(file);
  }
  if (!appDirLog_.isOpen() && !tempLog_.isOpen()) return false;
  qInstallMessageHandler(logMessageHandler);
  return true;
}
