#include "results/result_queries.h"

#include <cstdint>
#include <optional>

#include "results/hand_bucket_names.h"
#include "results/reach_grid.h"
#include "results/result_variants.h"

namespace {

/// Nodes whose answers are kept beside the root's. Those of a node on a flop with wide ranges take
/// some 2 MB.
constexpr std::size_t kNodesKept = 100;

/// What the pages read of a record; nothing if the query could not be answered.
template <typename Record>
auto answerIn(const Record& record) {
  return record.ok ? std::optional(variantOf(record)) : std::nullopt;
}

velmora::Seat seatOf(const QString& player) {
  return player.trimmed().toUpper() == QLatin1String("IP") ? velmora::kIp : velmora::kOop;
}

/// A text that compares equal however a card was typed.
QString cardKey(const QString& card) {
  return card.trimmed().toLower();
}

QVariantList namedBuckets(QVariantList list) {
  // The names for display follow the language and are not kept.
  for (QVariant& entry : list) {
    QVariantMap bucket = entry.toMap();
    bucket["displayName"] = handBucketDisplayName(bucket.value("name").toString());
    entry = bucket;
  }
  return list;
}

}  // namespace

template <typename Answer, typename Compute>
Answer ResultQueries::answerOf(QMap<int, Answer>& cache, int nodeIndex, const Compute& compute) {
  if (nodeIndex < 0) return {};
  if (const auto known = cache.constFind(nodeIndex); known != cache.cend()) return *known;
  const std::optional<Answer> answer = compute(static_cast<std::uint64_t>(nodeIndex));
  if (!answer) return {};
  cache.insert(nodeIndex, *answer);
  noteAnswered(nodeIndex);
  return *answer;
}

void ResultQueries::noteAnswered(int nodeIndex) {
  if (nodeIndex == 0) return;
  std::erase(answered_, nodeIndex);
  answered_.push_front(nodeIndex);
  if (answered_.size() <= kNodesKept || !spot_().solver) return;
  caches_.remove(answered_.back());
  answered_.pop_back();
}

void ResultQueries::take(int nodeIndex, const ResultCaches& answers) {
  caches_.take(answers);
  noteAnswered(nodeIndex);
}

void ResultQueries::askAll(int nodeIndex) {
  nodeActionStats(nodeIndex);
  nodeHandStrategyReach169(nodeIndex, QString());
  nodeHandStrategy(nodeIndex);
  nodeHandCombos(nodeIndex);
  nodeHandBuckets(nodeIndex);
  if (nodeIndex == 0) {  // The trainer deals from these, also where there is no solver any more.
    nodeSeatHandCombos(0, QStringLiteral("OOP"));
    nodeSeatHandCombos(0, QStringLiteral("IP"));
  }
}

QVariantMap ResultQueries::nodeHandStrategy(int nodeIndex) {
  return answerOf(caches_.handStrategyCache, nodeIndex, [&](std::uint64_t node) {
    auto map = answerIn(velmora_app::query_hand_strategy(spot_(), node));
    if (!map) return map;
    const qsizetype actions = map->value("actionNames").toList().size();
    map->insert("actionTypeList", actionTypes(nodeIndex, actions));
    return map;
  });
}

QVariantList ResultQueries::actionTypes(int nodeIndex, qsizetype count) const {
  QVariantList types;
  for (const QVariant& action : tree_.actions(nodeIndex)) {
    types.append(action.toMap().value("actionType"));
  }
  return types.size() == count ? types : QVariantList(count, QStringLiteral("none"));
}

QVariantMap ResultQueries::nodeHandStrategyReach169(int nodeIndex, const QString& bucketName) {
  if (nodeIndex < 0) return {};
  const QString category = bucketName.trimmed().toLower();
  const QString key = QString::number(nodeIndex) + '|' + category;
  if (const auto known = caches_.reach169Cache.constFind(key);
      known != caches_.reach169Cache.cend()) {
    return *known;
  }
  const QVariantList combos = nodeHandCombos(nodeIndex);
  QVariantMap grid = nodeHandStrategy(nodeIndex);
  if (!caches_.handCombosCache.contains(nodeIndex)) return grid;
  return *caches_.reach169Cache.insert(key, reachGrid(grid, combos, category));
}

QVariantList ResultQueries::nodeActionStats(int nodeIndex) {
  return answerOf(caches_.actionStatsCache, nodeIndex, [this](std::uint64_t node) {
    return answerIn(velmora_app::query_action_stats(spot_(), node, *values_));
  });
}

QVariantList ResultQueries::nodeHandCombos(int nodeIndex) {
  return answerOf(caches_.handCombosCache, nodeIndex, [this](std::uint64_t node) {
    return answerIn(velmora_app::query_hand_combos(spot_(), node, *values_));
  });
}

QVariantList ResultQueries::nodeSeatHandCombos(int nodeIndex, const QString& player) {
  const velmora::Seat seat = seatOf(player);
  auto& cache =
      seat == velmora::kOop ? caches_.seatHandCombosOopCache : caches_.seatHandCombosIpCache;
  return answerOf(cache, nodeIndex, [&](std::uint64_t node) {
    return answerIn(velmora_app::query_seat_hand_combos(spot_(), node, seat));
  });
}

QVariantList ResultQueries::nodeHandBuckets(int nodeIndex) {
  return namedBuckets(answerOf(caches_.handBucketsCache, nodeIndex, [this](std::uint64_t node) {
    return answerIn(velmora_app::query_hand_buckets(spot_(), node));
  }));
}

QVariantList ResultQueries::nodeHandBuckets(int nodeIndex,
                                            std::span<const velmora::NodeLockEntry> locks) {
  if (nodeIndex < 0) return {};
  const auto buckets =
      velmora_app::query_hand_buckets(spot_(), static_cast<std::uint64_t>(nodeIndex), locks);
  return buckets.ok ? namedBuckets(variantOf(buckets)) : nodeHandBuckets(nodeIndex);
}

QVariantList ResultQueries::nodePocketActionEvs(int nodeIndex, const QString& player,
                                                const QString& c1, const QString& c2) {
  if (nodeIndex < 0) return {};
  const velmora_app::PocketActionEvs record = velmora_app::query_pocket_action_evs(
      spot_(), static_cast<std::uint64_t>(nodeIndex), seatOf(player), c1.toStdString(),
      c2.toStdString(), *values_);
  if (record.ok) return variantOf(record);
  for (const QVariant& entry : caches_.handCombosCache.value(nodeIndex)) {
    const QVariantMap combo = entry.toMap();
    const QString first = cardKey(combo.value("c1").toString());
    const QString second = cardKey(combo.value("c2").toString());
    const bool matches = (first == cardKey(c1) && second == cardKey(c2)) ||
                         (first == cardKey(c2) && second == cardKey(c1));
    if (matches) return combo.value("actionEvs").toList();
  }
  return {};
}
