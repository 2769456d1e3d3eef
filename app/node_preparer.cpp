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

void NodePreparer::prepare(const velmora_app::SolvedSpot& spot, int node,
                           const std::shared_ptr<velmora_app::ActionValues>& values) {
  const std::uint64_t request = ++newest_;
  pool_.start([this, spot, node, values, request] {
    const auto outdated = [this, request] { return newest_ != request; };
    if (outdated()) return;
    try {
      if (node >= 0) {
        velmora_app::prepare_node(spot, static_cast<std::uint64_t>(node), *values, outdated);
      }
    } catch (const std::exception& fault) {
      // The query itself will meet the same fault, where it is told.
      qWarning() << "Preparing a node failed:" << fault.what();
    }
    QMetaObject::invokeMethod(
        this,
        [this, node, request] {
          if (newest_ == request) emit ready(node);
        },
        Qt::QueuedConnection);
  });
}
