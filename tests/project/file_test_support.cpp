#include "file_test_support.h"

#include <csignal>
#include <mutex>

#include <QFile>

namespace {

std::mutex captureMutex;
QStringList capturedMessages;

void capture(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  const std::lock_guard lock(captureMutex);
  capturedMessages << (type == QtWarningMsg ? "warning: " + message : message);
}

}  // namespace

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

FullDisk::FullDisk(rlim_t bytes) {
  getrlimit(RLIMIT_FSIZE, &before_);
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small = {bytes, before_.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
}

FullDisk::~FullDisk() {
  setrlimit(RLIMIT_FSIZE, &before_);
  std::signal(SIGXFSZ, SIG_DFL);
}

LogCapture::LogCapture() {
  const std::lock_guard lock(captureMutex);
  capturedMessages.clear();
  qInstallMessageHandler(capture);
}

LogCapture::~LogCapture() {
  qInstallMessageHandler(nullptr);
}

QStringList LogCapture::messages() const {
  const std::lock_guard lock(captureMutex);
  return capturedMessages;
}
