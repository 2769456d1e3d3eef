// What was solved on each day.
#pragma once

#include <QDate>
#include <QVariantList>

/// Counts finished solves by day in the settings of the application. The day is the caller's, who
/// takes it from the local clock with each call.
class SolveActivity {
 public:
  /// Adds a solve to a day. `exploitability` is the final one, in chips; iterations below 1 add
  /// nothing to their sum.
  static void record(const QDate& day, qint64 iterations, double exploitability);
  static int solvesOn(const QDate& day);
  /// The cells of a calendar, day by day from a Monday on: 52 weeks, the last of which holds
  /// `today`. A cell has "isPadding", "date" (ISO), "isFuture", "solves", "avgIterations" and
  /// "avgExploitability" (chips).
  static QVariantList gridOfYear(const QDate& today);
};
