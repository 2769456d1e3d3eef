// What the pages ask of hands: the labels of the 13 by 13 grid, and the search among combos.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// Hand classes as the solver names them, for the pages. Keeps no state.
class HandText : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  /// The ranks of both axes of the hand grid, highest first.
  Q_PROPERTY(QStringList ranks READ ranks CONSTANT)
  /// The 169 labels, row by row: pairs on the diagonal, suited hands above it, offsuit hands below.
  Q_PROPERTY(QStringList labels READ labels CONSTANT)

 public:
  using QObject::QObject;

  static QStringList ranks();
  static QStringList labels();

  /// The grid label of two cards, in either order; "" for what is no pair of cards.
  Q_INVOKABLE static QString handClassFromCards(const QString& card1, const QString& card2);
  /// Whether two cards are what somebody searches for: "AsKd", "AK", "AKs" or "AKo", in either
  /// order and case, or one of several such tokens between spaces or commas. A search without a
  /// token finds every hand.
  Q_INVOKABLE static bool matchesSearch(const QString& search, const QString& card1,
                                        const QString& card2);
};
