// Runs the built headless tool as its users do.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

struct CliRun {
  int status = -1;  ///< Exit status, -1 if the program died or hung.
  QByteArray out;
  QByteArray error;

  /// The object on standard output; empty if there is anything else.
  QJsonObject json() const;
};

CliRun run_cli(const QStringList& arguments);
/// Starts the tool and leaves it running.
void start_cli(QProcess& process, const QStringList& arguments);
/// Waits for its end.
CliRun finish_cli(QProcess& process);

/// Path of a file in the folder of examples.
QString example(const QString& name);
/// The spot of an example.
QJsonObject example_spot(const QString& name);

/// Files of one test, gone when it ends.
class Files {
 public:
  QString path(const QString& name) const { return dir_.filePath(name); }
  /// Writes a file and gives its path.
  QString write(const QString& name, const QByteArray& content) const;
  QString write(const QString& name, const QJsonObject& content) const;
  QStringList names() const;

 private:
  QTemporaryDir dir_;
};
