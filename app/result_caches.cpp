#include "result_caches.h"

namespace {

template <typename Key, typename Answer>
void takeMissing(QMap<Key, Answer>& here, const QMap<Key, Answer>& other) {
  for (auto it = other.cbegin(); it != other.cend(); ++it) {
    if (!here.contains(it.key())) here.insert(it.key(), it.value());
  }
}

}  // namespace

void ResultCaches::take(const ResultCaches& other) {
  takeMissing(handStrategyCache, other.handStrategyCache);
  takeMissing(reach169Cache, other.reach169Cache);
  takeMissing(actionStatsCache, other.actionStatsCache);
  takeMissing(handCombosCache, other.handCombosCache);
  takeMissing(handBucketsCache, other.handBucketsCache);
  takeMissing(seatHandCombosOopCache, other.seatHandCombosOopCache);
  takeMissing(seatHandCombosIpCache, other.seatHandCombosIpCache);
}
