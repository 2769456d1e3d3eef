// Local text files and text resources, as the pages read and write them.
#pragma once

#include <QString>
#include <QUrl>
#include <QVariantMap>

/// Largest text file that is read, in bytes.
inline constexpr qint64 kMaxTextFileBytes = 2'097'152;

struct LocalPath {
  QString path;   ///< Empty if the address is none of a local file.
  QString error;  ///< Why it is empty, translated.
};

LocalPath localPathOf(const QUrl& fileUrl);
/// Writes a whole file as UTF-8, or leaves what was there. Answers with "ok" and "error".
QVariantMap saveTextFile(const QUrl& fileUrl, const QString& text);
/// Reads a whole UTF-8 file. Answers with "ok", "error" and "text".
QVariantMap readTextFile(const QUrl& fileUrl);
/// Text of a resource, given as "qrc:/x", ":/x" or "/x"; empty, with a warning in the log, if
/// there is none.
QString readTextResource(const QString& path);
