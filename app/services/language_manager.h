// The language of the whole program.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QQmlEngine;

/// Chooses the translation catalogue and switches a running window to another at once. A language
/// code is "system", "en" (the source language, which has no catalogue) or the name of a locale
/// such as "de" or "pt_BR". A code without a catalogue leaves the texts in English. The texts of Qt
/// itself follow where the system has its catalogues.
class LanguageManager : public QObject {
  Q_OBJECT
  Q_PROPERTY(QString currentLanguage READ currentLanguage NOTIFY currentLanguageChanged)

 public:
  /// Puts the stored language in force. Without an engine only the catalogue changes.
  explicit LanguageManager(QQmlEngine* engine, QObject* parent = nullptr);

  QString currentLanguage() const { return currentLanguage_; }
  /// Puts a language in force and stores it; nothing happens if it is in force already.
  Q_INVOKABLE void setLanguage(const QString& code);

 signals:
  void currentLanguageChanged();

 private:
  void applyLanguage(const QString& code, bool persist);
  void install(const QString& code);

  QQmlEngine* const engine_;
  QString currentLanguage_;
};

/// The code without blanks around it; "system" for an empty one, "auto" and "system" in any case.
QString normalizeLanguageCode(const QString& code);

/// The names under which a catalogue for a code is looked for, in this order. `systemLocale` is the
/// name of the system's locale, such as "de_DE".
QStringList candidateNames(const QString& code, const QString& systemLocale);
