#include "board_text.h"

#include <algorithm>
#include <stdexcept>

#include "cards.h"

namespace {

constexpr qsizetype kSlots = 5;
const QLatin1String kEmptySlot("__");

/// The slots as they are written, two characters each; a single one at the end is none.
QStringList pairsOf(QString text) {
  text.removeIf([](QChar character) { return character.isSpace(); });
  QStringList pairs;
  for (qsizetype i = 0; i + 1 < text.size(); i += 2) pairs += text.mid(i, 2);
  return pairs;
}

/// The slots as they are written, "" for an empty one; at least five.
QStringList slotsOf(const QString& text) {
  QStringList cards = pairsOf(text);
  cards.replaceInStrings(kEmptySlot, QString());
  while (cards.size() < kSlots) cards += QString();
  return cards;
}

QString textOf(QStringList cards) {
  while (!cards.isEmpty() && cards.last().isEmpty()) cards.removeLast();
  for (QString& card : cards) {
    if (card.isEmpty()) card = kEmptySlot;
  }
  return cards.join(QString());
}

}  // namespace

QString BoardText::normalizeCard(const QString& card) {
  try {
    return QString::fromStdString(velmora::card_to_string(velmora::parse_card(card.toStdString())));
  } catch (const std::invalid_argument&) {
    return {};
  }
}

QStringList BoardText::normalizeCards(const QStringList& cards) {
  QStringList normalized;
  for (const QString& card : cards) normalized += normalizeCard(card);
  return normalized;
}

QStringList BoardText::shownCards(const QString& text) {
  return normalizeCards(slotsOf(text).mid(0, kSlots));
}

QStringList BoardText::usedCards(const QString& text) {
  QStringList cards = normalizeCards(pairsOf(text));
  cards.removeAll(QString());
  return cards;
}

QString BoardText::setCardAt(const QString& text, int index, const QString& card) {
  QStringList cards = slotsOf(text);
  if (index >= 0 && index < cards.size()) cards[index] = card;
  return textOf(cards);
}

QString BoardText::clearFrom(const QString& text, int index) {
  return textOf(slotsOf(text).mid(0, std::max(0, index)));
}

QString BoardText::inferStreet(const QString& text) {
  const qsizetype count = usedCards(text).size();
  return count >= 5 ? "river" : count == 4 ? "turn" : "flop";
}
