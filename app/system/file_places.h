// Where a user keeps files, and what is there, for the pages that choose one.
#pragma once

#include <QString>
#include <QUrl>
#include <QVariantList>

/// The user's folders that exist, each once: maps of `key` ("home", "documents", "desktop",
/// "downloads") and `url`.
QVariantList standardFolders();
/// What stands at the address of a local file: "file", "folder", or "" for nothing.
QString fileKind(const QUrl& fileUrl);
