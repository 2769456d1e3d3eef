// What the pages ask of a result, node by node.
#pragma once

#include <memory>

#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include "action_values.h"
#include "result_caches.h"
#include "solve_session.h"
#include "tree_mirror.h"

/// Answers from the caches first, then from the game and the solver of the session. Without these,
/// as after a project was loaded, the caches are all there is. A query that can't be answered gives
/// an empty map or list and stores nothing. The answers are documented at `AppController`.
class ResultQueries {
 public:
  /// Both arguments must outlive the queries.
  ResultQueries(const velmora_app::SolveSession& session, const TreeMirror& tree)
      : session_(session), tree_(tree) {}

  QVariantMap nodeHandStrategy(int nodeIndex);
  QVariantMap nodeHandStrategyReach169(int nodeIndex, const QString& bucketName);
  QVariantList nodeActionStats(int nodeIndex);
  QVariantList nodeHandCombos(int nodeIndex);
  QVariantList nodeSeatHandCombos(int nodeIndex, const QString& player);
  QVariantList nodeHandBuckets(int nodeIndex);
  QVariantList nodePocketActionEvs(int nodeIndex, const QString& player, const QString& c1,
                                   const QString& c2);

  ResultCaches& caches() { return caches_; }
  /// What `velmora_app::prepare_node` fills, on whichever thread, so that the queries of a node
  /// walk no tree any more.
  const std::shared_ptr<velmora_app::ActionValues>& actionValues() const { return values_; }

 private:
  /// The keys of the actions of a node; "none" for each of `count` if the tree has another number.
  QVariantList actionTypes(int nodeIndex, qsizetype count) const;

  const velmora_app::SolveSession& session_;
  const TreeMirror& tree_;
  ResultCaches caches_;
  std::shared_ptr<velmora_app::ActionValues> values_ =
      std::make_shared<velmora_app::ActionValues>();
};
