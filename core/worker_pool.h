// A small pool of threads that spreads the items of a loop over contiguous chunks.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace velmora {

/// One shared first-in first-out queue and threads that run its tasks. Destroying the pool runs
/// what is still queued and joins the threads.
class WorkerPool {
 public:
  using Task = std::function<void()>;
  /// Takes (begin, end), a half-open range of item indices.
  using Body = std::function<void(std::size_t, std::size_t)>;

  /// Starts `count` threads. Throws `std::system_error` if the system refuses one.
  explicit WorkerPool(std::size_t count);
  ~WorkerPool();
  WorkerPool(const WorkerPool&) = delete;
  WorkerPool& operator=(const WorkerPool&) = delete;

  /// Appends a task to the queue. A task must not throw.
  void submit(Task task);

  /// Runs `body` over the items 0..count-1 in `size() + 1` chunks at most, the last of them on the
  /// calling thread, and returns when all are done. Chunks are fixed in advance, so the split is
  /// the same in every run. On a thread that is in such a loop already, or with fewer than two
  /// items, the body runs once over all items. The first exception of a body is thrown again here,
  /// after all chunks.
  void parallel_for(std::size_t count, const Body& body);

  std::size_t size() const { return threads_.size(); }
  /// True on a thread that is running a task of some pool or its own share of a loop.
  static bool in_worker();

 private:
  void run();
  void stop_and_join() noexcept;

  std::vector<std::thread> threads_;
  std::mutex mutex_;  ///< Guards the queue and `stop_`.
  std::condition_variable wake_;
  std::deque<Task> queue_;
  bool stop_ = false;
};

/// `parallel_for` of a pool that may be absent: without one the body runs over all items here.
void parallel_for(WorkerPool* pool, std::size_t count, const WorkerPool::Body& body);

/// Value of an environment variable that limits a number of workers: the whole number above 0
/// that it begins with, else the processor's hardware concurrency (1 if that is unknown).
std::size_t worker_limit(const char* environment_variable);

}  // namespace velmora
