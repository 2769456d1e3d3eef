// Imported range files, and texts that somebody types: normalised for a library, shown in the
// matrix, painted on and solved.
#include <algorithm>

#include <QUrl>

#include "fuzz_support.h"
#include "range.h"
#include "text_files.h"

namespace {

float weight_of(const std::string& text, std::string_view label) {
  for (const auto& hand : velmora::hand_class_weights(text)) {
    fuzz::check(hand.weight >= 0 && hand.weight <= 1, "a weight lies in 0..1");
    if (hand.label == label) return hand.weight;
  }
  return 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(fuzz::text_of(data, size));
  const fuzz::MemoryFile file(text);
  const QVariantMap read = readTextFile(QUrl::fromLocalFile(QString::fromStdString(file.path())));
  fuzz::check(read["ok"].toBool(), "a file of any bytes can be read");
  const std::string line = velmora::imported_range_text(text);
  std::string typed = text;
  std::replace(typed.begin(), typed.end(), '\n', ',');
  std::replace(typed.begin(), typed.end(), '\r', ',');
  if (velmora::range_fault(typed).empty()) {
    fuzz::check(velmora::parse_range_text(line) == velmora::parse_range_text(typed),
                "a file reads like its lines typed with commas between them");
  }
  fuzz::takes([&] { velmora::parse_range_text(line); });
  for (const char* hand : {"AA", "AKs", "72o"}) {
    const std::string added = velmora::with_hand(text, hand, 0.5);
    fuzz::check(weight_of(added, hand) == 0.5F, "a painted hand has its weight");
    fuzz::check(weight_of(velmora::without_hand(added, hand), hand) == 0, "a cleared hand is gone");
  }
  return 0;
}
