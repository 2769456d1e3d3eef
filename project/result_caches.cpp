#include "result_caches.h"

namespace {

template <typename Key, typename Answer>
std::optional<Answer> find(const QMap<Key, Answer>& cache, const Key& key) {
  const auto it = cache.constFind(key);
  return it == cache.cend() ? std::nullopt : std::optional(*it);
}

template <typename Key, typename Answer>
void insert(QMap<Key, Answer>& cache, const Key& key, const std::optional<Answer>& answer) {
  if (answer) cache.insert(key, *answer);
}

}  // namespace

QString ResultCaches::reachKey(int node, const QString& category) {
  return QString::number(node) + '|' + category;
}

NodeAnswer ResultCaches::answer(int node) const {
  return {find(handStrategyCache, node),    find(reach169Cache, reachKey(node, {})),
          find(actionStatsCache, node),     find(handCombosCache, node),
          find(handBucketsCache, node),     find(seatHandCombosOopCache, node),
          find(seatHandCombosIpCache, node)};
}

void ResultCaches::store(int node, const NodeAnswer& answer) {
  insert(handStrategyCache, node, answer.handStrategy);
  insert(reach169Cache, reachKey(node, {}), answer.reach169);
  insert(actionStatsCache, node, answer.actionStats);
  insert(handCombosCache, node, answer.handCombos);
  insert(handBucketsCache, node, answer.handBuckets);
  insert(seatHandCombosOopCache, node, answer.seatHandCombosOop);
  insert(seatHandCombosIpCache, node, answer.seatHandCombosIp);
}

void ResultCaches::remove(int node) {
  handStrategyCache.remove(node);
  actionStatsCache.remove(node);
  handCombosCache.remove(node);
  handBucketsCache.remove(node);
  seatHandCombosOopCache.remove(node);
  seatHandCombosIpCache.remove(node);
  const QString prefix = reachKey(node, {});
  reach169Cache.removeIf([&](auto it) { return it.key().startsWith(prefix); });
}
