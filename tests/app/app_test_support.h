// What the tests of these programs share.
#pragma once

#include <functional>
#include <sys/resource.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariantMap>

/// Solve configuration map of a river spot that solves in milliseconds. OOP holds aces only.
QVariantMap riverSpot();
/// The same, with more iterations than any test waits for and a target that is never reached.
QVariantMap endlessSpot();

/// Runs the event loop until the condition holds; false if it does not within a minute.
bool waitUntil(const std::function<bool()>& condition);

/// The bytes of a file; none if it can't be read.
QByteArray bytesOf(const QString& path);

/// While it lives no file of this process grows beyond so many bytes: a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes);
  ~FullDisk();
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_ = {};
};

/// Keeps the log messages of its lifetime, "warning: " in front of warnings, off the screen.
class LogCapture {
 public:
  LogCapture();
  ~LogCapture();
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  QStringList messages() const;
};
