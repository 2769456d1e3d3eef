#include "draft.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>

Draft::Draft() : Draft(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)) {}

Draft::Draft(const QString& folder) : path_(QDir(folder).filePath("draft.json")) {
  if (folder.isEmpty() || !QDir().mkpath(folder)) return;
  lock_ = std::make_unique<QLockFile>(QDir(folder).filePath("draft.lock"));
  lock_->setStaleLockTime(0);  // Only the end of its owner frees it, however long that runs.
  owned_ = lock_->tryLock();
  if (!owned_) return;
  QFile file(path_);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QVariantMap left = QJsonDocument::fromJson(file.readAll()).object().toVariantMap();
  if (!left.value("project").toMap().isEmpty()) leftBehind_ = left;
}

bool Draft::keep(const QVariantMap& projectState) {
  if (!owned_) return false;
  const QJsonObject draft{{"savedAt", QDateTime::currentDateTime().toString(Qt::ISODate)},
                          {"project", QJsonObject::fromVariantMap(projectState)}};
  QSaveFile file(path_);
  const bool kept = file.open(QIODevice::WriteOnly) &&
                    file.write(QJsonDocument(draft).toJson()) >= 0 && file.commit();
  if (!kept) qWarning() << "The spot under edit could not be kept:" << file.errorString();
  return kept;
}

void Draft::drop() {
  leftBehind_.clear();
  if (owned_) QFile::remove(path_);
}
