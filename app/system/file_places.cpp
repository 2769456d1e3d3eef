#include "system/file_places.h"

#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>
#include <QVariantMap>

QVariantList standardFolders() {
  const struct {
    const char* key;
    QStandardPaths::StandardLocation location;
  } places[] = {{"home", QStandardPaths::HomeLocation},
                {"documents", QStandardPaths::DocumentsLocation},
                {"desktop", QStandardPaths::DesktopLocation},
                {"downloads", QStandardPaths::DownloadLocation}};
  QVariantList folders;
  QSet<QString> seen;
  for (const auto& place : places) {
    const QString path = QStandardPaths::writableLocation(place.location);
    if (seen.contains(path) || !QFileInfo(path).isDir()) continue;
    seen.insert(path);
    folders.append(QVariantMap{{"key", place.key}, {"url", QUrl::fromLocalFile(path)}});
  }
  return folders;
}

QString fileKind(const QUrl& fileUrl) {
  if (!fileUrl.isLocalFile()) return {};
  const QFileInfo info(fileUrl.toLocalFile());
  return info.isDir() ? "folder" : info.exists() ? "file" : "";
}
