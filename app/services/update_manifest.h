// What the manifest of an update check says.
#pragma once

#include <optional>

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QVersionNumber>

struct UpdateManifest {
  QString version;   ///< Trimmed; empty if there is none.
  QString notes;     ///< Release notes.
  QUrl downloadUrl;  ///< That of this platform, else that of all; http or https.
  QByteArray json;   ///< The whole manifest, compact, as it is kept.
};

/// Nothing unless the text is a JSON object. What is missing in it or of a wrong type is empty.
std::optional<UpdateManifest> parseManifest(const QByteArray& text);

/// The dotted numbers of a version text, without a leading "v" and without what follows a "+" or
/// "-". Null if there are none.
QVersionNumber parseVersion(const QString& text);

/// True if both texts are versions and the first is the higher one.
bool isNewer(const QString& version, const QString& than);
