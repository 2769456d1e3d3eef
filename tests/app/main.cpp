#include <cstdlib>

#include <QGuiApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
  // Nothing of the user's is read or written: settings, files and display are the tests' own.
  const QTemporaryDir home;
  if (!home.isValid()) return EXIT_FAILURE;
  qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
  qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
  qputenv("TMPDIR", home.path().toLocal8Bit());
  qputenv("LC_ALL", "C.UTF-8");
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  const QGuiApplication app(argc, argv);
  QCoreApplication::setOrganizationName("DunmarrowTests");
  QCoreApplication::setApplicationName("DunmarrowTests");
  return RUN_ALL_TESTS();
}
