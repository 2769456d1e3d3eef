// The spot under edit, kept on disk in case the program does not come to its own end.
#pragma once

#include <memory>

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <QVariantMap>

/// One file in a folder of the user's. Of several programs that run at once, the first one owns it;
/// the others keep no draft.
class Draft {
 public:
  /// In the folder for the program's own data.
  Draft();
  explicit Draft(const QString& folder);

  /// What an earlier run left without having dropped it, with "savedAt" (a date and time) and
  /// "project" (a project state); empty if there is nothing.
  QVariantMap leftBehind() const { return leftBehind_; }
  /// Writes the state, atomically. False if it could not be written.
  bool keep(const QVariantMap& projectState);
  /// Removes the file: all is saved, or given up on purpose.
  void drop();

 private:
  QString path_;
  std::unique_ptr<QLockFile> lock_;
  bool owned_ = false;
  QVariantMap leftBehind_;
};
