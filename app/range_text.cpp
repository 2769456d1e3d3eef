#include "range_text.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "range.h"

QVariantMap RangeText::weights(const QString& text) {
  QVariantMap weights;
  for (const auto& [label, weight] : velmora::hand_class_weights(text.toStdString())) {
    if (weight > 0) {
      weights[QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size()))] =
          static_cast<double>(weight);
    }
  }
  return weights;
}

double RangeText::combos(const QString& text) {
  try {
    return velmora::range_combos(text.toStdString());
  } catch (const std::logic_error&) {
    return 0;
  }
}

QString RangeText::fault(const QString& text) {
  return QString::fromStdString(velmora::range_fault(text.toStdString()));
}

QString RangeText::painted(const QString& text, const QString& hand, bool on, double weight) {
  try {
    const std::string range = text.toStdString();
    const std::string label = hand.toStdString();
    return QString::fromStdString(on ? velmora::with_hand(range, label, std::min(weight, 1.0))
                                     : velmora::without_hand(range, label));
  } catch (const std::logic_error&) {
    return text;  // No cell of the matrix has such a label.
  }
}

QString RangeText::imported(const QString& text) {
  const std::string line = velmora::imported_range_text(text.toStdString());
  const bool empty = velmora::range_fault(line).empty() && !velmora::range_has_hand(line);
  return empty ? QString() : QString::fromStdString(line);
}
