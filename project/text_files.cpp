#include "text_files.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

LocalPath localPathOf(const QUrl& fileUrl) {
  if (!fileUrl.isValid() || !fileUrl.isLocalFile()) {
    return {{}, QCoreApplication::translate("AppController", "Invalid/non-local file URL")};
  }
  const QString path = fileUrl.toLocalFile();
  return {path, path.isEmpty() ? QCoreApplication::translate("AppController", "Empty file path")
                               : QString()};
}

QVariantMap saveTextFile(const QUrl& fileUrl, const QString& text) {
  const auto failed = [](const QString& error) {
    return QVariantMap{{"ok", false}, {"error", error}};
  };
  const auto [path, error] = localPathOf(fileUrl);
  if (!error.isEmpty()) return failed(error);

  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
    return failed(QCoreApplication::translate("AppController", "Failed to open file: %1")
                      .arg(file.errorString()));
  }
  // A disk that fills up takes a part without a fault and refuses only the rest. A refused write
  // makes the commit fail.
  const QByteArray bytes = text.toUtf8();
  for (qint64 written = 0, count = 0; written < bytes.size(); written += count) {
    count = file.write(bytes.constData() + written, bytes.size() - written);
    if (count <= 0) break;
  }
  if (!file.commit())
    return failed(QCoreApplication::translate("AppController", "Failed to save file: %1")
                      .arg(file.errorString()));
  return {{"ok", true}, {"error", QString()}};
}

QVariantMap readTextFile(const QUrl& fileUrl) {
  const auto failed = [](const QString& error) {
    return QVariantMap{{"ok", false}, {"error", error}, {"text", QString()}};
  };
  if (!fileUrl.isValid()) return failed("Invalid file URL.");
  if (!fileUrl.isLocalFile()) return failed("Only local files are supported.");
  const QString path = fileUrl.toLocalFile();
  if (path.trimmed().isEmpty()) return failed("Empty file path.");
  if (!QFileInfo::exists(path)) return failed("File does not exist.");

  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
    return failed(QStringLiteral("Failed to open file: %1").arg(file.errorString()));
  }
  if (file.size() > kMaxTextFileBytes) {
    return failed(QStringLiteral("File is too large (%1 bytes).").arg(file.size()));
  }
  // Bounded, since a device file has no size but no end either.
  const QString text = QString::fromUtf8(file.read(kMaxTextFileBytes));
  return {{"ok", true}, {"error", QString()}, {"text", text}};
}

QString readTextResource(const QString& path) {
  QString resource = path.trimmed();
  if (resource.startsWith(QLatin1String("qrc:/"))) {
    resource.remove(0, 3);
  } else if (resource.startsWith(QLatin1Char('/'))) {
    resource.prepend(QLatin1Char(':'));
  }
  if (!resource.startsWith(QLatin1String(":/"))) {
    qWarning() << "readTextResource: not a Qt resource path:" << path;
    return {};
  }
  QFile file(resource);
  if (!file.open(QIODevice::ReadOnly)) {
    qWarning() << "readTextResource: failed to open:" << resource;
    return {};
  }
  return QString::fromUtf8(file.readAll());
}
