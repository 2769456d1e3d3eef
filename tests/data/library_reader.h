// Reads the two range libraries out of the module.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <QJsonArray>
#include <QJsonObject>

#include "range.h"

namespace velmora {

/// Names and range texts, in the order of the file.
using LibraryRows = std::vector<std::pair<std::string, std::string>>;

/// The document of "standard_ranges.json" or "exploit_ranges.json"; empty if there is none.
QJsonObject library(const char* file);
/// A list of a seat, "oop" or "ip", in such a document.
QJsonArray list(const char* file, const char* seat, const char* key);
/// The flat list of a seat.
LibraryRows standard_rows(const char* seat);
/// The leaves of a seat's tree, folders and name joined by " / ".
LibraryRows population_rows(const char* seat);

/// The ranges of a seat by name.
class Ranges {
 public:
  explicit Ranges(const LibraryRows& rows) {
    for (const auto& [name, text] : rows) weights_.emplace(name, parse_range_text(text));
  }
  /// Throws `std::out_of_range` if there is no such row.
  const PocketWeights& operator[](const std::string& name) const { return weights_.at(name); }
  auto begin() const { return weights_.begin(); }
  auto end() const { return weights_.end(); }

 private:
  std::map<std::string, PocketWeights> weights_;
};

double percent(const PocketWeights& weights);
PocketWeights sum(const PocketWeights& a, const PocketWeights& b);
/// True if no pocket has more in `part` than in `whole`, up to the last decimal that is written.
bool within(const PocketWeights& part, const PocketWeights& whole);

}  // namespace velmora
