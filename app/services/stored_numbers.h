// Figures that the settings store keeps, whatever somebody has made of them.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include <QSettings>

/// Beyond this a sum in the settings counts no further. Doubles hold all whole numbers up to it.
inline constexpr qint64 kMostCounted = qint64{1} << 53;

/// A count, 0..`kMostCounted`; 0 if what is stored is none.
inline qint64 storedCount(const QSettings& settings, const QString& key) {
  return std::clamp<qint64>(settings.value(key).toLongLong(), 0, kMostCounted);
}

/// The same as far as an int goes.
inline int shownCount(const QSettings& settings, const QString& key) {
  return static_cast<int>(
      std::min<qint64>(storedCount(settings, key), std::numeric_limits<int>::max()));
}

/// A number of 0 or more; 0 if what is stored is none.
inline double storedSum(const QSettings& settings, const QString& key) {
  const double sum = settings.value(key).toDouble();
  return std::isfinite(sum) ? std::max(sum, 0.0) : 0.0;
}
