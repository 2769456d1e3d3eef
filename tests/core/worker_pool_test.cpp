#include "worker_pool.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <numeric>
#include <optional>
#include <set>
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

#include "faults.h"
#include "scoped_environment.h"

namespace velmora {
namespace {

using velmora_test::ScopedEnvironment;

using Range = std::pair<std::size_t, std::size_t>;

struct Split {
  std::vector<Range> chunks;  ///< In ascending order.
  std::vector<Range> here;    ///< Those of the calling thread.
};

Split split_of(WorkerPool* pool, std::size_t count) {
  std::mutex mutex;
  Split split;
  parallel_for(pool, count,
               [&, caller = std::this_thread::get_id()](std::size_t begin, std::size_t end) {
                 const std::lock_guard lock(mutex);
                 split.chunks.emplace_back(begin, end);
                 if (std::this_thread::get_id() == caller) split.here.emplace_back(begin, end);
               });
  std::sort(split.chunks.begin(), split.chunks.end());
  return split;
}

TEST(WorkerPool, ChunksAreFixedAndTheCallerTakesTheLast) {
  struct Case {
    std::size_t workers;
    std::size_t count;
    std::vector<Range> chunks;
  };
  const Case cases[] = {
      {4, 45, {{0, 12}, {12, 24}, {24, 36}, {36, 45}}},
      {16, 3, {{0, 1}, {1, 2}, {2, 3}}},
      {2, 2, {{0, 1}, {1, 2}}},
      {2, 1, {{0, 1}}},
      {2, 0, {{0, 0}}},
      {1, 45, {{0, 45}}},
  };
  for (const Case& c : cases) {
    WorkerPool pool(c.workers - 1);
    EXPECT_EQ(pool.size(), c.workers - 1);
    const Split split = split_of(&pool, c.count);
    EXPECT_EQ(split.chunks, c.chunks) << c.workers << " workers, " << c.count;
    EXPECT_EQ(split.here, std::vector<Range>{c.chunks.back()}) << c.workers << ", " << c.count;
  }
  EXPECT_EQ(split_of(nullptr, 45).here, (std::vector<Range>{{0, 45}}));
}

TEST(WorkerPool, ALoopInsideALoopRunsInPlace) {
  WorkerPool pool(3);
  WorkerPool other(3);
  EXPECT_FALSE(WorkerPool::in_worker());
  std::atomic<int> in_place = 0;
  std::atomic<int> nested_chunks = 0;
  std::atomic<int> marked = 0;
  pool.parallel_for(4, [&](std::size_t, std::size_t) {
    for (WorkerPool* nested : {&pool, &other}) {
      nested->parallel_for(100,
                           [&, here = std::this_thread::get_id()](std::size_t, std::size_t end) {
                             ++nested_chunks;
                             if (end == 100 && std::this_thread::get_id() == here) ++in_place;
                           });
      // The end of an inner loop leaves the outer one where it was.
      marked += WorkerPool::in_worker() ? 1 : 0;
    }
  });
  EXPECT_EQ(nested_chunks, 8);
  EXPECT_EQ(in_place, 8);
  EXPECT_EQ(marked, 8);
  EXPECT_FALSE(WorkerPool::in_worker());

  // Nor does a fault leave the mark behind.
  EXPECT_THROW(pool.parallel_for(4, [](std::size_t, std::size_t) { throw 7; }), int);
  EXPECT_FALSE(WorkerPool::in_worker());
  EXPECT_EQ(split_of(&pool, 4).chunks.size(), 4U);
}

TEST(WorkerPool, FaultsReachTheCaller) {
  WorkerPool pool(3);
  // Where a chunk faults, the others still run to their end before the loop returns, and the pool
  // goes on working.
  for (const std::set<std::size_t>& faulty :
       {std::set<std::size_t>{0}, {1}, {3}, {0, 1, 2, 3}, {}, {0, 3}}) {
    std::atomic<std::size_t> ended = 0;
    const std::string fault = faults::of([&] {
      pool.parallel_for(4, [&](std::size_t begin, std::size_t) {
        if (faulty.count(begin)) throw std::invalid_argument("chunk failed");
        std::this_thread::sleep_for(std::chrono::milliseconds(begin == 3 ? 0 : 5));
        ++ended;
      });
    });
    EXPECT_EQ(fault, faulty.empty() ? "none" : "invalid: chunk failed");
    EXPECT_EQ(ended, 4 - faulty.size());
  }
  EXPECT_THROW(parallel_for(nullptr, 4, [](std::size_t, std::size_t) { throw 7; }), int);
}

TEST(WorkerPool, QueuedTasksRunInOrderBeforeTheEnd) {
  std::vector<int> order;
  std::atomic<int> open = 0;
  {
    WorkerPool one(1);
    for (int i = 0; i < 100; ++i) one.submit([&order, i] { order.push_back(i); });
  }
  std::vector<int> expected(100);
  std::iota(expected.begin(), expected.end(), 0);
  EXPECT_EQ(order, expected);
  {
    WorkerPool many(4);
    for (int i = 0; i < 100; ++i) many.submit([&open] { ++open; });
  }
  EXPECT_EQ(open, 100);
  const WorkerPool idle(4);
}

TEST(WorkerPool, LimitFromTheEnvironment) {
  const std::size_t processors = std::max(1U, std::thread::hardware_concurrency());
  const std::vector<std::pair<std::optional<std::string>, std::size_t>> cases = {
      {std::nullopt, processors}, {"1", 1},          {"8abc", 8},
      {"", processors},           {"0", processors}, {"99999999999999999999", processors}};
  for (const auto& [value, limit] : cases) {
    const ScopedEnvironment environment("VELMORA_TEST_WORKERS", value);
    EXPECT_EQ(worker_limit("VELMORA_TEST_WORKERS"), limit) << value.value_or("unset");
  }
}

}  // namespace
}  // namespace velmora
