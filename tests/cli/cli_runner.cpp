#include "cli_runner.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {
constexpr int kTimeout = 300'000;
}

QJsonObject CliRun::json() const {
  return QJsonDocument::fromJson(out).object();
}

void start_cli(QProcess& process, const QStringList& arguments) {
  process.start(CLI_PROGRAM, arguments);
}

CliRun finish_cli(QProcess& process) {
  CliRun run;
  if (!process.waitForFinished(kTimeout)) {
    process.kill();
    process.waitForFinished();
  } else if (process.exitStatus() == QProcess::NormalExit) {
    run.status = process.exitCode();
  }
  run.out = process.readAllStandardOutput();
  run.error = process.readAllStandardError();
  return run;
}

CliRun run_cli(const QStringList& arguments) {
  QProcess process;
  start_cli(process, arguments);
  return finish_cli(process);
}

QString example(const QString& name) {
  return QDir(EXAMPLES_DIR).filePath(name);
}

QJsonObject example_spot(const QString& name) {
  QFile file(example(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
  return QJsonDocument::fromJson(file.readAll()).object();
}

QString Files::write(const QString& name, const QByteArray& content) const {
  QFile file(path(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
  return file.fileName();
}

QString Files::write(const QString& name, const QJsonObject& content) const {
  return write(name, QJsonDocument(content).toJson());
}

QStringList Files::names() const {
  return QDir(dir_.path()).entryList(QDir::Files);
}
