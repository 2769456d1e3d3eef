// Saves two projects by turns over one file until it is killed, for the tests of project files.
#include <cstdio>
#include <cstdlib>

#include <QCoreApplication>

#include "project_reader.h"
#include "project_writer.h"

int main(int argc, char* argv[]) {
  const QCoreApplication app(argc, argv);
  const QStringList files = QCoreApplication::arguments();
  if (files.size() != 4) return EXIT_FAILURE;
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  const ProjectReading projects[] = {readProject(files[1]), readProject(files[2])};
  std::puts("ready");
  std::fflush(stdout);
  for (std::size_t save = 0;; ++save) {
    if (!writeProject(projects[save % 2].project, files[3], {}).isEmpty()) return EXIT_FAILURE;
  }
}
