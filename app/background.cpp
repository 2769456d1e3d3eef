#include "background.h"

#include <exception>
#include <system_error>
#include <utility>

#include "fault_scope.h"

namespace {

/// Smaller steps are not reported.
constexpr double kStep = 0.01;

QString faultOf(const Background::Work& work, Background::Job& job) {
  try {
    const velmora_app::FaultScope scope;
    work(job);
    return {};
  } catch (const std::exception& fault) {
    return QString::fromUtf8(fault.what());
  }
}

}  // namespace

void Background::Job::report(double fraction) {
  if (fraction < reported_ + kStep) return;
  reported_ = fraction;
  QMetaObject::invokeMethod(
      &owner_,
      [&owner = owner_, job = shared_from_this(), fraction] {
        if (owner.current_ == job) owner.setProgress(fraction);
      },
      Qt::QueuedConnection);
}

Background::Background(int threads, QObject* parent) : QObject(parent), threads_(threads) {}

Background::~Background() {
  giveUp();
  for (auto& [job, thread] : started_) thread.join();
}

void Background::setProgress(double progress) {
  if (progress == progress_) return;
  progress_ = progress;
  emit progressChanged();
}

void Background::tidy() {
  std::erase_if(started_, [](auto& started) {
    if (!started.first->ended_) return false;
    started.second.join();
    return true;
  });
}

void Background::giveUp() {
  if (!current_) return;
  {
    const std::lock_guard lock(mutex_);
    current_->givenUp_ = true;
  }
  turn_.notify_all();
  current_.reset();
  setProgress(-1);
}

bool Background::waitForTurn(const Job& job, bool hasTurn) {
  std::unique_lock lock(mutex_);
  if (hasTurn) return true;
  turn_.wait(lock, [&] { return job.givenUp_ || working_ < threads_; });
  if (job.givenUp_) return false;
  ++working_;
  return true;
}

void Background::run(Work work, Done done) {
  giveUp();
  tidy();
  const std::shared_ptr<Job> job(new Job(*this));
  current_ = job;
  setProgress(0);
  const auto finish = [this, job, done = std::move(done)](const QString& fault) {
    if (current_ != job) return;
    current_.reset();
    setProgress(-1);
    done(fault);
  };
  bool hasTurn = false;
  {
    const std::lock_guard lock(mutex_);
    hasTurn = working_ < threads_;
    if (hasTurn) ++working_;
  }
  const auto aside = [this, job, work, finish, hasTurn]() mutable {
    if (waitForTurn(*job, hasTurn)) {
      const QString fault = faultOf(work, *job);
      work = {};
      {
        const std::lock_guard lock(mutex_);
        --working_;
      }
      turn_.notify_all();
      QMetaObject::invokeMethod(
          this, [finish, fault] { finish(fault); }, Qt::QueuedConnection);
    }
    job->ended_ = true;
  };
  try {
    started_.emplace_back(job, std::thread(aside));
  } catch (const std::system_error&) {  // The window has to wait.
    if (hasTurn) {
      const std::lock_guard lock(mutex_);
      --working_;
    }
    finish(faultOf(work, *job));
  }
}
