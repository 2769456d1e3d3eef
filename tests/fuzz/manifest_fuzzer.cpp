// The manifest of an update check, and version texts.
#include <QString>

#include "fuzz_support.h"
#include "services/update_manifest.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::text_of(data, size);
  const QByteArray bytes(text.data(), static_cast<qsizetype>(size));
  if (const auto manifest = parseManifest(bytes)) {
    fuzz::check(manifest->version == manifest->version.trimmed(), "a version is trimmed");
    isNewer(manifest->version, "1.0.1");
  }
  const QString version = QString::fromUtf8(bytes);
  fuzz::check(!isNewer(version, version), "no version is newer than itself");
  const QVersionNumber number = parseVersion(version);
  fuzz::check(parseVersion(number.toString()) == number, "a number is what it says");
  return 0;
}
