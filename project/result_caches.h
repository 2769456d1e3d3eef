// What the pages have asked of a result so far.
#pragma once

#include <optional>

#include <QMap>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

/// The answers about one node, in the shapes that the pages read. Empty where nothing was asked, or
/// nothing could be answered.
struct NodeAnswer {
  std::optional<QVariantMap> handStrategy;
  std::optional<QVariantMap> reach169;  ///< Of all categories.
  std::optional<QVariantList> actionStats;
  std::optional<QVariantList> handCombos;
  std::optional<QVariantList> handBuckets;  ///< Without the names for display.
  std::optional<QVariantList> seatHandCombosOop;
  std::optional<QVariantList> seatHandCombosIp;
};

/// Answers by node index. They outlive the solver's tables in a project file, entry by entry.
struct ResultCaches {
  QMap<int, QVariantMap> handStrategyCache;
  QMap<QString, QVariantMap> reach169Cache;  ///< By index, "|" and category; in no file.
  QMap<int, QVariantList> actionStatsCache;
  QMap<int, QVariantList> handCombosCache;
  QMap<int, QVariantList> handBucketsCache;
  QMap<int, QVariantList> seatHandCombosOopCache;
  QMap<int, QVariantList> seatHandCombosIpCache;

  void clear() { *this = {}; }
  NodeAnswer answer(int node) const;
  /// Stores what `answer` has; the rest of the node's answers stays.
  void store(int node, const NodeAnswer& answer);
  /// Forgets the answers about one node, those of its categories too.
  void remove(int node);
  /// The key of a grid in `reach169Cache`. `category` is in lower case; empty for all hands.
  static QString reachKey(int node, const QString& category);
};
