#include "hand_categories.h"

#include <algorithm>
#include <bit>

#include "game.h"
#include "hand_eval.h"

namespace velmora {
namespace {

using RankMask = std::uint32_t;

constexpr std::size_t category(std::string_view name) {
  return static_cast<std::size_t>(
      std::find(kHandCategoryNames.begin(), kHandCategoryNames.end(), name) -
      kHandCategoryNames.begin());
}

constexpr CategorySet bit_of(std::string_view name) {
  return CategorySet{1} << category(name);
}

constexpr std::string_view kPair = "pair";
/// The bit behind those of the table.
constexpr CategorySet kPairBit = bit_of(kPair);
static_assert(kPairBit == CategorySet{1} << kHandCategoryNames.size());

constexpr bool holds_straight(RankMask mask) {
  constexpr RankMask kWheel = 0x100F;
  RankMask run = mask;
  for (int i = 0; i < 4; ++i) run = (run << 1) & mask;
  return run != 0 || (mask & kWheel) == kWheel;
}

/// The pocket's cards, then the board's.
std::vector<CardCode> with_pocket(Pocket pocket, std::span<const CardCode> board) {
  std::vector<CardCode> cards(2 + board.size());
  cards[0] = low_card(pocket);
  cards[1] = high_card(pocket);
  std::copy(board.begin(), board.end(), cards.begin() + 2);
  return cards;
}

CategorySet pair_tag(Pocket pocket, std::span<const CardCode> board) {
  std::array<std::uint8_t, kNumRanks> counts{};
  for (const CardCode card : board) ++counts[rank_of(card)];
  std::vector<std::uint8_t> ranks;
  for (std::uint8_t rank = kNumRanks; rank-- > 0;) {
    if (counts[rank] != 0) ranks.push_back(rank);
  }
  const std::string_view name = pair_class(pocket, ranks, counts);
  return name.empty() ? 0 : bit_of(name);
}

CategorySet made_tag(std::uint32_t made, Pocket pocket, std::span<const CardCode> board) {
  switch (made) {
    case kOnePair: return pair_tag(pocket, board);
    case kTwoPair: return bit_of("two pair");
    case kThreeOfAKind: {
      const std::uint8_t rank = rank_of(low_card(pocket));
      const bool is_set = rank == rank_of(high_card(pocket)) &&
                          std::count_if(board.begin(), board.end(), [rank](CardCode card) {
                            return rank_of(card) == rank;
                          }) == 1;
      return is_set ? bit_of("set") : bit_of("trips");
    }
    case kStraight: return bit_of("straight");
    case kFlush: return bit_of("flush");
    case kFullHouse: return bit_of("full house");
    case kFourOfAKind: return bit_of("quads");
    case kStraightFlush: return bit_of("straight flush");
    default: return 0;
  }
}

/// All tags of a pocket, "pair" included and "air" not.
CategorySet tags_of(std::span<const CardCode> board, Pocket pocket) {
  // Step 1. What the hand is.
  const std::vector<CardCode> cards = with_pocket(pocket, board);
  const std::uint32_t made = made_category(cards);
  CategorySet tags = made_tag(made, pocket, board);

  // Step 2. What it can become.
  if (board.size() < 5) {
    const bool has_flush = made == kFlush || made == kStraightFlush;
    const FlushDraws flush = flush_draws(cards, pocket, board.size() == 3, has_flush);
    if (flush.flush_draw) tags |= bit_of("flush draw");
    if (flush.back_door) tags |= bit_of("back door flush draw");
    const StraightDraws straight = straight_draws(cards);
    if (straight.open_ended) tags |= bit_of("open ended straight draw");
    if (straight.gutter) tags |= bit_of("gutter");
    return tags;
  }

  // Step 3. What it did not become: given to hands that have added nothing to the board. Their turn
  // held no straight or flush, since their river does not.
  if (made <= kOnePair && made_category(board) == made) {
    const std::vector<CardCode> turn = with_pocket(pocket, board.first(4));
    if (flush_draws(turn, pocket, false, false).flush_draw) tags |= bit_of("missed FD");
    const StraightDraws straight = straight_draws(turn);
    if (straight.open_ended) tags |= bit_of("missed OESD");
    if (straight.gutter) tags |= bit_of("missed gutter");
  }
  return tags;
}

/// A hand that holds a card of the board can't be there.
bool can_be_classed(std::span<const CardCode> board, Pocket pocket) {
  if (board.size() < 3 || board.size() > 5) return false;
  return std::none_of(board.begin(), board.end(), [pocket](CardCode card) {
    return card == low_card(pocket) || card == high_card(pocket);
  });
}

}  // namespace

std::vector<CardCode> node_board(const Game& game, const PlanNode& node) {
  std::vector<CardCode> board = game.cards().board_cards();
  const auto place = [&board](std::size_t at, CardCode card) {
    if (card == kNoCard) return;
    if (at < board.size()) {
      board[at] = card;
    } else {
      board.push_back(card);
    }
  };
  if (board.size() < 3) return board;
  place(3, node.turn);
  place(4, node.river);
  return board;
}

std::vector<std::string_view> hand_categories(const Game& game, const PlanNode& node,
                                              Pocket pocket) {
  const std::vector<CardCode> board = node_board(game, node);
  if (!can_be_classed(board, pocket)) return {};
  CategorySet tags = tags_of(board, pocket);
  if (tags == 0) tags = bit_of("air");
  std::vector<std::string_view> names;
  for (CategorySet rest = tags & ~kPairBit; rest != 0; rest &= rest - 1) {
    names.push_back(kHandCategoryNames[static_cast<std::size_t>(std::countr_zero(rest))]);
  }
  if (tags & kPairBit) names.push_back(kPair);
  std::sort(names.begin(), names.end());
  return names;
}

CategorySet category_set(std::span<const CardCode> board, Pocket pocket) {
  if (!can_be_classed(board, pocket)) return 0;
  const CategorySet tags = tags_of(board, pocket) & ~kPairBit;
  return tags != 0 ? tags : bit_of("air");
}

std::uint32_t made_category(std::span<const CardCode> cards) {
  if (cards.size() < 5 || cards.size() > 7) return kHighCard;
  std::array<int, kNumRanks> counts{};
  std::array<RankMask, kNumSuits> suits{};
  std::array<int, kNumSuits> suit_counts{};
  for (const CardCode card : cards) {
    check_card_code(card);
    ++counts[rank_of(card)];
    ++suit_counts[suit_of(card)];
    suits[suit_of(card)] |= RankMask{1} << rank_of(card);
  }
  // A flush excludes four of a kind or a full house among seven cards.
  for (std::size_t suit = 0; suit < suits.size(); ++suit) {
    if (suit_counts[suit] >= 5) return holds_straight(suits[suit]) ? kStraightFlush : kFlush;
  }
  const auto fours = std::count_if(counts.begin(), counts.end(), [](int n) { return n >= 4; });
  const auto threes = std::count(counts.begin(), counts.end(), 3);
  const auto pairs = std::count(counts.begin(), counts.end(), 2);
  if (fours > 0) return kFourOfAKind;
  if (threes > 1 || (threes == 1 && pairs > 0)) return kFullHouse;
  if (holds_straight(suits[0] | suits[1] | suits[2] | suits[3])) return kStraight;
  if (threes > 0) return kThreeOfAKind;
  return pairs > 1 ? kTwoPair : pairs == 1 ? kOnePair : kHighCard;
}

FlushDraws flush_draws(std::span<const CardCode> cards, Pocket pocket, bool is_flop,
                       bool has_flush) {
  if (has_flush) return {};
  std::array<int, kNumSuits> counts{};
  for (const CardCode card : cards) ++counts[suit_of(card)];
  const auto most = std::max_element(counts.begin(), counts.end());
  const int suit = static_cast<int>(most - counts.begin());
  if (suit_of(low_card(pocket)) != suit && suit_of(high_card(pocket)) != suit) return {};
  return {*most == 4, is_flop && *most == 3};
}

StraightDraws straight_draws(std::span<const CardCode> cards) {
  RankMask mask = 0;
  for (const CardCode card : cards) mask |= RankMask{1} << rank_of(card);
  if (holds_straight(mask)) return {};
  int completing = 0;
  for (int rank = 0; rank < kNumRanks; ++rank) {
    if (holds_straight(mask | RankMask{1} << rank)) ++completing;
  }
  return {completing >= 2, completing == 1};
}

std::string_view pair_class(Pocket pocket, std::span<const std::uint8_t> board_ranks,
                            std::span<const std::uint8_t, kNumRanks> board_rank_counts) {
  const std::uint8_t rank1 = rank_of(low_card(pocket));
  const std::uint8_t rank2 = rank_of(high_card(pocket));
  if (rank1 == rank2) return rank1 > board_ranks.front() ? "overpair" : "dry pair";
  if (board_rank_counts[rank1] == 0 && board_rank_counts[rank2] == 0) return {};
  const auto place =
      std::find_if(board_ranks.begin(), board_ranks.end(),
                   [rank1, rank2](std::uint8_t rank) { return rank == rank1 || rank == rank2; });
  if (place == board_ranks.begin()) return "top pair";
  if (place == board_ranks.begin() + 1) return "middle pair";
  return place + 1 == board_ranks.end() ? "bottom pair" : kPair;
}

}  // namespace velmora
