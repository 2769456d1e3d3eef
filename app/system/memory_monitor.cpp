#include "system/memory_monitor.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <string>
#include <utility>

#include <QCoreApplication>

#include "memory_estimate.h"
#include "spot.h"
#include "spot_config.h"
#include "system_memory.h"

namespace {

constexpr int kPollMilliseconds = 2000;

}  // namespace

QString memoryText(quint64 bytes) {
  if (bytes == 0) return QStringLiteral("—");
  if (bytes < 1ULL << 30) {
    const double megabytes = std::max(1.0, static_cast<double>(bytes) / (1ULL << 20));
    return QCoreApplication::translate("AppController", "%1 MB")
        .arg(QString::number(megabytes, 'f', 0));
  }
  const double gigabytes = static_cast<double>(bytes) / (1ULL << 30);
  return QCoreApplication::translate("AppController", "%1 GB")
      .arg(QString::number(gigabytes, 'f', gigabytes < 10 ? 1 : 0));
}

quint64 effectiveAvailableBytes(quint64 available, quint64 reclaimable, quint64 total) {
  const quint64 limit = std::numeric_limits<quint64>::max() - available;
  const quint64 sum = available + std::min(reclaimable, limit);
  return total == 0 ? sum : std::min(sum, total);
}

MemoryMonitor::Sources MemoryMonitor::systemSources() {
  return {velmora_app::total_memory_bytes, velmora_app::available_memory_bytes,
          [](const velmora_app::SolveConfig& config) -> quint64 {
            std::string error;
            const auto estimate = velmora_app::estimate_memory(config, error);
            if (!estimate) return 0;
            // What can't be counted doesn't fit, however little of it was counted.
            return estimate->complete
                       ? estimate->peak_bytes
                       : std::max(estimate->peak_bytes, velmora_app::total_memory_bytes());
          }};
}

MemoryMonitor::MemoryMonitor(Sources sources, QObject* parent)
    : QObject(parent),
      sources_(std::move(sources)),
      systemBytes_(sources_.total()),
      availableBytes_(sources_.available()) {
  refreshAvailable();
  memoryPollTimer_.setInterval(kPollMilliseconds);
  connect(&memoryPollTimer_, &QTimer::timeout, this, &MemoryMonitor::refreshAvailable);
  memoryPollTimer_.start();
}

void MemoryMonitor::refreshAvailable() {
  const quint64 bytes = sources_.available();
  if (bytes == availableBytes_) return;  // The text follows from the bytes.
  availableBytes_ = bytes;
  emit systemMemoryChanged();
}

std::optional<quint64> MemoryMonitor::requiredFor(const velmora_app::SolveConfig& config) const {
  const bool same = requiredFor_ && velmora_app::same_spot(*requiredFor_, config) &&
                    requiredFor_->thread_count == config.thread_count;
  return same ? std::optional(requiredBytes_) : std::nullopt;
}

void MemoryMonitor::setEstimatePending(bool pending) {
  if (pending == estimatePending_) return;
  estimatePending_ = pending;
  emit estimatePendingChanged();
}

void MemoryMonitor::requestEstimate(const QVariantMap& map) {
  setEstimatePending(true);
  const velmora_app::SolveConfig config = makeSolveConfig(map);
  const auto bytes = std::make_shared<quint64>(0);
  estimating_.run([this, config, bytes](Background::Job&) { *bytes = sources_.estimate(config); },
                  // Where the estimate failed the solve itself will say why.
                  [this, config, bytes](const QString& fault) {
                    takeEstimate(config, fault.isEmpty() ? *bytes : 0);
                  });
}

void MemoryMonitor::takeEstimate(const velmora_app::SolveConfig& config, quint64 bytes) {
  requiredFor_ = config;
  if (bytes != requiredBytes_) {
    requiredBytes_ = bytes;
    emit solveRequiredMemoryChanged();
  }
  setEstimatePending(false);
  emit estimateArrived();
}
