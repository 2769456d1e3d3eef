// What tests of files and of the log share.
#pragma once

#include <sys/resource.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

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
