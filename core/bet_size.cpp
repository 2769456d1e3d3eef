#include "bet_size.h"

#include <stdexcept>

#include "range.h"
#include "text.h"

namespace velmora {

namespace {

constexpr double kNoLimit = std::numeric_limits<double>::infinity();

bool is_one_of(char c, std::string_view lower_case) {
  return lower_case.find(to_lower(c)) != std::string_view::npos;
}

[[noreturn]] void throw_invalid_token(std::string_view token) {
  throw std::invalid_argument("Sizing: invalid token '" + std::string(token) +
                              "'. Use numbers like '33, 75' or '33%, 75%'");
}

/// A piece between two commas without its white space, which may stand between a number and its
/// unit only: "33 75" are two sizes without a comma and not one of 3375. Refuses foreign
/// characters.
std::string packed_piece(std::string_view piece) {
  std::string packed;
  bool behind_space = false;
  for (const char c : piece) {
    if (is_space(c)) {
      behind_space = true;
      continue;
    }
    if (!is_digit(c) && !is_one_of(c, "%.acerx")) throw_invalid_token(piece);
    if (behind_space && !(is_digit(packed.back()) && is_one_of(c, "%cerx"))) {
      throw std::invalid_argument("Sizing: separate sizes by commas, as in '33, 75', not '" +
                                  std::string(piece) + "'");
    }
    behind_space = false;
    packed += c;
  }
  return packed;
}

BetSize parse_raise_multiple(std::string_view number, bool allow_relative) {
  if (!allow_relative) {
    throw std::invalid_argument("Relative raise (x) is not allowed in this context");
  }
  const double multiple = parse_double_strict(number);
  if (!(multiple > 1.0)) throw std::invalid_argument("Relative raise must exceed 1.0x");
  return {.kind = BetSizeKind::kRaiseMultiple, .value = multiple};
}

BetSize parse_chips(std::string_view token, bool allow_relative) {
  const std::size_t c = token.find_first_of("cC");
  BetSize size{.kind = BetSizeKind::kChips};
  size.chips = parse_int_strict(token.substr(0, c));
  const std::string_view cap =
      c == std::string_view::npos ? std::string_view{} : token.substr(c + 1);
  if (cap.empty()) return size;
  if (!allow_relative) throw std::invalid_argument("Raise cap is only valid for raises");
  if (to_lower(cap.back()) != 'r') throw std::invalid_argument("Raise cap must end with 'r'");
  size.raise_cap = parse_int_strict(cap.substr(0, cap.size() - 1));
  if (size.raise_cap < 1) throw std::invalid_argument("Raise cap must be positive");
  return size;
}

BetSize parse_geometric(std::string_view text) {
  BetSize size{.kind = BetSizeKind::kGeometric, .max_pot_fraction = kNoLimit};
  const std::size_t percent = text.find('%');
  if (percent != std::string_view::npos) {
    size.max_pot_fraction = parse_double_strict(text.substr(percent + 1)) / 100;
  }
  const std::string_view streets = text.substr(0, percent);
  if (streets.empty()) return size;
  size.geometric_streets = parse_int_strict(streets);
  if (size.geometric_streets < 1) {
    throw std::invalid_argument("Geometric streets must be positive");
  }
  return size;
}

/// The texts of a seat in normal form.
struct NormalTexts {
  std::string bets;
  std::string raises;
};

NormalTexts normalize_texts(const StreetSizingText& texts) {
  NormalTexts normal;
  normal.bets = normalize_sizing(texts.bet_sizes, texts.add_all_in);
  normal.raises = normalize_sizing(texts.raise_sizes, texts.add_all_in);
  return normal;
}

SeatSizing parse_seat_texts(const StreetSizingText& texts) {
  const NormalTexts normal = normalize_texts(texts);
  return parse_seat_sizing(normal.bets, normal.raises);
}

/// Names the seat whose sizes were at fault. A fault of the normal form itself comes up again here,
/// and reaches the caller bare.
[[noreturn]] void throw_in_context(std::string_view seat, std::string_view street,
                                   const StreetSizingText& texts, const std::string& what) {
  const NormalTexts normal = normalize_texts(texts);
  throw std::invalid_argument(std::string(seat) + " " + std::string(street) + " sizing (bet='" +
                              texts.bet_sizes + "', raise='" + texts.raise_sizes + "', bet_norm='" +
                              normal.bets + "', raise_norm='" + normal.raises + "'): " + what);
}

template <typename ParseSeat>
StreetSizing parse_with(const StreetSizingText& oop, const StreetSizingText& ip,
                        ParseSeat parse_seat) {
  StreetSizing sizing;
  sizing.seats[kOop] = parse_seat("OOP", oop);
  if (oop.dont_donk) {
    sizing.donk.emplace();
  } else {
    sizing.donk = sizing.seats[kOop].bets;
  }
  sizing.seats[kIp] = parse_seat("IP", ip);
  return sizing;
}

}  // namespace

BetSize parse_bet_size(std::string_view token, bool allow_relative) {
  token = trimmed(token);
  if (token.empty()) throw std::invalid_argument("Empty bet size token");
  const std::string_view front = token.substr(0, token.size() - 1);
  switch (to_lower(token.back())) {
    case 'x': return parse_raise_multiple(front, allow_relative);
    case 'e': return parse_geometric(front);
    case 'a': return {.kind = BetSizeKind::kAllIn};
    case '%': return {.kind = BetSizeKind::kPotPercent, .value = parse_double_strict(front) / 100};
    case 'c':
    case 'r': return parse_chips(token, allow_relative);
    default: return {.kind = BetSizeKind::kChips, .chips = parse_int_strict(token)};
  }
}

std::vector<BetSize> parse_bet_sizes(std::string_view text, bool allow_relative) {
  std::vector<BetSize> sizes;
  for_each_piece(text, [&](std::string_view piece) {
    if (!trimmed(piece).empty()) sizes.push_back(parse_bet_size(piece, allow_relative));
  });
  return sizes;
}

SeatSizing parse_seat_sizing(std::string_view bet_text, std::string_view raise_text) {
  SeatSizing sizing;
  sizing.bets = parse_bet_sizes(bet_text, false);
  sizing.raises = parse_bet_sizes(raise_text, true);
  return sizing;
}

std::string normalize_sizing(std::string_view text, bool add_all_in) {
  std::string normal;
  bool has_all_in = false;
  for_each_piece(text, [&](std::string_view written) {
    const std::string piece = packed_piece(trimmed(written));
    if (piece.empty()) return;
    if (piece == "%") throw_invalid_token(piece);
    if (piece.size() == 1 && is_one_of(piece[0], "cex")) {
      throw std::invalid_argument("Sizing: invalid token '" + piece + "'");
    }
    if (piece == "a" || piece == "A") has_all_in = true;
    if (!normal.empty()) normal += ',';
    normal += piece;
    if (!is_one_of(piece.back(), "%acerx")) normal += '%';
  });
  if (add_all_in && !has_all_in) normal += normal.empty() ? "a" : ",a";
  return normal;
}

std::string bet_sizes_fault(std::string_view text, bool add_all_in, bool allow_relative) {
  std::string fault;
  try {
    const std::string normal = normalize_sizing(text, add_all_in);
    for_each_piece(normal, [&](std::string_view piece) {
      try {
        parse_bet_size(piece, allow_relative);
      } catch (const NumberFault&) {
        throw_invalid_token(piece);
      } catch (const std::logic_error& why) {
        throw std::invalid_argument("'" + std::string(piece) + "': " + why.what());
      }
    });
  } catch (const std::logic_error& why) {
    fault = why.what();
  }
  return fault;
}

StreetSizing parse_street_sizing(std::string_view street_name, const StreetSizingText& oop,
                                 const StreetSizingText& ip) {
  return parse_with(oop, ip, [&](std::string_view seat, const StreetSizingText& texts) {
    try {
      return parse_seat_texts(texts);
    } catch (const std::logic_error& fault) {
      throw_in_context(seat, street_name, texts, fault.what());
    }
  });
}

StreetSizing parse_street_sizing_bare(const StreetSizingText& oop, const StreetSizingText& ip) {
  return parse_with(oop, ip, [](std::string_view, const StreetSizingText& texts) {
    return parse_seat_texts(texts);
  });
}

}  // namespace velmora
