#include "services/language_manager.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSettings>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include "app_test_support.h"

namespace {

constexpr char kEnglish[] = "Reset to Defaults";

QString shownText() {
  return QCoreApplication::translate("SettingsPage", kEnglish);
}

/// What a dialog of Qt writes on its button.
QString cancelText() {
  return QCoreApplication::translate("QPlatformTheme", "Cancel");
}

class LanguageManagerTest : public ::testing::Test {
 protected:
  void SetUp() override { QSettings().remove("ui/language"); }
  void TearDown() override {
    LanguageManager(nullptr).setLanguage("en");
    QSettings().remove("ui/language");
    QLocale::setDefault(QLocale::c());
  }

  const LogCapture log_;
};

}  // namespace

TEST_F(LanguageManagerTest, CodesAndTheNamesThatAreTried) {
  for (const char* code : {"", "  ", "auto", " AUTO ", "System"}) {
    EXPECT_EQ(normalizeLanguageCode(code), "system") << code;
  }
  EXPECT_EQ(normalizeLanguageCode(" pt_BR "), "pt_BR");
  EXPECT_EQ(candidateNames("pt_BR", "de_DE"), (QStringList{"pt_BR", "pt"}));
  EXPECT_EQ(candidateNames("de", "fr_FR"), (QStringList{"de", "de_DE", "de"}));
  EXPECT_EQ(candidateNames("system", "de_AT"), (QStringList{"de_AT", "de"}));
  EXPECT_EQ(candidateNames("system", "C"), (QStringList{"C"}));
}

TEST_F(LanguageManagerTest, EachCatalogueIsThere) {
  LanguageManager languages(nullptr);
  QStringList names;
  for (const char* code : {"de", "es", "fr", "it", "pl", "pt_BR", "ru"}) {
    languages.setLanguage(code);
    EXPECT_EQ(log_.messages().last(), QString("Language set to %1 (translator loaded )").arg(code));
    EXPECT_NE(shownText(), kEnglish) << code;
    names.append(shownText());
    EXPECT_EQ(QLocale().language(), QLocale(code).language());
  }
  EXPECT_EQ(names.removeDuplicates(), 0);
  languages.setLanguage("pt_BR");
  EXPECT_EQ(cancelText(), "Cancelar");
  languages.setLanguage("de");
  EXPECT_EQ(cancelText(), "Abbrechen");
  // Qt has a catalogue of this one, the program has none.
  languages.setLanguage("nl");
  EXPECT_EQ(cancelText(), "Cancel");
  languages.setLanguage("en");
  EXPECT_EQ(log_.messages().last(), "Language set to en (translator not loaded )");
  EXPECT_EQ(shownText(), kEnglish);
  EXPECT_EQ(cancelText(), "Cancel");
  EXPECT_EQ(QSettings().value("ui/language"), "en");
}

TEST_F(LanguageManagerTest, OnlyAChangeIsStoredAndTold) {
  LanguageManager languages(nullptr);
  EXPECT_EQ(languages.currentLanguage(), "system");
  const QSignalSpy changed(&languages, &LanguageManager::currentLanguageChanged);
  languages.setLanguage(" AUTO ");
  EXPECT_EQ(changed.count(), 0);
  EXPECT_FALSE(QSettings().contains("ui/language"));
  languages.setLanguage(" xx ");
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(languages.currentLanguage(), "xx");
  EXPECT_EQ(QSettings().value("ui/language"), "xx");
  EXPECT_EQ(shownText(), kEnglish);
}

TEST_F(LanguageManagerTest, TheStoredLanguageIsInForceFromTheStart) {
  QSettings().setValue("ui/language", "ru");
  EXPECT_EQ(LanguageManager(nullptr).currentLanguage(), "ru");
  EXPECT_NE(shownText(), kEnglish);
  // A first start follows the system, which speaks no language of ours here.
  QSettings().remove("ui/language");
  EXPECT_EQ(LanguageManager(nullptr).currentLanguage(), "system");
  EXPECT_EQ(log_.messages().last(), "Language set to system (translator not loaded )");
}
