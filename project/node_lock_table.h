// The user's node locks, kept between solves.
#pragma once

#include <vector>

#include <QList>
#include <QMap>
#include <QString>
#include <QVariantList>

#include "node_locks.h"

/// At most one lock for each node and hand class. Nothing is checked against a tree or a grid:
/// what fits nowhere locks nothing.
class NodeLockTable {
 public:
  /// Replaces an earlier lock of the hand. The probability is held to 0..1. A negative node or an
  /// empty label changes nothing.
  void set(int node, const QString& handLabel, int action, double probability);
  /// Removes all locks of a node.
  void clear(int node) { locks_.remove(node); }
  void clear() { locks_.clear(); }
  /// How many locks there are.
  int count() const;
  /// Nodes with locks, in ascending order.
  QList<int> nodes() const { return locks_.keys(); }
  /// Maps of "hand", "actionIndex" and "actionProb".
  QVariantList locksAt(int node) const;
  /// The locks as a solve takes them. Locks with a negative action are left out.
  std::vector<velmora::NodeLockEntry> entries() const;
  /// The same of one node.
  std::vector<velmora::NodeLockEntry> entriesAt(int node) const;
  bool operator==(const NodeLockTable&) const = default;

 private:
  struct Lock {
    int action = 0;
    double probability = 0;

    bool operator==(const Lock&) const = default;
  };

  QMap<int, QMap<QString, Lock>> locks_;
};
