#include "node_preparer.h"

#include <exception>

#include <QDebug>

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
  pool_.start([this, node, spot, tree, values, known, request] {
    const auto outdated = [this, request] { return newest_ != request; };
    if (outdated()) return;
    ResultQueries queries([&spot] { return spot; }, tree, values);
    queries.caches() = known;
    try {
      const bool walked = known.handCombosCache.contains(node);
      // A walk can be given up half-way, the queries after it are short.
      if (node >= 0 && !walked) {
        velmora_app::prepare_node(spot, static_cast<std::uint64_t>(node), *values, outdated);
      }
      if (!outdated()) queries.askAll(node);
    } catch (const std::exception& fault) {
      // The query itself will meet the same fault, where it is told.
      qWarning() << "Preparing a node failed:" << fault.what();
    }
    QMetaObject::invokeMethod(
        this,
        [this, node, request, answers = queries.caches()] {
          if (newest_ == request) emit ready(node, answers);
        },
        Qt::QueuedConnection);
  });
}
