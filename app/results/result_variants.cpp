#include "results/result_variants.h"

#include <algorithm>
#include <string_view>

#include <QString>

namespace {

QString textOf(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Numbers become doubles, texts strings.
template <typename List>
QVariantList listOf(const List& list) {
  QVariantList variants;
  variants.reserve(static_cast<qsizetype>(list.size()));
  for (const auto& item : list) {
    if constexpr (requires { static_cast<double>(item); }) {
      variants.append(static_cast<double>(item));
    } else {
      variants.append(textOf(item));
    }
  }
  return variants;
}

}  // namespace

QVariantMap variantOf(const velmora_app::NodeHandStrategy& grid) {
  QVariantMap weights;
  QVariantMap dominantTypes;
  QVariantMap probabilities;
  const std::size_t actions = grid.action_names.size();
  for (std::size_t label = 0; label < grid.labels.size(); ++label) {
    const QString key = textOf(grid.labels[label]);
    weights[key] = static_cast<double>(grid.weights[label]);
    dominantTypes[key] = textOf(grid.dominant_action_types[label]);
    probabilities[key] =
        listOf(std::span(grid.action_probabilities).subspan(label * actions, actions));
  }
  return {{"weights", weights},
          {"dominantActionTypes", dominantTypes},
          {"actionProbs", probabilities},
          {"actionNames", listOf(grid.action_names)}};
}

QVariantList variantOf(const velmora_app::NodeActionStats& stats) {
  QVariantList list;
  for (std::size_t a = 0; a < stats.names.size(); ++a) {
    list.append(QVariantMap{{"name", textOf(stats.names[a])},
                            {"actionType", textOf(stats.action_types[a])},
                            {"frequency", static_cast<double>(stats.frequencies[a])},
                            {"combos", stats.combos[a]},
                            {"equity", stats.equity[a]},
                            {"ev", stats.evs[a]}});
  }
  return list;
}

QVariantList variantOf(const velmora_app::NodeHandCombos& combos) {
  QVariantList list;
  list.reserve(static_cast<qsizetype>(combos.combos.size()));
  for (const velmora_app::HandCombo& combo : combos.combos) {
    list.append(QVariantMap{{"c1", textOf(combo.c1)},
                            {"c2", textOf(combo.c2)},
                            {"weight", combo.weight},
                            {"ev", combo.ev},
                            {"actionEvs", listOf(combo.action_evs)},
                            {"buckets", listOf(combo.buckets)},
                            {"actionProbs", listOf(combo.action_probabilities)}});
  }
  return list;
}

QVariantList variantOf(const velmora_app::SeatHandCombos& combos) {
  QVariantList list;
  list.reserve(static_cast<qsizetype>(combos.combos.size()));
  for (const velmora_app::SeatHandCombo& combo : combos.combos) {
    list.append(
        QVariantMap{{"c1", textOf(combo.c1)}, {"c2", textOf(combo.c2)}, {"weight", combo.weight}});
  }
  return list;
}

QVariantList variantOf(const velmora_app::NodeHandBuckets& buckets) {
  QVariantList list;
  for (const velmora_app::HandBucket& bucket : buckets.buckets) {
    list.append(QVariantMap{{"name", textOf(bucket.name)},
                            {"combos", bucket.combos},
                            {"actionProbs", listOf(bucket.action_probabilities)}});
  }
  return list;
}

QVariantList variantOf(const velmora_app::PocketActionEvs& evs) {
  return listOf(evs.evs);
}

QVariantMap variantOf(const velmora_app::Showdown& showdown) {
  return {{"winner", textOf(showdown.winner)},
          {"oopStrength", static_cast<int>(showdown.oop_strength)},
          {"ipStrength", static_cast<int>(showdown.ip_strength)}};
}
