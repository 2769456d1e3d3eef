#include "read_back.h"

#include "app_controller.h"

QVariantMap ReadBack::of(const QUrl& file) const {
  AppController controller;
  const QVariantMap answer = controller.loadProject(file);
  return {{"ok", answer.value("ok")},
          {"board", controller.resultBoard()},
          {"iterations", controller.resultIterations()},
          {"exploitability", controller.resultExploitability()},
          {"nodeCount", controller.treeNodeCount()},
          {"strategy", controller.nodeHandStrategyReach169(0, {})},
          {"locks", controller.nodeLocks(0)}};
}
