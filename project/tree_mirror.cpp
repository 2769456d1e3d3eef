#include "tree_mirror.h"

#include <cstddef>
#include <stdexcept>
#include <utility>

#include <QString>

using velmora_app::ActionMeta;
using velmora_app::NodeMeta;

void TreeMirror::set(std::shared_ptr<const velmora_app::TreeSnapshot> nodes, int effectiveStack) {
  nodes_ = std::move(nodes);
  effectiveStack_ = effectiveStack;
}

void TreeMirror::clear() {
  set(nullptr, 0);
}

int TreeMirror::nodeCount() const {
  return nodes_ ? static_cast<int>(nodes_->size()) : 0;
}

NodeMeta TreeMirror::record(int node) const {
  if (!contains(node)) throw std::out_of_range("No such node");
  return nodes_->node(static_cast<std::size_t>(node));
}

QVariantMap TreeMirror::meta(int node) const {
  if (!contains(node)) return {};
  const NodeMeta record = this->record(node);
  return {{"nodeType", QString::fromStdString(record.node_type)},
          {"chanceDeal", QString::fromStdString(record.chance_deal)},
          {"player", QString::fromStdString(record.player)},
          {"pot", record.pot},
          {"effectiveStack", effectiveStack_},
          {"investedOop", record.invested_oop},
          {"investedIp", record.invested_ip},
          {"hasChildren", !record.actions.empty()}};
}

QVariantList TreeMirror::actions(int node) const {
  if (!contains(node)) return {};
  QVariantList list;
  for (const ActionMeta& action : record(node).actions) {
    list.append(QVariantMap{{"name", QString::fromStdString(action.name)},
                            {"actionType", QString::fromStdString(action.action_type)},
                            {"frequency", static_cast<double>(action.frequency)},
                            {"childIndex", static_cast<int>(action.child_index)}});
  }
  return list;
}
