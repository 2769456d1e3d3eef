#include "system/file_worker.h"

#include <exception>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace {

/// Smaller steps are not reported.
constexpr double kStep = 0.01;

}  // namespace

FileWorker::~FileWorker() {
  giveUpReading();
  if (thread_.joinable()) thread_.join();
}

void FileWorker::setProgress(double progress) {
  if (progress == progress_) return;
  progress_ = progress;
  emit progressChanged();
}

void FileWorker::giveUpReading() {
  if (!job_ || job_->kind != Kind::kReading) return;
  job_->givenUp = true;
  job_.reset();
  // It ends at its next report of progress.
  if (thread_.joinable()) thread_.join();
  setProgress(-1);
}

void FileWorker::run(Kind kind, std::function<void(const Progress&)> work,
                     std::function<void(const QString& fault)> done) {
  const auto job = std::make_shared<Job>();
  job->kind = kind;
  job_ = job;
  setProgress(0);
  const auto fault = std::make_shared<QString>();
  const auto finish = [this, job, fault, done = std::move(done)] {
    if (job_ != job) return;
    if (thread_.joinable()) thread_.join();
    job_.reset();
    setProgress(-1);
    done(*fault);
  };
  const auto report = [this, job, reported = 0.0](double fraction) mutable {
    if (job->givenUp) throw std::runtime_error("given up");
    if (fraction < reported + kStep) return;
    reported = fraction;
    QMetaObject::invokeMethod(
        this,
        [this, job, fraction] {
          if (job_ == job) setProgress(fraction);
        },
        Qt::QueuedConnection);
  };
  const auto guarded = [work = std::move(work), fault](const Progress& progress) {
    try {
      work(progress);
    } catch (const std::exception& thrown) {
      *fault = QString::fromUtf8(thrown.what());
    }
  };
  try {
    thread_ = std::thread([this, guarded, report, finish] {
      guarded(report);
      QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
    });
  } catch (const std::system_error&) {  // No thread to be had: the window has to wait.
    guarded([](double) {});
    finish();
  }
}
