#include "services/update_manifest.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// An address that a browser may be given; empty for one of any other kind, such as a file's.
QUrl webAddress(const QString& text) {
  const QUrl url(text);
  const bool web = (url.scheme() == "https" || url.scheme() == "http") && !url.host().isEmpty();
  return web ? url : QUrl();
}

}  // namespace

std::optional<UpdateManifest> parseManifest(const QByteArray& text) {
  const QJsonDocument document = QJsonDocument::fromJson(text);
  if (!document.isObject()) return std::nullopt;
  const QJsonObject manifest = document.object();
  const QString platformUrl = manifest.value("windows_url").toString().trimmed();
  return UpdateManifest{
      manifest.value("version").toString().trimmed(), manifest.value("notes").toString(),
      webAddress(platformUrl.isEmpty() ? manifest.value("url").toString().trimmed() : platformUrl),
      document.toJson(QJsonDocument::Compact)};
}

QVersionNumber parseVersion(const QString& text) {
  QString version = text.trimmed();
  if (version.startsWith('v', Qt::CaseInsensitive)) version.remove(0, 1);
  return QVersionNumber::fromString(version.section('+', 0, 0).section('-', 0, 0).trimmed());
}

bool isNewer(const QString& version, const QString& than) {
  const QVersionNumber number = parseVersion(version);
  const QVersionNumber other = parseVersion(than);
  return !number.isNull() && !other.isNull() && other < number;
}
