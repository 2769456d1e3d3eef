// What the pages ask of a range text.
#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// The one reader of range texts, for the pages: the parser that the solve itself reads with. Keeps
/// no state.
class RangeText : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// By hand label the mean weight 0..1 of its combos, of the labels that the range holds something
  /// of. Tokens that can't be read add nothing.
  Q_INVOKABLE static QVariantMap weights(const QString& text);
  /// Weighted combos before any card is known, 0..1326; 0 for a text that can't be read.
  Q_INVOKABLE static double combos(const QString& text);
  /// What is wrong with the text, in one sentence; empty if it can be read.
  Q_INVOKABLE static QString fault(const QString& text);
  /// The text with a hand painted or cleared. A painted one weighs `weight`, 0..1.
  Q_INVOKABLE static QString painted(const QString& text, const QString& hand, bool on,
                                     double weight);
  /// The text of a range file as one line, read as if it were typed; empty if it names no hand.
  Q_INVOKABLE static QString imported(const QString& text);
};
