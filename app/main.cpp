// Entry of the desktop program.
#include <cstdio>
#include <optional>

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QGuiApplication>
#include <QIcon>
#include <QQmlApplicationEngine>
#include <QQmlError>
#include <QQuickStyle>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

#include "page_services.h"
#include "system/command_line.h"
#include "system/crash_lines.h"
#include "system/logging.h"

// Nothing else asks for the types of the pages' module, and a linker drops what nobody asks for.
extern void qml_register_types_Velmora();

namespace {

constexpr int kWrongUse = 2;

void print(std::FILE* stream, const QString& text) {
  std::fputs(text.toLocal8Bit().constData(), stream);
}

/// The exit code, if the line asks for something that takes no window and so no display either.
std::optional<int> answerWithoutWindow(int argc, char* argv[]) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments += QString::fromLocal8Bit(argv[i]);
  const CommandLine line = readCommandLine(arguments, QDir::currentPath());
  if (line.help) {
    const QCoreApplication app(argc, argv);
    print(stdout, commandLineHelp());
    return 0;
  }
  if (line.version) {
    print(stdout, "dunmarrow " DUNMARROW_VERSION "\n");
    return 0;
  }
  return std::nullopt;
}

/// Log lines from before a log file is open.
void writeStartLine(const char* message) {
  writeCrashLine(logLine(QDateTime::currentDateTime(), QtInfoMsg, message).toStdString());
}

void logStart(const LogPaths& paths) {
  qInfo().noquote() << "Starting Dunmarrow";
  qInfo().noquote() << "appDir=" + QCoreApplication::applicationDirPath();
  qInfo().noquote() << "cwd=" + QDir::currentPath();
  qInfo().noquote() << "log_appDir=" + paths.appDirLogPath;
  qInfo().noquote() << "log_temp=" + paths.tempLogPath;
  qInfo().noquote() << "QuickControlsStyle=" + QQuickStyle::name();
}

}  // namespace

int main(int argc, char* argv[]) {
  if (const std::optional<int> exitCode = answerWithoutWindow(argc, argv)) return *exitCode;

  QQuickStyle::setStyle("Basic");
  QGuiApplication app(argc, argv);
  const CommandLine commandLine =
      readCommandLine(QCoreApplication::arguments(), QDir::currentPath());
  if (!commandLine.error.isEmpty()) {
    print(stderr, "dunmarrow: " + commandLine.error + "\n\n" + commandLineHelp());
    return kWrongUse;
  }
  QGuiApplication::setWindowIcon(QIcon(":/Velmora/qml/assets/Dunmarrow_logo.png"));
  QCoreApplication::setOrganizationName("Dunmarrow");
  QCoreApplication::setApplicationName("Dunmarrow");
  QCoreApplication::setApplicationVersion(DUNMARROW_VERSION);
  QGuiApplication::setDesktopFileName("dunmarrow");

  const LogPaths paths =
      logPaths(QCoreApplication::applicationDirPath(),
               QStandardPaths::writableLocation(QStandardPaths::TempLocation), QDir::currentPath());
  LogFiles logFiles(paths);
  setCrashLinePaths(paths.appDirLogPath, paths.tempLogPath);
  installCrashHooks();
  writeStartLine("Crash handlers installed (v2)");
  writeStartLine("--- Velmora Desktop starting (pre-QFile) ---");
  if (logFiles.open()) logStart(paths);

  QGuiApplication::setQuitOnLastWindowClosed(true);
  volatile auto registration = &qml_register_types_Velmora;
  Q_UNUSED(registration);
  QQmlApplicationEngine engine;
  engine.addImportPath("qrc:/");
  LanguageManager languageManager(&engine);
  AppController appController;
  UpdateManager updates;
  setPageServices(engine, appController, languageManager, updates);

  // Each warning is logged once, here, and not by the engine as well.
  engine.setOutputWarningsToStandardError(false);
  QObject::connect(&engine, &QQmlEngine::warnings, &app, [](const QList<QQmlError>& warnings) {
    for (const QQmlError& warning : warnings) {
      qWarning().noquote() << warning.toString();
    }
  });
  QObject::connect(
      &engine, &QQmlApplicationEngine::objectCreationFailed, &app,
      [] {
        qCritical() << "QML object creation failed";
        QCoreApplication::exit(-1);
      },
      Qt::QueuedConnection);

  const QUrl mainDocument("qrc:/Velmora/Main.qml");
  engine.load(mainDocument);
  if (engine.rootObjects().isEmpty()) {
    qCritical().noquote() << "Failed to load QML:" << mainDocument.toString();
    return -1;
  }
  qInfo().noquote().nospace() << "QML loaded. rootObjects=" << engine.rootObjects().size();
  // As if chosen by "Open File": the Home page shows the project, or why there is none.
  if (!commandLine.project.isEmpty()) appController.loadProjectInBackground(commandLine.project);
  const int exitCode = QGuiApplication::exec();
  // The windows go first: they look at the controller, which goes before the engine.
  qDeleteAll(engine.rootObjects());
  return exitCode;
}
