#include "results/reach_grid.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QHash>

#include "results/strategy.h"

namespace {

struct LabelSums {
  double weightSum = 0;
  int count = 0;
  QList<double> actions;
};

bool isIn(const QVariantMap& combo, const QString& category) {
  const QVariantList names = combo.value("buckets").toList();
  return std::any_of(names.begin(), names.end(), [&](const QVariant& name) {
    return name.toString().trimmed().toLower() == category;
  });
}

QString labelOf(const QString& c1, const QString& c2) {
  return QString::fromStdString(velmora_app::hand_class_label_from_cards(
      c1.toLatin1().toStdString(), c2.toLatin1().toStdString()));
}

/// The sums over their weight, brought to a sum of 1.
QVariantList meansOf(const LabelSums& sums) {
  QList<double> means;
  double total = 0;
  for (const double action : sums.actions) {
    const double mean = action / sums.weightSum;
    means.append(std::isfinite(mean) && mean > 0 ? mean : 0.0);
    total += means.last();
  }
  QVariantList list;
  for (const double mean : means) list.append(total > 0 ? mean / total : mean);
  return list;
}

}  // namespace

QVariantMap reachGrid(QVariantMap base, const QVariantList& combos, const QString& category) {
  // Step 1. Sums over the hands of each label.
  qsizetype actions = base.value("actionTypeList").toList().size();
  QHash<QString, LabelSums> sumsByLabel;
  for (const QVariant& entry : combos) {
    const QVariantMap combo = entry.toMap();
    if (!category.isEmpty() && !isIn(combo, category)) continue;
    const QString label = labelOf(combo.value("c1").toString(), combo.value("c2").toString());
    const double reach = combo.value("weight").toDouble();
    if (label.isEmpty() || !std::isfinite(reach) || !(reach > 0)) continue;
    const double weight = std::min(reach, 1.0);
    const QVariantList probabilities = combo.value("actionProbs").toList();
    if (actions < 1) actions = probabilities.size();
    if (actions < 1) continue;

    LabelSums& sums = sumsByLabel[label];
    sums.weightSum += weight;
    ++sums.count;
    sums.actions.resize(actions);
    for (qsizetype a = 0; a < std::min(actions, probabilities.size()); ++a) {
      const double probability = probabilities[a].toDouble();
      if (std::isfinite(probability) && probability > 0) sums.actions[a] += probability * weight;
    }
  }

  // Step 2. Their means.
  QVariantMap weights;
  QVariantMap actionProbs;
  for (auto it = sumsByLabel.cbegin(); it != sumsByLabel.cend(); ++it) {
    weights[it.key()] = it->weightSum / it->count;
    actionProbs[it.key()] = meansOf(*it);
  }
  if (!category.isEmpty() || !weights.isEmpty()) {
    base["weights"] = weights;
    base["actionProbs"] = actionProbs;
  }
  return base;
}
