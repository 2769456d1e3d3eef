// Answers a node's queries away from the window.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

#include <QObject>
#include <QThreadPool>

#include "results/result_queries.h"

/// Answers what the pages ask of a node on a thread of its own, one node at a time. Only the node
/// that was asked for last counts: an older one is given up.
class NodePreparer : public QObject {
  Q_OBJECT

 public:
  explicit NodePreparer(QObject* parent = nullptr);
  /// Gives up what is under way and waits for its thread.
  ~NodePreparer() override;

  /// Answers by `ready`, soon also where there is nothing to compute. `known` are the answers about
  /// the node that need no computing. Keeps a solver that is dropped meanwhile alive only until the
  /// walk under way has noticed.
  void prepare(int node, const velmora_app::SolvedSpot& spot, const TreeMirror& tree,
               const std::shared_ptr<velmora_app::ActionValues>& values, const ResultCaches& known);
  /// Gives up what is under way; no `ready` comes of it.
  void giveUp() { ++newest_; }

 signals:
  /// `answers` are those about the node; `error` says why some are missing, and is empty else.
  void ready(int node, const ResultCaches& answers, const QString& error);

 private:
  std::atomic<std::uint64_t> newest_ = 0;  ///< Number of the latest request.
  QThreadPool pool_;
};
