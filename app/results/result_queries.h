// What the pages ask of a result, node by node.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <span>
#include <utility>

#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include "node_locks.h"
#include "result_caches.h"
#include "results/values.h"
#include "solve_session.h"
#include "tree_mirror.h"

/// Answers from the caches first, then from the game and the solver of the session. Without these,
/// as after a project was loaded, the caches are all there is. A query that can't be answered gives
/// an empty map or list and stores nothing. While there is a solver, which can answer again, only
/// the nodes asked last stay in the caches, and the root. The answers are documented at
/// `AppController`.
class ResultQueries {
 public:
  /// `spot` is asked for each answer that is not in the caches yet; `tree` must outlive the
  /// queries. Queries that share `values` share the walks of the tree, on whichever threads they
  /// are.
  ResultQueries(std::function<velmora_app::SolvedSpot()> spot, const TreeMirror& tree,
                std::shared_ptr<velmora_app::ActionValues> values =
                    std::make_shared<velmora_app::ActionValues>())
      : spot_(std::move(spot)), tree_(tree), values_(std::move(values)) {}

  QVariantMap nodeHandStrategy(int nodeIndex);
  QVariantMap nodeHandStrategyReach169(int nodeIndex, const QString& bucketName);
  QVariantList nodeActionStats(int nodeIndex);
  QVariantList nodeHandCombos(int nodeIndex);
  QVariantList nodeSeatHandCombos(int nodeIndex, const QString& player);
  QVariantList nodeHandBuckets(int nodeIndex);
  /// The same as if the hands of some classes played locks at the node. Not stored; without a
  /// solver it is the stored answer.
  QVariantList nodeHandBuckets(int nodeIndex, std::span<const velmora::NodeLockEntry> locks);
  QVariantList nodePocketActionEvs(int nodeIndex, const QString& player, const QString& c1,
                                   const QString& c2);

  /// Asks everything that the pages show of a node, so that the caches know it.
  void askAll(int nodeIndex);

  /// Adds answers about a node that were given elsewhere.
  void take(int nodeIndex, const ResultCaches& answers);

  ResultCaches& caches() { return caches_; }
  const std::shared_ptr<velmora_app::ActionValues>& actionValues() const { return values_; }

 private:
  /// The keys of the actions of a node; "none" for each of `count` if the tree has another number.
  QVariantList actionTypes(int nodeIndex, qsizetype count) const;
  /// The stored answer of a node, else what `compute` gives, which is stored unless it is nothing.
  template <typename Answer, typename Compute>
  Answer answerOf(QMap<int, Answer>& cache, int nodeIndex, const Compute& compute);
  /// Makes a node the newest one in the caches and forgets the oldest of too many.
  void noteAnswered(int nodeIndex);

  const std::function<velmora_app::SolvedSpot()> spot_;
  const TreeMirror& tree_;
  ResultCaches caches_;
  std::deque<int> answered_;  ///< Nodes that the solver has answered for, the newest first.
  const std::shared_ptr<velmora_app::ActionValues> values_;
};
