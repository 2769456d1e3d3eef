#include "system_memory.h"

#include <fstream>
#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace velmora_app {
namespace {

TEST(SystemMemory, FiguresFitTheMachine) {
  const std::uint64_t total = total_memory_bytes();
  const std::uint64_t available = available_memory_bytes();
  EXPECT_GT(available, std::uint64_t{1} << 20);
  EXPECT_LE(available, total);
  EXPECT_LT(total, std::uint64_t{1} << 60);

  std::ifstream meminfo("/proc/meminfo");
  std::string name;
  std::uint64_t kilobytes = 0;
  ASSERT_TRUE(meminfo >> name >> kilobytes);
  ASSERT_EQ(name, "MemTotal:");
  EXPECT_LE(total, kilobytes * 1024);

  EXPECT_GE(available_processors(), 1U);
  EXPECT_LE(available_processors(), std::thread::hardware_concurrency());
}

}  // namespace
}  // namespace velmora_app
