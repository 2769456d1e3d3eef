#include "language_manager.h"

#include <memory>

#include <QCoreApplication>
#include <QDebug>
#include <QLocale>
#include <QQmlEngine>
#include <QSettings>
#include <QTranslator>

namespace {

constexpr char kSettingsKey[] = "ui/language";
constexpr char kSystem[] = "system";
constexpr char kEnglish[] = "en";

/// The one installed catalogue. It belongs to the process: texts are translated until its end.
std::unique_ptr<QTranslator>& installedTranslator() {
  static std::unique_ptr<QTranslator> translator;
  return translator;
}

QLocale localeOf(const QString& code) {
  return code == kSystem ? QLocale::system() : QLocale(code);
}

}  // namespace

QString normalizeLanguageCode(const QString& code) {
  const QString trimmed = code.trimmed();
  const QString lower = trimmed.toLower();
  return lower.isEmpty() || lower == "auto" || lower == kSystem ? QString(kSystem) : trimmed;
}

QStringList candidateNames(const QString& code, const QString& systemLocale) {
  const QString name = code == kSystem ? systemLocale : QLocale(code).name();
  const QString language = name.section('_', 0, 0);
  QStringList names;
  if (code != kSystem && code != name) names.append(code);
  names.append(name);
  if (language != name) names.append(language);
  return names;
}

LanguageManager::LanguageManager(QQmlEngine* engine, QObject* parent)
    : QObject(parent), engine_(engine) {
  applyLanguage(normalizeLanguageCode(QSettings().value(kSettingsKey, kSystem).toString()), false);
}

void LanguageManager::setLanguage(const QString& code) {
  const QString normalized = normalizeLanguageCode(code);
  if (normalized != currentLanguage_) applyLanguage(normalized, true);
}

void LanguageManager::applyLanguage(const QString& code, bool persist) {
  install(code);
  const QLocale locale = localeOf(code);
  QLocale::setDefault(locale);
  currentLanguage_ = code;
  if (persist) {
    QSettings settings;
    settings.setValue(kSettingsKey, code);
    settings.sync();
  }
  if (engine_) {
    engine_->setUiLanguage(locale.bcp47Name());
    engine_->retranslate();
  }
  emit currentLanguageChanged();
}

void LanguageManager::install(const QString& code) {
  std::unique_ptr<QTranslator>& installed = installedTranslator();
  if (installed) QCoreApplication::removeTranslator(installed.get());
  installed = std::make_unique<QTranslator>();
  bool loaded = false;
  if (code != kEnglish) {
    for (const QString& name : candidateNames(code, QLocale::system().name())) {
      loaded = installed->load("velmora_" + name, ":/Velmora/i18n");
      if (loaded) break;
    }
  }
  if (loaded) QCoreApplication::installTranslator(installed.get());
  qInfo().noquote() << "Language set to" << code << "(translator"
                    << (loaded ? "loaded" : "not loaded") << ")";
}
