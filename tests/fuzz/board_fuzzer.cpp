// Board texts: the model's reading, and the window's, which keeps what is a card.
#include <QByteArray>
#include <QString>

#include "cards.h"
#include "fuzz_support.h"
#include "spot_config.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmora;
  const std::string_view text = fuzz::text_of(data, size);
  Board board;
  if (fuzz::takes([&] { board = parse_board(text); })) {
    // A card that is given is a card; whether the cards differ is asked next.
    fuzz::check((board.turn == kNoCard) == (size < 8), "the turn is where it was given");
    fuzz::check((board.river == kNoCard) == (size < 10), "the river is where it was given");
    if (fuzz::takes([&] { validate_board(board); })) {
      std::string again;
      for (const CardCode card : board.flop) again += card_to_string(card);
      if (board.turn != kNoCard) again += card_to_string(board.turn);
      if (board.river != kNoCard) again += card_to_string(board.river);
      fuzz::check(parse_board(again) == board, "a board is what its cards say");
    }
  }
  fuzz::takes([&] { parse_flop(text); });
  fuzz::takes([&] { parse_card(text); });
  street_from_string(text);

  const QString normal = normalizedBoard(QString::fromUtf8(text.data(), static_cast<int>(size)));
  fuzz::check(normalizedBoard(normal) == normal, "a normal board stays as it is");
  for (qsizetype i = 0; i < normal.size(); i += 2) {
    fuzz::check(card_to_string(parse_card(normal.mid(i, 2).toStdString())) ==
                    normal.mid(i, 2).toStdString(),
                "a normal board holds cards");
  }
  return 0;
}
