#include "file_worker.h"

#include <system_error>
#include <utility>

namespace {

/// Smaller steps are not told.
constexpr double kStep = 0.01;

}  // namespace

FileWorker::~FileWorker() {
  if (thread_.joinable()) thread_.join();
}

void FileWorker::setProgress(double progress) {
  if (progress == progress_) return;
  progress_ = progress;
  emit progressChanged();
}

void FileWorker::run(std::function<void(const Progress&)> work, std::function<void()> done) {
  setProgress(0);
  const auto finish = [this, done = std::move(done)] {
    if (thread_.joinable()) thread_.join();
    setProgress(-1);
    done();
  };
  const auto report = [this, told = 0.0](double fraction) mutable {
    if (fraction < told + kStep) return;
    told = fraction;
    QMetaObject::invokeMethod(
        this, [this, fraction] { setProgress(fraction); }, Qt::QueuedConnection);
  };
  try {
    thread_ = std::thread([this, work, report, finish] {
      work(report);
      QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
    });
  } catch (const std::system_error&) {  // No thread to be had: the window has to wait.
    work({});
    finish();
  }
}
