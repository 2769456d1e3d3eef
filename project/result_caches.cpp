#include "result_caches.h"

namespace {

template <typename Answer>
void copyEntry(QMap<int, Answer>& to, const QMap<int, Answer>& from, int node) {
  if (const auto it = from.constFind(node); it != from.cend()) to.insert(node, *it);
}

template <typename Key, typename Answer>
void takeMissing(QMap<Key, Answer>& here, const QMap<Key, Answer>& other) {
  for (auto it = other.cbegin(); it != other.cend(); ++it) {
    if (!here.contains(it.key())) here.insert(it.key(), it.value());
  }
}

/// What the keys of a node's grids begin with.
QString gridPrefix(int node) {
  return QString::number(node) + '|';
}

}  // namespace

ResultCaches ResultCaches::ofNode(int node) const {
  ResultCaches answers;
  copyEntry(answers.handStrategyCache, handStrategyCache, node);
  copyEntry(answers.actionStatsCache, actionStatsCache, node);
  copyEntry(answers.handCombosCache, handCombosCache, node);
  copyEntry(answers.handBucketsCache, handBucketsCache, node);
  copyEntry(answers.seatHandCombosOopCache, seatHandCombosOopCache, node);
  copyEntry(answers.seatHandCombosIpCache, seatHandCombosIpCache, node);
  const QString prefix = gridPrefix(node);
  for (auto it = reach169Cache.lowerBound(prefix);
       it != reach169Cache.cend() && it.key().startsWith(prefix); ++it) {
    answers.reach169Cache.insert(it.key(), it.value());
  }
  return answers;
}

void ResultCaches::remove(int node) {
  handStrategyCache.remove(node);
  actionStatsCache.remove(node);
  handCombosCache.remove(node);
  handBucketsCache.remove(node);
  seatHandCombosOopCache.remove(node);
  seatHandCombosIpCache.remove(node);
  const QString prefix = gridPrefix(node);
  reach169Cache.removeIf([&](auto it) { return it.key().startsWith(prefix); });
}

void ResultCaches::take(const ResultCaches& other) {
  takeMissing(handStrategyCache, other.handStrategyCache);
  takeMissing(reach169Cache, other.reach169Cache);
  takeMissing(actionStatsCache, other.actionStatsCache);
  takeMissing(handCombosCache, other.handCombosCache);
  takeMissing(handBucketsCache, other.handBucketsCache);
  takeMissing(seatHandCombosOopCache, other.seatHandCombosOopCache);
  takeMissing(seatHandCombosIpCache, other.seatHandCombosIpCache);
}
