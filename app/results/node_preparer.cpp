#include "results/node_preparer.h"

#include <exception>
#include <new>

#include <QCoreApplication>
#include <QDebug>

#include "fault_scope.h"

NodePreparer::NodePreparer(QObject* parent) : QObject(parent) {
  pool_.setMaxThreadCount(1);
}

NodePreparer::~NodePreparer() {
  giveUp();
  pool_.waitForDone();
}

void NodePreparer::prepare(int node, const velmora_app::SolvedSpot& spot, const TreeMirror& tree,
                           const std::shared_ptr<velmora_app::ActionValues>& values,
                           const ResultCaches& known) {
  const std::uint64_t request = ++newest_;
  pool_.start([this, node, game = std::weak_ptr(spot.game), solver = std::weak_ptr(spot.solver),
               tree, values, known, request] {
    const auto outdated = [this, request] { return newest_ != request; };
    if (outdated()) return;
    ResultCaches answers;
    QString error;
    try {
      const velmora_app::FaultScope scope;
      const velmora_app::SolvedSpot held{game.lock(), solver.lock()};
      ResultQueries queries([&held] { return held; }, tree, values);
      queries.caches() = known;
      const bool walked = known.handCombosCache.contains(node);
      // A walk can be given up half-way, the queries after it are short.
      if (node >= 0 && !walked) {
        velmora_app::prepare_node(held, static_cast<std::uint64_t>(node), *values, outdated);
      }
      if (!outdated()) queries.askAll(node);
      answers = queries.caches();
    } catch (const std::bad_alloc&) {
      error = QCoreApplication::translate(
          "AppController", "There is not enough memory for the answers of this node");
    } catch (const std::exception& fault) {
      error = QString::fromUtf8(fault.what());
    }
    if (!error.isEmpty()) qWarning() << "Preparing a node failed:" << error;
    QMetaObject::invokeMethod(
        this,
        [this, node, request, answers, error] {
          if (newest_ == request) emit ready(node, answers, error);
        },
        Qt::QueuedConnection);
  });
}
