// What the pages have asked of a result so far.
#pragma once

#include <QMap>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

/// Answers by node index, in the shapes that the pages read. They outlive the solver's tables in a
/// project file, entry by entry.
struct ResultCaches {
  QMap<int, QVariantMap> handStrategyCache;
  QMap<QString, QVariantMap> reach169Cache;  ///< By index, "|" and category; in no file.
  QMap<int, QVariantList> actionStatsCache;
  QMap<int, QVariantList> handCombosCache;
  QMap<int, QVariantList> handBucketsCache;  ///< Without the names for display.
  QMap<int, QVariantList> seatHandCombosOopCache;
  QMap<int, QVariantList> seatHandCombosIpCache;

  void clear() { *this = {}; }
  /// The answers about one node.
  ResultCaches ofNode(int node) const;
  /// Forgets the answers about one node.
  void remove(int node);
  /// Adds the answers of `other` that are not here.
  void take(const ResultCaches& other);
};
