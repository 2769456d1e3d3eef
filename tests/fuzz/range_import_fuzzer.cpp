// Imported range files: read, normalised for a library, shown in the matrix, and solved.
#include <QUrl>

#include "fuzz_support.h"
#include "page_script.h"
#include "range.h"
#include "text_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::PageScript script("RangeImport.qml");
  const fuzz::MemoryFile file(fuzz::text_of(data, size));
  const QVariantMap read = readTextFile(QUrl::fromLocalFile(QString::fromStdString(file.path())));
  fuzz::check(read["ok"].toBool(), "a file of any bytes can be read");
  const QString normal = script.run(read["text"].toString()).section('\n', 0, 0);
  fuzz::takes([&] { velmora::parse_range_text(normal.toStdString()); });
  return 0;
}
