#include "app_test_support.h"

#include <csignal>
#include <mutex>

#include <QFile>
#include <QTest>

namespace {

std::mutex captureMutex;
QStringList capturedMessages;

void capture(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  const std::lock_guard lock(captureMutex);
  capturedMessages << (type == QtWarningMsg ? "warning: " + message : message);
}

}  // namespace

QVariantMap riverSpot() {
  QVariantMap map{
      {"board", "KsQd7h2c3s"},      {"starting_pot", 100},        {"effective_stack", 200},
      {"max_iterations", 60},       {"target_exploitability", 0}, {"thread_count", 1},
      {"starting_street", "river"}, {"oop_range", "AA"},          {"ip_range", "KK,JJ,KJs"}};
  for (const char* seat : {"oop", "ip"}) {
    for (const char* street : {"flop", "turn", "river"}) {
      map[QStringLiteral("%1_%2_bet_sizes").arg(seat, street)] = "50";
      map[QStringLiteral("%1_%2_raise_sizes").arg(seat, street)] = "60";
    }
  }
  return map;
}

QVariantMap endlessSpot() {
  QVariantMap map = riverSpot();
  map["max_iterations"] = 4'000'000'000U;
  map["target_exploitability"] = -1;
  return map;
}

bool waitUntil(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 60'000);
}

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
