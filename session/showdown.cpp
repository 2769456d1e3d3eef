#include "showdown.h"

#include <array>
#include <exception>
#include <string>

#include "hand_eval.h"
#include "text.h"

namespace velmora_app {
namespace {

velmora::CardCode card_at(std::string_view text, std::size_t place) {
  return velmora::parse_card(text.substr(2 * place, 2));
}

velmora::Pocket pocket_of(std::string_view text) {
  return velmora::make_pocket(card_at(text, 0), card_at(text, 1));
}

}  // namespace

Showdown showdown_winner(std::string_view board, std::string_view oop, std::string_view ip) {
  Showdown result;
  const std::string board_text = velmora::without_space(board);
  const std::string oop_text = velmora::without_space(oop);
  const std::string ip_text = velmora::without_space(ip);
  if (board_text.size() < 10 || oop_text.size() < 4 || ip_text.size() < 4) return result;
  try {
    std::array<velmora::CardCode, 5> cards{};
    for (std::size_t i = 0; i < cards.size(); ++i) cards[i] = card_at(board_text, i);
    const velmora::HandStrength mine = velmora::evaluate_hand(pocket_of(oop_text), cards);
    const velmora::HandStrength theirs = velmora::evaluate_hand(pocket_of(ip_text), cards);
    result = {mine > theirs ? "OOP" : mine < theirs ? "IP" : "TIE", mine, theirs};
  } catch (const std::exception&) {  // NOLINT: the unknown winner tells it.
  }
  return result;
}

}  // namespace velmora_app
