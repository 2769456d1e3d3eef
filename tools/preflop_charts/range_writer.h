// Ranges as texts.
#pragma once

#include <string>

#include "hand_classes.h"

namespace preflop_charts {

/// "AA, KK, 99:0.8, AKs, A2s:0.4": one label for each class of the range, with up to four decimals.
std::string explicit_text(const ClassValues& range);

/// "22-66, A2s-A5s, AKo:0.25, 98s-65s": neighbours of one weight in one token, with up to two
/// decimals. "100%" for all hands. Throws `std::logic_error` if reading the text back would give
/// another range.
std::string short_text(const ClassValues& range);

}  // namespace preflop_charts
