// What the pages ask of cards and board texts.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// Board texts of the spot under edit, for the pages. Such a text has two characters for each slot,
/// white space aside, with "__" for a slot left empty, so that the cards may be set in any order:
/// "______Kd" has a turn card only. A card is what the solver's parser reads as one, and is given
/// back as "Kd". Keeps no state.
class BoardText : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// "" for a text that is no card.
  Q_INVOKABLE static QString normalizeCard(const QString& card);
  /// Each card normalised, "" for what is none.
  Q_INVOKABLE static QStringList normalizeCards(const QStringList& cards);
  /// The five slots, "" for an empty one and for what is no card.
  Q_INVOKABLE static QStringList shownCards(const QString& text);
  /// The cards that are set, in slot order.
  Q_INVOKABLE static QStringList usedCards(const QString& text);
  /// The text with `card` in the slot `index`, 0..4; "" empties it. Empty slots at the end of a
  /// text leave no trace.
  Q_INVOKABLE static QString setCardAt(const QString& text, int index, const QString& card);
  /// The text without the slot `index` and all that follow it.
  Q_INVOKABLE static QString clearFrom(const QString& text, int index);
  /// "flop", "turn" or "river", by the number of cards set; "flop" for fewer than four.
  Q_INVOKABLE static QString inferStreet(const QString& text);
};
