// Reads a project file as another run of the program would.
#pragma once

#include <QObject>
#include <QUrl>
#include <QVariantMap>

class ReadBack : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// "ok", "board", "iterations", "exploitability", "nodeCount", "strategy" (of the root) and
  /// "locks" (of the root), from a controller that knows nothing but the file.
  Q_INVOKABLE QVariantMap of(const QUrl& file) const;
};
