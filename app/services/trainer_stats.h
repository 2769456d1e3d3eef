// How well the hands against the solution were played.
#pragma once

#include <QDate>
#include <QVariantMap>

/// Counts trainer hands in the settings of the application, in total and by day. The day is the
/// caller's, who takes it from the local clock with each call.
class TrainerStats {
 public:
  /// Adds a hand. A loss (chips) that is not finite and above 0 counts as none; any other makes the
  /// hand a mistake.
  static void record(const QDate& day, bool isMistake, double evLoss);
  /// "totalHands", "totalMistakes", "totalAccuracyPct" (0..100), "totalAvgEvLoss" (chips a hand),
  /// and the same of one day under "today...".
  static QVariantMap figures(const QDate& day);
  /// Forgets all days and the totals.
  static void clear();
};
