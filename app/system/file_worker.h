// Work on one file at a time beside the window.
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

#include <QObject>
#include <QString>

/// Runs the long part of a file operation on a thread of its own. Destroying it waits for that.
class FileWorker : public QObject {
  Q_OBJECT

 public:
  enum class Kind { kReading, kWriting };
  /// Takes fractions, 0..1. Throws if the work was given up.
  using Progress = std::function<void(double)>;

  using QObject::QObject;
  ~FileWorker() override;

  bool busy() const { return job_ != nullptr; }
  /// 0..1; -1 while nothing is worked on.
  double progress() const { return progress_; }
  /// Runs `work` on another thread and then `done` on this one, with the text of what `work` threw.
  /// The worker must not be busy.
  void run(Kind kind, std::function<void(const Progress&)> work,
           std::function<void(const QString& fault)> done);
  /// Forgets a file that is being read: its `done` is not called. Files are always written whole.
  void giveUpReading();

 signals:
  void progressChanged();

 private:
  struct Job {
    Kind kind = Kind::kReading;
    std::atomic<bool> givenUp = false;
  };

  void setProgress(double progress);

  double progress_ = -1;
  std::shared_ptr<Job> job_;
  std::thread thread_;
};
