// Runs the .qml tests of this folder with the program's own pages and a real controller.
#include <memory>

#include <QCoreApplication>
#include <QDebug>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QTemporaryDir>
#include <QUrl>
#include <QtQuickTest>

#include "page_services.h"
#include "read_back.h"
#include "turn_clock.h"

extern void qml_register_types_Velmora();

/// Readies each engine as the entry of the program does.
class Setup : public QObject {
  Q_OBJECT

 public:
  /// `folder` is where tests may write.
  explicit Setup(const QString& folder) : folder_(folder) {}

 public slots:
  void applicationAvailable() {
    QCoreApplication::setOrganizationName("DunmarrowTests");
    QCoreApplication::setApplicationName("DunmarrowUiTests");
  }

  void qmlEngineAvailable(QQmlEngine* engine) {
    engine->addImportPath("qrc:/");
    languageManager_ = std::make_unique<LanguageManager>(engine);
    updates_ = std::make_unique<UpdateManager>();
    controller_ = std::make_unique<AppController>();
    setPageServices(*engine, *controller_, *languageManager_, *updates_);
    turnClock_ = std::make_unique<TurnClock>();
    engine->rootContext()->setContextProperty("turnClock", turnClock_.get());
    readBack_ = std::make_unique<ReadBack>();
    engine->rootContext()->setContextProperty("readBack", readBack_.get());
    // How long the random drive of the window lasts, and where its randomness begins.
    engine->rootContext()->setContextProperty(
        "stressSeconds", qEnvironmentVariableIntValue("VELMORA_STRESS_SECONDS"));
    engine->rootContext()->setContextProperty("stressSeed",
                                              qEnvironmentVariableIntValue("VELMORA_STRESS_SEED"));
    engine->rootContext()->setContextProperty("testFolder", QUrl::fromLocalFile(folder_));
  }

  void cleanupTestCase() {
    readBack_.reset();
    turnClock_.reset();
    controller_.reset();
    updates_.reset();
    languageManager_.reset();
  }

 private:
  const QString folder_;
  std::unique_ptr<LanguageManager> languageManager_;
  std::unique_ptr<UpdateManager> updates_;
  std::unique_ptr<AppController> controller_;
  std::unique_ptr<TurnClock> turnClock_;
  std::unique_ptr<ReadBack> readBack_;
};

int main(int argc, char* argv[]) {
  // Settings and temporary files of the tests never meet the user's.
  QTemporaryDir home;
  if (!home.isValid()) {
    qCritical() << "No temporary folder:" << home.errorString();
    return 1;
  }
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  qputenv("XDG_CACHE_HOME", home.path().toUtf8());
  qputenv("XDG_DATA_HOME", home.path().toUtf8());
  qputenv("TMPDIR", home.path().toUtf8());
  qputenv("LC_ALL", "C.UTF-8");
  QQuickStyle::setStyle("Basic");
  volatile auto registration = &qml_register_types_Velmora;
  Q_UNUSED(registration);
  Setup setup(home.path());
  return quick_test_main_with_setup(argc, argv, "velmora_ui_tests", QUICK_TEST_SOURCE_DIR, &setup);
}

#include "main.moc"
