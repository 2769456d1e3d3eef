#include "services/language_manager.h"

#include <memory>
#include <vector>

#include <QCoreApplication>
#include <QDebug>
#include <QLibraryInfo>
#include <QLocale>
#include <QQmlEngine>
#include <QSettings>
#include <QTranslator>

namespace {

constexpr char kSettingsKey[] = "ui/language";
constexpr char kSystem[] = "system";
constexpr char kEnglish[] = "en";

using Translators = std::vector<std::unique_ptr<QTranslator>>;

/// The installed catalogues: the program's own and those of Qt, for its dialogs and the texts of
/// network faults. They belong to the process: texts are translated until its end.
Translators& installedTranslators() {
  static Translators translators;
  return translators;
}

/// Installs the first catalogue of a folder that there is for `names`, in front of those before it.
bool installFirst(const QString& prefix, const QStringList& names, const QString& folder) {
  auto translator = std::make_unique<QTranslator>();
  for (const QString& name : names) {
    if (!translator->load(prefix + name, folder)) continue;
    QCoreApplication::installTranslator(translator.get());
    installedTranslators().push_back(std::move(translator));
    return true;
  }
  return false;
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
  for (const auto& translator : installedTranslators()) {
    QCoreApplication::removeTranslator(translator.get());
  }
  installedTranslators().clear();
  const QStringList names =
      code == kEnglish ? QStringList() : candidateNames(code, QLocale::system().name());
  const bool loaded = installFirst("velmora_", names, ":/Velmora/i18n");
  if (loaded) {
    // A system may lack these. In a language that the program does not speak, they would only mix
    // two languages.
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    for (const char* catalogue : {"qtbase_", "qtdeclarative_"})
      installFirst(catalogue, names, folder);
  }
  qInfo().noquote() << "Language set to" << code << "(translator"
                    << (loaded ? "loaded" : "not loaded") << ")";
}
