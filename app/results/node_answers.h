// What the pages ask of a result, node by node.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <span>

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include "background.h"
#include "node_locks.h"
#include "project.h"
#include "results/values.h"
#include "solve_session.h"

/// What answers are computed from, on any thread: copies share the walks of the tree. It keeps no
/// dropped solver alive longer than a computation under way needs to notice.
struct AnswerSource {
  std::weak_ptr<const velmora::Game> game;
  std::weak_ptr<const velmora::DiscountedCfr> solver;
  TreeMirror tree;
  std::shared_ptr<velmora_app::ActionValues> values;

  velmora_app::SolvedSpot spot() const { return {game.lock(), solver.lock()}; }
  /// `known` with everything else that the pages show of a node. What can't be answered stays
  /// empty, and all of the rest once `givenUp` says yes. Throws `std::bad_alloc`.
  NodeAnswer complete(int node, NodeAnswer known, const std::function<bool()>& givenUp = {}) const;
};

/// Answers from the caches of a project first, then from the solver of its result. Without that, as
/// after a project was loaded, the caches are all there is. A query that can't be answered gives an
/// empty map or list and stores nothing. While there is a solver, which can answer again, only the
/// nodes asked last stay in the caches, and the root. The answers are documented at
/// `AppController`.
class NodeAnswers : public QObject {
  Q_OBJECT

 public:
  /// `project` must outlive the answers.
  explicit NodeAnswers(Project& project, QObject* parent = nullptr);

  /// The solver of the project's result from now on; empty if its tables are gone. Gives up what is
  /// being prepared.
  void setSpot(const velmora_app::SolvedSpot& spot);
  const velmora_app::SolvedSpot& spot() const { return spot_; }
  AnswerSource source() const;

  Q_INVOKABLE QVariantMap nodeHandStrategy(int nodeIndex);
  Q_INVOKABLE QVariantMap nodeHandStrategyReach169(int nodeIndex, const QString& bucketName);
  Q_INVOKABLE QVariantList nodeActionStats(int nodeIndex);
  Q_INVOKABLE QVariantList nodeHandCombos(int nodeIndex);
  Q_INVOKABLE QVariantList nodeSeatHandCombos(int nodeIndex, const QString& player);
  Q_INVOKABLE QVariantList nodeHandBuckets(int nodeIndex);
  /// The same as if the hands of some classes played locks at the node. Not stored; without a
  /// solver it is the stored answer.
  QVariantList nodeHandBuckets(int nodeIndex, std::span<const velmora::NodeLockEntry> locks);
  Q_INVOKABLE QVariantList nodePocketActionEvs(int nodeIndex, const QString& player,
                                               const QString& c1, const QString& c2);

  /// Computes all of a node's answers on another thread and answers by `ready`, soon also where
  /// there is nothing to compute. Only the node that was asked for last counts.
  void prepare(int nodeIndex);

 signals:
  /// `error` says why answers are missing, and is empty else.
  void ready(int node, const QString& error);

 private:
  /// The stored answer of a node, else what `compute` gives, which is stored unless it is nothing.
  template <typename Answer, typename Compute>
  Answer answerOf(QMap<int, Answer>& cache, int nodeIndex, const Compute& compute);
  /// Makes a node the newest one in the caches and forgets the oldest of too many.
  void noteAnswered(int nodeIndex);

  Project& project_;
  velmora_app::SolvedSpot spot_;
  const std::shared_ptr<velmora_app::ActionValues> values_ =
      std::make_shared<velmora_app::ActionValues>();
  std::deque<int> answered_;  ///< Nodes that the solver has answered for, the newest first.
  Background preparing_;
};
