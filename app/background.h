// Long work beside the window.
#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

#include <QObject>
#include <QString>

/// Runs work on other threads and brings its end back to the thread of this object. The latest work
/// counts: an older one is given up, and nothing more is heard of it. What the work throws becomes
/// the text that its end is given. Destroying the object gives up its work and waits for it.
class Background : public QObject {
  Q_OBJECT

 public:
  /// Work as it sees itself. Any thread.
  class Job : public std::enable_shared_from_this<Job> {
   public:
    /// True once nobody waits for the work any more. What must be whole, such as a file, goes on.
    bool givenUp() const { return givenUp_; }
    /// Done so far, 0..1.
    void report(double fraction);

   private:
    friend class Background;
    explicit Job(Background& owner) : owner_(owner) {}

    Background& owner_;
    std::atomic<bool> givenUp_ = false;
    std::atomic<bool> ended_ = false;  ///< Its thread is about to end.
    double reported_ = 0;
  };
  using Work = std::function<void(Job&)>;
  /// `fault` is the text of what the work threw, and empty else.
  using Done = std::function<void(const QString& fault)>;

  /// Works on up to `threads` threads: work that was given up may need a while to notice, and newer
  /// work waits if all threads are taken by such.
  explicit Background(int threads = 1, QObject* parent = nullptr);
  ~Background() override;

  /// True until the latest work has ended and its `done` was called, or it was given up.
  bool busy() const { return current_ != nullptr; }
  /// 0..1; -1 while not busy.
  double progress() const { return progress_; }
  /// Gives up the work under way, runs `work` on another thread and then `done` on this one. If the
  /// system refuses a thread, both run here at once.
  void run(Work work, Done done);
  /// The `done` of the work under way is not called.
  void giveUp();

 signals:
  void progressChanged();

 private:
  void setProgress(double progress);
  /// Joins the threads that have ended.
  void tidy();
  /// Waits for a free thread, if `job` was not given one. False if it was given up meanwhile.
  bool waitForTurn(const Job& job, bool hasTurn);

  const int threads_;
  double progress_ = -1;
  std::shared_ptr<Job> current_;
  std::list<std::pair<std::shared_ptr<Job>, std::thread>> started_;

  std::mutex mutex_;
  std::condition_variable turn_;
  int working_ = 0;  ///< Work under way, given up or not. Guarded by `mutex_`.
};
