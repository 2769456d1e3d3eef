// Memory figures: what the machine has, what a solve would take, what a new solve would free.
#pragma once

#include <functional>
#include <optional>

#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariantMap>

#include "background.h"
#include "solve_session.h"

/// "—" for 0, else gigabytes of 2^30 bytes, with one decimal below 10; below 1 megabytes of 2^20,
/// at least 1.
QString memoryText(quint64 bytes);

/// `available` plus `reclaimable` without wrapping, and no more than `total` unless that is 0.
quint64 effectiveAvailableBytes(quint64 available, quint64 reclaimable, quint64 total);

/// Holds the figures and keeps them fresh. All members are of one thread; estimates are computed
/// elsewhere and waited for when the monitor ends.
class MemoryMonitor : public QObject {
  Q_OBJECT

 public:
  /// Where the figures come from. Bytes; 0 means unknown.
  struct Sources {
    std::function<quint64()> total;
    std::function<quint64()> available;
    /// Called on threads of the monitor, maybe several at a time. May throw.
    std::function<quint64(const velmora_app::SolveConfig&)> estimate;
  };
  /// The machine itself and the real estimate.
  static Sources systemSources();

  explicit MemoryMonitor(Sources sources = systemSources(), QObject* parent = nullptr);

  quint64 systemBytes() const { return systemBytes_; }
  QString systemText() const { return memoryText(systemBytes_); }
  quint64 availableBytes() const { return availableBytes_; }
  QString availableText() const { return memoryText(availableBytes_); }
  /// What a new solve may take, once the held results have been dropped.
  quint64 effectiveAvailable() const {
    return effectiveAvailableBytes(availableBytes_, reclaimableBytes_, systemBytes_);
  }
  /// The newest estimate that has arrived; 0 if there is none.
  quint64 requiredBytes() const { return requiredBytes_; }
  QString requiredText() const { return memoryText(requiredBytes_); }
  /// The estimate of just this spot, rake and number of threads; empty if the newest one is of
  /// another.
  std::optional<quint64> requiredFor(const velmora_app::SolveConfig& config) const;
  /// True while the answer to the last request is awaited.
  bool estimatePending() const { return estimatePending_; }
  /// What the held results are reckoned to occupy.
  quint64 reclaimableBytes() const { return reclaimableBytes_; }

  /// Reads the available memory again.
  void refreshAvailable();
  /// Estimates a solve configuration map in the background. Only the answer to the last request
  /// counts, in whatever order they finish.
  void requestEstimate(const QVariantMap& map);

  // What is held and what may be taken. The caller notifies the pages.

  /// A solve starts whose results will occupy so many bytes; 0 if that is unknown.
  void noteSolveStarted(quint64 bytes) { pendingResultBytes_ = bytes; }
  /// The results of the solve that started last are held from now on.
  void noteResultsHeld() { reclaimableBytes_ = pendingResultBytes_; }
  void noteResultsDropped() { reclaimableBytes_ = 0; }
  /// As `noteResultsDropped`, and nothing is known of a running solve.
  void reset() { reclaimableBytes_ = pendingResultBytes_ = 0; }

 signals:
  void systemMemoryChanged();
  void solveRequiredMemoryChanged();
  void estimatePendingChanged();
  /// The answer to the last request is there.
  void estimateArrived();

 private:
  /// One for the newest request and one that may still be busy with a request it has overtaken.
  static constexpr int kEstimateThreads = 2;

  void takeEstimate(const velmora_app::SolveConfig& config, quint64 bytes);
  void setEstimatePending(bool pending);

  const Sources sources_;
  quint64 systemBytes_ = 0;
  quint64 availableBytes_ = 0;
  quint64 requiredBytes_ = 0;
  std::optional<velmora_app::SolveConfig> requiredFor_;
  bool estimatePending_ = false;
  quint64 reclaimableBytes_ = 0;
  quint64 pendingResultBytes_ = 0;
  QTimer memoryPollTimer_;
  Background estimating_{kEstimateThreads};
};
