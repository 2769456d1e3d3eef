#include "services/solve_activity.h"

#include <algorithm>

#include <QSettings>
#include <QVariantMap>

#include "services/stored_numbers.h"

namespace {

constexpr int kDays = 364;  ///< 52 whole weeks.

QString keyOf(const QDate& day, const char* name) {
  return QStringLiteral("solveActivity/%1/%2").arg(day.toString(Qt::ISODate), QLatin1String(name));
}

/// Cells that fill up a week.
QVariantList padding(int cells) {
  return QVariantList(cells, QVariantMap{{"isPadding", true}});
}

QVariantMap cellOf(const QSettings& settings, const QDate& day, const QDate& today) {
  const int solves = shownCount(settings, keyOf(day, "solves"));
  const auto mean = [&](const char* sum) {
    return solves > 0 ? storedSum(settings, keyOf(day, sum)) / solves : 0.0;
  };
  return {{"isPadding", false},
          {"date", day.toString(Qt::ISODate)},
          {"isFuture", day > today},
          {"solves", solves},
          {"avgIterations", mean("iterationsSum")},
          {"avgExploitability", mean("exploitabilitySum")}};
}

}  // namespace

void SolveActivity::record(const QDate& day, qint64 iterations, double exploitability) {
  QSettings settings;
  const QString solves = keyOf(day, "solves");
  const QString iterationsSum = keyOf(day, "iterationsSum");
  const QString exploitabilitySum = keyOf(day, "exploitabilitySum");
  settings.setValue(solves, storedCount(settings, solves) + 1);
  settings.setValue(iterationsSum,
                    storedCount(settings, iterationsSum) + std::max<qint64>(iterations, 0));
  settings.setValue(exploitabilitySum, storedSum(settings, exploitabilitySum) + exploitability);
}

int SolveActivity::solvesOn(const QDate& day) {
  return shownCount(QSettings(), keyOf(day, "solves"));
}

QVariantList SolveActivity::gridOfYear(const QDate& today) {
  const QDate last = today.addDays(7 - today.dayOfWeek());
  const QDate first = last.addDays(1 - kDays);
  const int lead = first.dayOfWeek() - 1;
  const QSettings settings;
  QVariantList cells = padding(lead);
  for (int day = 0; day < kDays; ++day) {
    cells.append(cellOf(settings, first.addDays(day), today));
  }
  return cells + padding((7 - (lead + kDays) % 7) % 7);
}
