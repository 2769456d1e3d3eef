// Asks whether there is a newer version.
#pragma once

#include <chrono>

#include <QDateTime>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include "services/update_manifest.h"

class QNetworkReply;

/// Reads a small JSON manifest ("version", "notes", "windows_url", "url") from a web server,
/// compares its version with the program's own and offers the page to download from. It downloads
/// and installs nothing. The last good manifest is kept in the settings and is in force without a
/// network.
class UpdateManager : public QObject {
  Q_OBJECT
  Q_PROPERTY(QString currentVersion READ currentVersion CONSTANT)
  Q_PROPERTY(QString manifestUrl READ manifestUrl WRITE setManifestUrl NOTIFY manifestUrlChanged)
  Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
  Q_PROPERTY(QString lastError READ lastError NOTIFY stateChanged)
  Q_PROPERTY(QDateTime lastCheckedAt READ lastCheckedAt NOTIFY stateChanged)
  Q_PROPERTY(QDateTime lastSuccessAt READ lastSuccessAt NOTIFY stateChanged)
  Q_PROPERTY(bool updateAvailable READ updateAvailable NOTIFY stateChanged)
  Q_PROPERTY(QString latestVersion READ latestVersion NOTIFY stateChanged)
  Q_PROPERTY(QUrl downloadUrl READ downloadUrl NOTIFY stateChanged)
  Q_PROPERTY(QString releaseNotes READ releaseNotes NOTIFY stateChanged)

 public:
  /// Applies the manifest that the settings keep. A check is given up after `timeLimit`.
  explicit UpdateManager(QObject* parent = nullptr,
                         std::chrono::milliseconds timeLimit = std::chrono::seconds(8));

  QString currentVersion() const;
  QString manifestUrl() const { return manifestUrl_; }
  void setManifestUrl(const QString& url);
  bool busy() const { return busy_; }
  QString lastError() const { return lastError_; }
  QDateTime lastCheckedAt() const { return lastCheckedAt_; }
  QDateTime lastSuccessAt() const { return lastSuccessAt_; }
  bool updateAvailable() const { return updateAvailable_; }
  QString latestVersion() const { return latestVersion_; }
  QUrl downloadUrl() const { return downloadUrl_; }
  QString releaseNotes() const { return releaseNotes_; }

  /// Starts a check. During another one it only notes the time.
  Q_INVOKABLE void checkNow();
  /// Shows the download page in the system's browser.
  Q_INVOKABLE void openDownloadUrl();
  /// Forgets what was found, here and in the settings; the address of the manifest stays.
  Q_INVOKABLE void clearState();

 signals:
  void manifestUrlChanged();
  void busyChanged();
  void stateChanged();

 private:
  void setBusy(bool busy);
  void fail(const QString& error);
  void applyManifest(const UpdateManifest& manifest);
  void applyStoredManifest();
  void finish(QNetworkReply* reply);

  const std::chrono::milliseconds timeLimit_;
  QString manifestUrl_;
  bool busy_ = false;
  QString lastError_;
  QDateTime lastCheckedAt_;
  QDateTime lastSuccessAt_;
  bool updateAvailable_ = false;
  QString latestVersion_;
  QUrl downloadUrl_;
  QString releaseNotes_;
  QNetworkAccessManager network_;
  QPointer<QNetworkReply> reply_;
};
