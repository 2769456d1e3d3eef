#include "system/memory_monitor.h"

#include <atomic>
#include <future>
#include <limits>
#include <memory>
#include <stdexcept>
#include <thread>

#include <QSignalSpy>

#include <gtest/gtest.h>

#include "app_test_support.h"

namespace {

constexpr quint64 kGigabyte = 1ULL << 30;
constexpr quint64 kMost = std::numeric_limits<quint64>::max();

/// 8 GB in all, 7 GB available, estimates as told.
MemoryMonitor::Sources sourcesWith(
    std::function<quint64(const velmora_app::SolveConfig&)> estimate) {
  return {[] { return 8 * kGigabyte; }, [] { return 7 * kGigabyte; }, std::move(estimate)};
}

}  // namespace

TEST(MemoryText, HasADecimalBelowTen) {
  const std::pair<quint64, const char*> cases[] = {{0, "—"},
                                                   {1, "1 MB"},
                                                   {kGigabyte - 1, "1024 MB"},
                                                   {kGigabyte, "1.0 GB"},
                                                   {kGigabyte * 31 / 10, "3.1 GB"},
                                                   {10 * kGigabyte - 1, "10.0 GB"},
                                                   {10 * kGigabyte, "10 GB"},
                                                   {kGigabyte * 127 / 2, "64 GB"},
                                                   {kMost, "17179869184 GB"}};
  for (const auto& [bytes, text] : cases) {
    EXPECT_EQ(memoryText(bytes).toStdString(), text) << bytes;
  }
}

TEST(EffectiveAvailableBytes, IsHeldToTheWholeAndNeverWraps) {
  EXPECT_EQ(effectiveAvailableBytes(4, 3, 8), 7U);
  EXPECT_EQ(effectiveAvailableBytes(7, 3, 8), 8U);
  EXPECT_EQ(effectiveAvailableBytes(7, 3, 0), 10U);
  EXPECT_EQ(effectiveAvailableBytes(kMost - 1, 5, 0), kMost);
  EXPECT_EQ(effectiveAvailableBytes(5, kMost, 8), 8U);
  EXPECT_EQ(effectiveAvailableBytes(0, 0, 8), 0U);
}

TEST(MemoryMonitor, TellsOfTheAvailableFigureOnlyWhenItChanges) {
  quint64 available = 5 * kGigabyte;
  MemoryMonitor monitor({[] { return 8 * kGigabyte; }, [&] { return available; }, {}});
  EXPECT_EQ(monitor.systemText(), "8.0 GB");
  EXPECT_EQ(monitor.availableText(), "5.0 GB");
  EXPECT_EQ(monitor.requiredText(), "—");

  const QSignalSpy changed(&monitor, &MemoryMonitor::systemMemoryChanged);
  monitor.refreshAvailable();
  EXPECT_EQ(changed.count(), 0);
  available += 1;
  monitor.refreshAvailable();
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(monitor.availableBytes(), 5 * kGigabyte + 1);
  available = 0;
  EXPECT_TRUE(waitUntil([&] { return monitor.availableBytes() == 0; })) << "not polled";
  EXPECT_EQ(monitor.availableText(), "—");
}

TEST(MemoryMonitor, OnlyTheLastRequestCounts) {
  std::promise<void> release;
  std::atomic<bool> firstStarted = false, firstAnswered = false;
  MemoryMonitor monitor(sourcesWith([&](const velmora_app::SolveConfig& config) -> quint64 {
    const auto pot = static_cast<quint64>(config.starting_pot);
    if (pot == 4) throw std::runtime_error("no memory to count memory");
    if (pot == 1) {
      firstStarted = true;
      release.get_future().wait();
      firstAnswered = true;
    }
    return pot * kGigabyte;
  }));
  QList<quint64> figures;
  QObject::connect(&monitor, &MemoryMonitor::solveRequiredMemoryChanged, &monitor,
                   [&] { figures << monitor.requiredBytes() / kGigabyte; });
  const auto request = [&](int pot) { monitor.requestEstimate({{"starting_pot", pot}}); };
  request(1);
  ASSERT_TRUE(waitUntil([&] { return firstStarted.load(); }));
  request(2);
  ASSERT_TRUE(waitUntil([&] { return figures.size() == 1; }));
  release.set_value();
  ASSERT_TRUE(waitUntil([&] { return firstAnswered.load(); }));
  QCoreApplication::processEvents();
  request(3);
  ASSERT_TRUE(waitUntil([&] { return figures.size() == 2; }));
  request(4);  // A fault makes the figure unknown.
  ASSERT_TRUE(waitUntil([&] { return figures.size() == 3; }));
  EXPECT_EQ(figures, (QList<quint64>{2, 3, 0}));
  EXPECT_EQ(monitor.requiredText(), "—");
}
