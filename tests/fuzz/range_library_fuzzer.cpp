// JSON of range libraries, as the two files hold it and as the settings store keeps it.
#include "fuzz_support.h"
#include "page_script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::PageScript script("RangeLibrary.qml");
  const std::string_view text = fuzz::text_of(data, size);
  script.run(QString::fromUtf8(text.data(), static_cast<qsizetype>(size)));
  return 0;
}
