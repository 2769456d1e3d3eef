// Range texts.
#include "fuzz_support.h"
#include "range.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmora;
  const std::string_view text = fuzz::text_of(data, size);
  PocketWeights weights;
  if (fuzz::takes([&] { weights = parse_range_text(text); })) {
    // What a table says, written out pocket by pocket, is the same table.
    std::string again;
    for (std::size_t i = 0; i < kNumPockets; ++i) {
      fuzz::check(weights[i] >= 0 && weights[i] <= 1, "a weight is in 0..1");
      const auto [low, high] = pocket_cards(i);
      fuzz::check(get_weight(weights, high, low) == weights[i], "pockets have one place");
      if (weights[i] == 0) continue;
      char token[32];
      std::snprintf(token, sizeof token, "%s%s:%.9g,", card_to_string(high).c_str(),
                    card_to_string(low).c_str(), static_cast<double>(weights[i]));
      again += token;
    }
    PocketWeights same;
    // Numbers that are no normal floats are refused with a text of their own.
    if (fuzz::takes([&] { same = parse_range(again); })) {
      fuzz::check(same == weights, "a range is what its pockets say");
    }
  }
  ComboPattern pattern;
  if (fuzz::takes([&] { pattern = parse_combo_pattern(text); })) {
    const std::size_t pockets = expand_pattern(pattern).size();
    fuzz::check(pockets >= 1 && pockets <= 16, "a pattern covers pockets");
  }
  fuzz::takes([&] { parse_double_strict(text); });
  fuzz::takes([&] { parse_int_strict(text); });
  return 0;
}
