#include "worker_pool.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <exception>
#include <memory>
#include <utility>

namespace velmora {
namespace {

thread_local bool this_thread_in_worker = false;

/// Marks the thread while it runs a share of a loop.
class WorkerMark {
 public:
  WorkerMark() : before_(std::exchange(this_thread_in_worker, true)) {}
  ~WorkerMark() { this_thread_in_worker = before_; }
  WorkerMark(const WorkerMark&) = delete;
  WorkerMark& operator=(const WorkerMark&) = delete;

 private:
  bool before_;
};

/// What the chunks of one loop share. A chunk holds a reference of its own, so that waking the
/// caller never touches memory that the caller has already left.
struct FanOut {
  explicit FanOut(std::size_t chunks) : remaining(chunks) {}

  void run(const WorkerPool::Body& body, std::size_t begin, std::size_t end) noexcept {
    try {
      body(begin, end);
    } catch (...) {
      if (!faulted.exchange(true)) fault = std::current_exception();
    }
  }

  void finish_chunk() {
    if (remaining.fetch_sub(1) == 1) remaining.notify_all();
  }

  void wait() {
    for (std::size_t left = remaining.load(); left != 0; left = remaining.load()) {
      remaining.wait(left);
    }
  }

  std::atomic<std::size_t> remaining;
  std::atomic<bool> faulted = false;
  std::exception_ptr fault;  ///< Written by the first chunk that faults, read after `wait`.
};

}  // namespace

WorkerPool::WorkerPool(std::size_t count) {
  try {
    threads_.reserve(count);
    for (std::size_t i = 0; i < count; ++i) threads_.emplace_back([this] { run(); });
  } catch (...) {
    stop_and_join();
    throw;
  }
}

WorkerPool::~WorkerPool() {
  stop_and_join();
}

void WorkerPool::stop_and_join() noexcept {
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
  }
  wake_.notify_all();
  for (std::thread& thread : threads_) thread.join();
}

void WorkerPool::submit(Task task) {
  {
    const std::lock_guard lock(mutex_);
    queue_.push_back(std::move(task));
  }
  wake_.notify_one();
}

bool WorkerPool::in_worker() {
  return this_thread_in_worker;
}

void WorkerPool::run() {
  for (;;) {
    Task task;
    {
      std::unique_lock lock(mutex_);
      wake_.wait(lock, [this] { return stop_ || !queue_.empty(); });
      if (queue_.empty()) return;
      task = std::move(queue_.front());
      queue_.pop_front();
    }
    const WorkerMark mark;
    task();
  }
}

void WorkerPool::parallel_for(std::size_t count, const Body& body) {
  const std::size_t parts = std::min(threads_.size() + 1, count);
  const std::size_t chunk = parts ? (count + parts - 1) / parts : 1;
  const std::size_t chunks = (count + chunk - 1) / chunk;
  if (chunks < 2 || in_worker()) {
    body(0, count);
    return;
  }
  const auto fan_out = std::make_shared<FanOut>(chunks - 1);
  const std::size_t last = chunks - 1;
  std::size_t submitted = 0;
  try {
    for (; submitted < last; ++submitted) {
      const std::size_t begin = submitted * chunk;
      submit([fan_out, &body, begin, end = begin + chunk] {
        fan_out->run(body, begin, end);
        fan_out->finish_chunk();
      });
    }
  } catch (...) {
    // The queue could not grow: the chunks that did not get in are given up, the others still
    // refer to `body` and must end first.
    if (!fan_out->faulted.exchange(true)) fan_out->fault = std::current_exception();
    for (std::size_t i = submitted; i < last; ++i) fan_out->finish_chunk();
  }
  if (submitted == last) {
    // A loop inside this share would wait in the queue behind the other shares of this one.
    const WorkerMark mark;
    fan_out->run(body, last * chunk, count);
  }
  fan_out->wait();
  // Taken out, so that the exception ends here and not on a pool thread that is still letting go.
  if (fan_out->fault) std::rethrow_exception(std::exchange(fan_out->fault, nullptr));
}

void parallel_for(WorkerPool* pool, std::size_t count, const WorkerPool::Body& body) {
  if (pool) {
    pool->parallel_for(count, body);
  } else {
    body(0, count);
  }
}

std::size_t worker_limit(const char* environment_variable) {
  if (const char* text = std::getenv(environment_variable)) {
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(text, &end, 10);
    if (end != text && errno == 0 && value > 0) {
      return static_cast<std::size_t>(value);
    }
  }
  return std::max(1U, std::thread::hardware_concurrency());
}

}  // namespace velmora
