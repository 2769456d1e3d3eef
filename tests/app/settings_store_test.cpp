// A settings store that can't be written: what is set stays in force, and nothing else is lost.
#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "app_controller.h"
#include "app_test_support.h"
#include "services/language_manager.h"
#include "services/update_manager.h"

namespace {

/// While it lives, a file stands where the folder of the settings should be.
class NoStore {
 public:
  NoStore() {
    QFile inTheWay(dir_.filePath("config"));
    inTheWay.open(QIODevice::WriteOnly);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, inTheWay.fileName());
  }
  ~NoStore() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       qEnvironmentVariable("XDG_CONFIG_HOME"));
  }
  NoStore(const NoStore&) = delete;
  NoStore& operator=(const NoStore&) = delete;

 private:
  QTemporaryDir dir_;
};

}  // namespace

TEST(SettingsStore, NeedNotBeWritable) {
  const NoStore noStore;
  QSettings settings;
  settings.setValue("ui/accentHex", "#ff0000");
  settings.sync();
  ASSERT_EQ(settings.status(), QSettings::AccessError);

  const LogCapture log;
  AppController controller;
  controller.startSolveWithConfig(riverSpot());
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  EXPECT_EQ(controller.statusText(), "Done");
  controller.recordPlayVsSolutionHand(true, 0.5);
  controller.playVsSolutionStats();
  controller.clearPlayVsSolutionStats();

  LanguageManager languages(nullptr);
  languages.setLanguage("de");
  EXPECT_EQ(languages.currentLanguage(), "de");
  languages.setLanguage("en");

  UpdateManager updates;
  updates.setManifestUrl("https://mine.example/latest.json");
  EXPECT_EQ(updates.manifestUrl(), "https://mine.example/latest.json");
  updates.clearState();
}
