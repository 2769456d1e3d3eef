// The solved tree as the pages see it, node by node.
#pragma once

#include <memory>

#include <QVariantList>
#include <QVariantMap>

#include "results/tree.h"

/// Keeps the compact records of the tree and makes maps of the nodes that are asked for: a tree
/// has millions of nodes, of which a user looks at some dozens.
class TreeMirror {
 public:
  void set(std::shared_ptr<const velmora_app::TreeSnapshot> nodes, int effectiveStack);
  void clear();

  int nodeCount() const;
  int effectiveStack() const { return effectiveStack_; }
  /// The compact record of a node. Throws `std::out_of_range`.
  velmora_app::NodeMeta record(int node) const;
  /// "nodeType", "chanceDeal", "player", "pot", "effectiveStack", "investedOop", "investedIp" and
  /// "hasChildren" of a node; empty if the index is out of range.
  QVariantMap meta(int node) const;
  /// Maps of "name", "actionType", "frequency" (0..1) and "childIndex", one for each action;
  /// empty if the index is out of range.
  QVariantList actions(int node) const;

 private:
  bool contains(int node) const { return node >= 0 && node < nodeCount(); }

  std::shared_ptr<const velmora_app::TreeSnapshot> nodes_;
  int effectiveStack_ = 0;
};
