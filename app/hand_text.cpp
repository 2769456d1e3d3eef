#include "hand_text.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <QRegularExpression>

#include "cards.h"
#include "range.h"

namespace {

std::optional<velmora::Pocket> pocketOf(const QString& card1, const QString& card2) {
  try {
    const velmora::CardCode first = velmora::parse_card(card1.toStdString());
    const velmora::CardCode second = velmora::parse_card(card2.toStdString());
    if (first != second) return velmora::make_pocket(first, second);
  } catch (const std::invalid_argument&) {
  }
  return std::nullopt;
}

bool covers(const std::string& token, velmora::Pocket pocket) {
  try {
    const std::vector<std::size_t> hands =
        velmora::expand_pattern(velmora::parse_combo_pattern(token));
    return std::find(hands.begin(), hands.end(), velmora::pocket_index(pocket)) != hands.end();
  } catch (const std::invalid_argument&) {
    return false;
  }
}

/// A token with its two cards or ranks exchanged: the range notation wants the higher rank first.
std::string exchanged(std::string token) {
  if (token.size() == 4) return token.substr(2) + token.substr(0, 2);
  if (token.size() >= 2) std::swap(token[0], token[1]);
  return token;
}

}  // namespace

QStringList HandText::ranks() {
  QStringList ranks;
  for (int rank = velmora::kNumRanks - 1; rank >= 0; --rank) {
    ranks += QChar(QLatin1Char(velmora::rank_to_char(static_cast<std::uint8_t>(rank))));
  }
  return ranks;
}

QStringList HandText::labels() {
  static const QStringList kLabels = [] {
    QStringList labels;
    // A class stands at its two ranks: above the diagonal as two clubs, else as two suits.
    for (int row = velmora::kNumRanks - 1; row >= 0; --row) {
      for (int column = velmora::kNumRanks - 1; column >= 0; --column) {
        const velmora::Pocket pocket = velmora::make_pocket(
            velmora::make_card(row, 0), velmora::make_card(column, row > column ? 0 : 1));
        labels += QString::fromStdString(velmora::hand_class_label(pocket));
      }
    }
    return labels;
  }();
  return kLabels;
}

QString HandText::handClassFromCards(const QString& card1, const QString& card2) {
  const std::optional<velmora::Pocket> pocket = pocketOf(card1, card2);
  return pocket ? QString::fromStdString(velmora::hand_class_label(*pocket)) : QString();
}

bool HandText::matchesSearch(const QString& search, const QString& card1, const QString& card2) {
  static const QRegularExpression kSeparator("[\\s,]+");
  const QStringList tokens = search.split(kSeparator, Qt::SkipEmptyParts);
  if (tokens.isEmpty()) return true;
  const std::optional<velmora::Pocket> pocket = pocketOf(card1, card2);
  return pocket && std::any_of(tokens.begin(), tokens.end(), [&](const QString& text) {
           const std::string token = text.toStdString();
           return covers(token, *pocket) || covers(exchanged(token), *pocket);
         });
}
