#include "library_reader.h"

#include <numeric>

#include <QFile>
#include <QJsonDocument>

namespace velmora {

namespace {

void add_leaves(const QJsonArray& nodes, const std::string& path, LibraryRows& rows) {
  for (const QJsonValue& node : nodes) {
    const std::string name = path + node[QLatin1String("name")].toString().toStdString();
    if (node["type"].toString() == "folder") {
      add_leaves(node["children"].toArray(), name + " / ", rows);
    } else {
      rows.emplace_back(name, node["value"].toString().toStdString());
    }
  }
}

}  // namespace

QJsonObject library(const char* file) {
  QFile resource(QString(":/Velmora/qml/data/") + file);
  if (!resource.open(QIODevice::ReadOnly)) return {};
  return QJsonDocument::fromJson(resource.readAll()).object();
}

QJsonArray list(const char* file, const char* seat, const char* key) {
  return library(file).value(QLatin1String(seat)).toObject().value(QLatin1String(key)).toArray();
}

LibraryRows standard_rows(const char* seat) {
  LibraryRows rows;
  add_leaves(list("standard_ranges.json", seat, "standard"), "", rows);
  return rows;
}

LibraryRows population_rows(const char* seat) {
  LibraryRows rows;
  add_leaves(list("exploit_ranges.json", seat, "exploit"), "", rows);
  return rows;
}

double percent(const PocketWeights& weights) {
  return 100 * std::accumulate(weights.begin(), weights.end(), 0.0) / kNumPockets;
}

PocketWeights sum(const PocketWeights& a, const PocketWeights& b) {
  PocketWeights result{};
  std::ranges::transform(a, b, result.begin(), std::plus<>());
  return result;
}

bool within(const PocketWeights& part, const PocketWeights& whole) {
  for (std::size_t i = 0; i < kNumPockets; ++i) {
    if (part[i] > whole[i] + 1e-6F) return false;
  }
  return true;
}

}  // namespace velmora
