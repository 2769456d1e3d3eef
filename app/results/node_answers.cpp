#include "results/node_answers.h"

#include <cstdint>
#include <new>
#include <optional>
#include <stdexcept>

#include <QCoreApplication>
#include <QDebug>

#include "results/hand_bucket_names.h"
#include "results/reach_grid.h"
#include "results/result_variants.h"

using velmora_app::ActionValues;
using velmora_app::SolvedSpot;

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

/// The keys of the actions of a node; "none" for each of `count` if the tree has another number.
QVariantList actionTypes(const TreeMirror& tree, int node, qsizetype count) {
  QVariantList types;
  for (const QVariant& action : tree.actions(node)) {
    types.append(action.toMap().value("actionType"));
  }
  return types.size() == count ? types : QVariantList(count, QStringLiteral("none"));
}

std::optional<QVariantMap> handStrategy(const SolvedSpot& spot, const TreeMirror& tree, int node) {
  auto map = answerIn(velmora_app::query_hand_strategy(spot, static_cast<std::uint64_t>(node)));
  if (!map) return map;
  const qsizetype actions = map->value("actionNames").toList().size();
  map->insert("actionTypeList", actionTypes(tree, node, actions));
  return map;
}

auto actionStats(const SolvedSpot& spot, int node, ActionValues& values) {
  return answerIn(velmora_app::query_action_stats(spot, static_cast<std::uint64_t>(node), values));
}

auto handCombos(const SolvedSpot& spot, int node, ActionValues& values) {
  return answerIn(velmora_app::query_hand_combos(spot, static_cast<std::uint64_t>(node), values));
}

auto handBuckets(const SolvedSpot& spot, int node) {
  return answerIn(velmora_app::query_hand_buckets(spot, static_cast<std::uint64_t>(node)));
}

auto seatHandCombos(const SolvedSpot& spot, int node, velmora::Seat seat) {
  return answerIn(
      velmora_app::query_seat_hand_combos(spot, static_cast<std::uint64_t>(node), seat));
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

NodeAnswer AnswerSource::complete(int node, NodeAnswer known,
                                  const std::function<bool()>& givenUp) const {
  if (node < 0) return known;
  const SolvedSpot held = spot();
  const auto stop = [&] { return givenUp && givenUp(); };
  // This walk can be given up half-way; the queries after it are short.
  if (!known.handCombos) {
    velmora_app::prepare_node(held, static_cast<std::uint64_t>(node), *values, givenUp);
  }
  if (stop()) return known;
  const auto fill = [&](auto& answer, const auto& compute) {
    if (!answer) answer = compute();
  };
  fill(known.actionStats, [&] { return actionStats(held, node, *values); });
  fill(known.handCombos, [&] { return handCombos(held, node, *values); });
  fill(known.handStrategy, [&] { return handStrategy(held, tree, node); });
  fill(known.handBuckets, [&] { return handBuckets(held, node); });
  if (known.handCombos && !known.reach169) {
    known.reach169 =
        reachGrid(known.handStrategy.value_or(QVariantMap()), *known.handCombos, QString());
  }
  if (node == 0) {  // The trainer deals from these, also where there is no solver any more.
    fill(known.seatHandCombosOop, [&] { return seatHandCombos(held, node, velmora::kOop); });
    fill(known.seatHandCombosIp, [&] { return seatHandCombos(held, node, velmora::kIp); });
  }
  return known;
}

NodeAnswers::NodeAnswers(Project& project, QObject* parent) : QObject(parent), project_(project) {}

void NodeAnswers::setSpot(const SolvedSpot& spot) {
  preparing_.giveUp();
  answered_.clear();
  spot_ = spot;
}

AnswerSource NodeAnswers::source() const {
  return {spot_.game, spot_.solver, project_.tree, values_};
}

template <typename Answer, typename Compute>
Answer NodeAnswers::answerOf(QMap<int, Answer>& cache, int nodeIndex, const Compute& compute) {
  if (nodeIndex < 0) return {};
  if (const auto known = cache.constFind(nodeIndex); known != cache.cend()) return *known;
  const std::optional<Answer> answer = compute();
  if (!answer) return {};
  cache.insert(nodeIndex, *answer);
  noteAnswered(nodeIndex);
  return *answer;
}

void NodeAnswers::noteAnswered(int nodeIndex) {
  if (nodeIndex == 0) return;
  std::erase(answered_, nodeIndex);
  answered_.push_front(nodeIndex);
  if (answered_.size() <= kNodesKept || !spot_.solver) return;
  project_.caches.remove(answered_.back());
  answered_.pop_back();
}

void NodeAnswers::prepare(int nodeIndex) {
  const auto answer = std::make_shared<NodeAnswer>(project_.caches.answer(nodeIndex));
  preparing_.run(
      [nodeIndex, answer, source = source()](Background::Job& job) {
        try {
          *answer =
              source.complete(nodeIndex, std::move(*answer), [&job] { return job.givenUp(); });
        } catch (const std::bad_alloc&) {
          throw std::runtime_error(
              QCoreApplication::translate("AppController",
                                          "There is not enough memory for the answers of this node")
                  .toStdString());
        }
      },
      [this, nodeIndex, answer](const QString& fault) {
        if (fault.isEmpty()) {
          project_.caches.store(nodeIndex, *answer);
          noteAnswered(nodeIndex);
        } else {
          qWarning() << "Preparing a node failed:" << fault;
        }
        emit ready(nodeIndex, fault);
      });
}

QVariantMap NodeAnswers::nodeHandStrategy(int nodeIndex) {
  return answerOf(project_.caches.handStrategyCache, nodeIndex,
                  [&] { return handStrategy(spot_, project_.tree, nodeIndex); });
}

QVariantMap NodeAnswers::nodeHandStrategyReach169(int nodeIndex, const QString& bucketName) {
  if (nodeIndex < 0) return {};
  auto& grids = project_.caches.reach169Cache;
  const QString category = bucketName.trimmed().toLower();
  const QString key = ResultCaches::reachKey(nodeIndex, category);
  if (const auto known = grids.constFind(key); known != grids.cend()) return *known;
  const QVariantList combos = nodeHandCombos(nodeIndex);
  const QVariantMap grid = nodeHandStrategy(nodeIndex);
  if (!project_.caches.handCombosCache.contains(nodeIndex)) return grid;
  return *grids.insert(key, reachGrid(grid, combos, category));
}

QVariantList NodeAnswers::nodeActionStats(int nodeIndex) {
  return answerOf(project_.caches.actionStatsCache, nodeIndex,
                  [&] { return actionStats(spot_, nodeIndex, *values_); });
}

QVariantList NodeAnswers::nodeHandCombos(int nodeIndex) {
  return answerOf(project_.caches.handCombosCache, nodeIndex,
                  [&] { return handCombos(spot_, nodeIndex, *values_); });
}

QVariantList NodeAnswers::nodeSeatHandCombos(int nodeIndex, const QString& player) {
  const velmora::Seat seat = seatOf(player);
  auto& cache = seat == velmora::kOop ? project_.caches.seatHandCombosOopCache
                                      : project_.caches.seatHandCombosIpCache;
  return answerOf(cache, nodeIndex, [&] { return seatHandCombos(spot_, nodeIndex, seat); });
}

QVariantList NodeAnswers::nodeHandBuckets(int nodeIndex) {
  return namedBuckets(answerOf(project_.caches.handBucketsCache, nodeIndex,
                               [&] { return handBuckets(spot_, nodeIndex); }));
}

QVariantList NodeAnswers::nodeHandBuckets(int nodeIndex,
                                          std::span<const velmora::NodeLockEntry> locks) {
  if (nodeIndex < 0) return {};
  const auto buckets =
      velmora_app::query_hand_buckets(spot_, static_cast<std::uint64_t>(nodeIndex), locks);
  return buckets.ok ? namedBuckets(variantOf(buckets)) : nodeHandBuckets(nodeIndex);
}

QVariantList NodeAnswers::nodePocketActionEvs(int nodeIndex, const QString& player,
                                              const QString& c1, const QString& c2) {
  if (nodeIndex < 0) return {};
  const velmora_app::PocketActionEvs record = velmora_app::query_pocket_action_evs(
      spot_, static_cast<std::uint64_t>(nodeIndex), seatOf(player), c1.toStdString(),
      c2.toStdString(), *values_);
  if (record.ok) return variantOf(record);
  for (const QVariant& entry : project_.caches.handCombosCache.value(nodeIndex)) {
    const QVariantMap combo = entry.toMap();
    const QString first = cardKey(combo.value("c1").toString());
    const QString second = cardKey(combo.value("c2").toString());
    const bool matches = (first == cardKey(c1) && second == cardKey(c2)) ||
                         (first == cardKey(c2) && second == cardKey(c1));
    if (matches) return combo.value("actionEvs").toList();
  }
  return {};
}
