#include "node_lock_table.h"

#include <algorithm>
#include <cstdint>

#include <QVariantMap>

void NodeLockTable::set(int node, const QString& handLabel, int action, double probability) {
  if (node < 0 || handLabel.isEmpty()) return;
  // The order of the arguments makes 0 of a NaN.
  locks_[node][handLabel] = {action, std::min(1.0, std::max(0.0, probability))};
}

QVariantList NodeLockTable::locksAt(int node) const {
  QVariantList list;
  const auto hands = locks_.value(node);
  for (auto it = hands.begin(); it != hands.end(); ++it) {
    list.append(QVariantMap{
        {"hand", it.key()}, {"actionIndex", it->action}, {"actionProb", it->probability}});
  }
  return list;
}

int NodeLockTable::count() const {
  qsizetype locks = 0;
  for (const auto& hands : locks_) locks += hands.size();
  return static_cast<int>(locks);
}

std::vector<velmora::NodeLockEntry> NodeLockTable::entries() const {
  std::vector<velmora::NodeLockEntry> entries;
  for (const int node : nodes()) {
    const std::vector<velmora::NodeLockEntry> here = entriesAt(node);
    entries.insert(entries.end(), here.begin(), here.end());
  }
  return entries;
}

std::vector<velmora::NodeLockEntry> NodeLockTable::entriesAt(int node) const {
  std::vector<velmora::NodeLockEntry> entries;
  const auto hands = locks_.value(node);
  for (auto hand = hands.begin(); hand != hands.end(); ++hand) {
    if (hand->action < 0) continue;
    entries.push_back({static_cast<std::uint64_t>(node), hand.key().toStdString(),
                       static_cast<std::uint64_t>(hand->action),
                       static_cast<float>(hand->probability)});
  }
  return entries;
}
