// Work on one file at a time beside the window.
#pragma once

#include <functional>
#include <thread>

#include <QObject>

/// Runs the long part of a file operation on a thread of its own. Destroying it waits for that.
class FileWorker : public QObject {
  Q_OBJECT

 public:
  using Progress = std::function<void(double)>;

  using QObject::QObject;
  ~FileWorker() override;

  bool busy() const { return progress_ >= 0; }
  /// 0..1; -1 while nothing is worked on.
  double progress() const { return progress_; }
  /// Runs `work`, which must throw nothing, on another thread and then `done` on this one. The
  /// worker must not be busy.
  void run(std::function<void(const Progress&)> work, std::function<void()> done);

 signals:
  void progressChanged();

 private:
  void setProgress(double progress);

  double progress_ = -1;
  std::thread thread_;
};
