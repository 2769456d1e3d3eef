// Project files: what is taken must be what a JSON parser finds in them, and must survive being
// saved and read again.
#include <cmath>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include "fuzz_support.h"
#include "project_reader.h"
#include "project_writer.h"
#include "results/node_answers.h"

namespace {

QByteArray bytes_of(const QString& path) {
  QFile file(path);
  fuzz::check(file.open(QIODevice::ReadOnly), "a saved file can be read");
  return file.readAll();
}

/// Saves a project and gives the bytes of the file.
QByteArray saved(const Project& project, const QString& path) {
  fuzz::check(writeProject(project, path, {}).isEmpty(), "a project can be saved");
  return bytes_of(path);
}

void check_against(const Project& project, const QJsonObject& file) {
  fuzz::check(QJsonObject::fromVariantMap(project.state) ==
                  QJsonObject::fromVariantMap(file["project"].toObject().toVariantMap()),
              "the state is that of the file");
  fuzz::check(project.hasResults == file["hasResults"].toBool(), "so is what is said of results");
}

/// Asks all that a page asks of a loaded project.
void walk(Project project) {
  NodeAnswers answers(project);
  for (int node = -1; node <= project.tree.nodeCount(); ++node) {
    project.tree.meta(node);
    project.tree.actions(node);
    project.caches.store(node, answers.source().complete(node, project.caches.answer(node)));
    for (const char* category : {"", "air"}) {
      const QVariantMap grid = answers.nodeHandStrategyReach169(node, category);
      for (const QVariant& weight : grid["weights"].toMap()) {
        fuzz::check(!std::isnan(weight.toDouble()), "weights are numbers");
      }
    }
    for (const QVariant& combo : answers.nodeSeatHandCombos(node, "OOP")) {
      const QVariantMap hand = combo.toMap();
      answers.nodePocketActionEvs(node, "IP", hand["c1"].toString(), hand["c2"].toString());
    }
  }
  for (const velmora_app::NodeLockEntry& lock : project.nodeLocks.entries()) {
    fuzz::check(lock.frequency >= 0 && lock.frequency <= 1, "a frequency is in 0..1");
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  QLoggingCategory::setFilterRules("*.info=false");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // In memory where the system has such a folder.
  static const QTemporaryDir folder(QDir("/dev/shm").exists() ? "/dev/shm/velmora_fuzz_XXXXXX"
                                                              : "velmora_fuzz_XXXXXX");
  const std::string_view text = fuzz::text_of(data, size);
  const fuzz::MemoryFile file(text);
  const ProjectReading reading = readProject(QString::fromStdString(file.path()));

  QJsonParseError error;
  const QJsonObject whole =
      QJsonDocument::fromJson(QByteArray(text.data(), static_cast<qsizetype>(size)), &error)
          .object();
  if (error.error == QJsonParseError::NoError && whole["format"] == "velmora_project" &&
      whole["version"] == 1) {
    // That parser also takes numbers that are no JSON, such as .5, but it writes none.
    const QByteArray strict = QJsonDocument(whole).toJson();
    const fuzz::MemoryFile written({strict.constData(), static_cast<std::size_t>(strict.size())});
    const ProjectReading other = readProject(QString::fromStdString(written.path()));
    // Of these, only a board that no deck gives is refused, however the file is written.
    const bool taken = other.error.isEmpty();
    fuzz::check(taken || other.error.startsWith("The board of the project is impossible: "),
                "what a JSON parser takes is a project");
    if (taken) check_against(other.project, whole);
    if (reading.error.isEmpty()) {
      fuzz::check(taken, "both ways to write the file are taken alike");
      check_against(reading.project, whole);
    }
  }
  if (!reading.error.isEmpty()) return 0;
  walk(reading.project);

  const QString path = folder.filePath("a");
  const QByteArray first = saved(reading.project, path);
  const ProjectReading again = readProject(path);
  fuzz::check(again.error.isEmpty(), "a saved project can be read");
  fuzz::check(again.project.tree.nodeCount() == reading.project.tree.nodeCount(),
              "a saved tree comes back");
  fuzz::check(saved(again.project, path) == first, "a second generation is the same file");
  return 0;
}
