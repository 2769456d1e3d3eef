#include "services/trainer_stats.h"

#include <algorithm>
#include <cmath>

#include <QSettings>

#include "services/stored_numbers.h"

namespace {

QString totalPrefix() {
  return QStringLiteral("playVsSolution/total/");
}

QString dayPrefix(const QDate& day) {
  return QStringLiteral("playVsSolution/%1/").arg(day.toString(Qt::ISODate));
}

void addHand(QSettings& settings, const QString& prefix, bool isMistake, double loss) {
  const qint64 hands = storedCount(settings, prefix + "hands");
  const qint64 mistakes = storedCount(settings, prefix + "mistakes");
  const double lossSum = storedSum(settings, prefix + "evLossSum");
  settings.setValue(prefix + "hands", hands + 1);
  settings.setValue(prefix + "mistakes", mistakes + (isMistake ? 1 : 0));
  settings.setValue(prefix + "evLossSum", lossSum + loss);
}

/// Adds the figures of one prefix under names that start with `scope`.
void addFigures(QVariantMap& figures, const QString& prefix, const QString& scope) {
  const QSettings settings;
  const int hands = shownCount(settings, prefix + "hands");
  const int mistakes = shownCount(settings, prefix + "mistakes");
  const double lossSum = storedSum(settings, prefix + "evLossSum");
  figures[scope + "Hands"] = hands;
  figures[scope + "Mistakes"] = mistakes;
  figures[scope + "AccuracyPct"] = hands > 0 ? std::max(hands - mistakes, 0) * 100.0 / hands : 0.0;
  figures[scope + "AvgEvLoss"] = hands > 0 ? lossSum / hands : 0.0;
}

}  // namespace

void TrainerStats::record(const QDate& day, bool isMistake, double evLoss) {
  const double loss = std::isfinite(evLoss) && evLoss > 0 ? evLoss : 0.0;
  const bool mistake = isMistake || loss > 0;
  QSettings settings;
  addHand(settings, totalPrefix(), mistake, loss);
  addHand(settings, dayPrefix(day), mistake, loss);
}

QVariantMap TrainerStats::figures(const QDate& day) {
  QVariantMap figures;
  addFigures(figures, totalPrefix(), QStringLiteral("total"));
  addFigures(figures, dayPrefix(day), QStringLiteral("today"));
  return figures;
}

void TrainerStats::clear() {
  QSettings().remove(QStringLiteral("playVsSolution"));
}
