#include "services/update_manager.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSettings>
#include <QTimer>

namespace {

constexpr char kManifestUrlKey[] = "updates/manifestUrl";
constexpr char kCachedManifestKey[] = "updates/cachedManifestJson";
constexpr char kCachedAtKey[] = "updates/cachedAt";
/// A manifest is a few hundred bytes.
constexpr qint64 kLargestManifest = 1024 * 1024;
constexpr int kMostRedirects = 5;

QString normalizeUrl(const QString& text) {
  QString url = text.trimmed();
  while (url.endsWith('/')) url.chop(1);
  return url;
}

/// The first address that is set: the user's, the environment's, that of the build. Empty if none
/// is.
QString initialManifestUrl() {
  for (const QString& candidate :
       {QSettings().value(kManifestUrlKey).toString(),
        qEnvironmentVariable("VELMORA_UPDATE_MANIFEST_URL"),
        qEnvironmentVariable("VELMORA_UPDATE_URL"), QString(DUNMARROW_UPDATE_URL)}) {
    const QString url = normalizeUrl(candidate);
    if (!url.isEmpty()) return url;
  }
  return {};
}

}  // namespace

UpdateManager::UpdateManager(QObject* parent, std::chrono::milliseconds timeLimit)
    : QObject(parent), timeLimit_(timeLimit), manifestUrl_(initialManifestUrl()) {
  applyStoredManifest();
}

QString UpdateManager::currentVersion() const {
  return QCoreApplication::applicationVersion();
}

void UpdateManager::setManifestUrl(const QString& url) {
  const QString normalized = normalizeUrl(url);
  if (normalized == manifestUrl_) return;
  manifestUrl_ = normalized;
  QSettings().setValue(kManifestUrlKey, normalized);
  emit manifestUrlChanged();
}

void UpdateManager::setBusy(bool busy) {
  if (busy == busy_) return;
  busy_ = busy;
  emit busyChanged();
}

void UpdateManager::fail(const QString& error) {
  lastError_ = error;
  emit stateChanged();
}

void UpdateManager::applyStoredManifest() {
  const QSettings settings;
  const QByteArray text = settings.value(kCachedManifestKey).toString().trimmed().toUtf8();
  const auto manifest = parseManifest(text);
  if (!manifest) return;
  const QDateTime cachedAt = settings.value(kCachedAtKey).toDateTime();
  if (cachedAt.isValid()) lastSuccessAt_ = cachedAt;
  applyManifest(*manifest);
}

void UpdateManager::applyManifest(const UpdateManifest& manifest) {
  latestVersion_ = manifest.version;
  releaseNotes_ = manifest.notes;
  downloadUrl_ = manifest.downloadUrl;
  updateAvailable_ = isNewer(latestVersion_, currentVersion()) && downloadUrl_.isValid();
  emit stateChanged();
}

void UpdateManager::checkNow() {
  lastCheckedAt_ = QDateTime::currentDateTimeUtc();
  emit stateChanged();
  if (busy_) return;
  const QString url = normalizeUrl(manifestUrl_);
  if (url.isEmpty()) {
    fail(tr("Update URL is not configured."));
    return;
  }
  if (reply_) reply_->abort();
  setBusy(true);
  fail({});

  QNetworkRequest request{QUrl(url)};
  request.setHeader(QNetworkRequest::ContentTypeHeader, "application/json");
  request.setRawHeader("Accept", "application/json");
  // Never from HTTPS to plain HTTP.
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                       QNetworkRequest::NoLessSafeRedirectPolicy);
  request.setMaximumRedirectsAllowed(kMostRedirects);
  QNetworkReply* const reply = network_.get(request);
  reply_ = reply;
  reply->setReadBufferSize(kLargestManifest + 1);  // What is beyond the limit waits outside.
  QTimer::singleShot(timeLimit_, Qt::PreciseTimer, reply, [reply] {
    if (reply->isRunning()) reply->abort();
  });
  connect(reply, &QNetworkReply::readyRead, reply, [reply] {
    if (reply->bytesAvailable() > kLargestManifest) reply->abort();
  });
  connect(reply, &QNetworkReply::finished, this, [this, reply] { finish(reply); });
}

void UpdateManager::finish(QNetworkReply* reply) {
  reply_ = nullptr;
  reply->deleteLater();
  setBusy(false);
  if (reply->error() != QNetworkReply::NoError) {
    fail(tr("Update check failed: %1").arg(reply->errorString()));
    return;
  }
  const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  const auto manifest = parseManifest(reply->readAll());
  if (!manifest) {
    fail(tr("Invalid update response (HTTP %1).").arg(status));
    return;
  }
  lastSuccessAt_ = QDateTime::currentDateTimeUtc();
  applyManifest(*manifest);
  QSettings settings;
  settings.setValue(kCachedManifestKey, QString::fromUtf8(manifest->json));
  settings.setValue(kCachedAtKey, lastSuccessAt_);
}

void UpdateManager::openDownloadUrl() {
  if (downloadUrl_.isValid()) {
    QDesktopServices::openUrl(downloadUrl_);
  } else {
    fail(tr("No download URL available."));
  }
}

void UpdateManager::clearState() {
  updateAvailable_ = false;
  latestVersion_.clear();
  downloadUrl_.clear();
  releaseNotes_.clear();
  lastError_.clear();
  lastCheckedAt_ = {};
  lastSuccessAt_ = {};
  QSettings settings;
  settings.remove(kCachedManifestKey);
  settings.remove(kCachedAtKey);
  emit stateChanged();
}
