// What the Setup page says about a spot that can't be solved yet.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// The check of a start, kept up to date for the pages: at which fields what is wrong, and the one
/// sentence that a start would be refused with. The controller asks the same functions.
class SpotFaults : public QObject {
  Q_OBJECT
  QML_ELEMENT
  /// The spot as a solve configuration map.
  Q_PROPERTY(QVariantMap config MEMBER config_ WRITE setConfig NOTIFY configChanged)
  /// Sentences by field about texts that stand in a field and are no value of its kind, so that the
  /// spot still has the value from before.
  Q_PROPERTY(QVariantMap inputFaults MEMBER inputFaults_ WRITE setInputFaults NOTIFY configChanged)
  /// By field, with the keys of a solve configuration map, what is wrong with what stands there. A
  /// field that is only empty is not among them.
  Q_PROPERTY(QVariantMap sentences READ sentences NOTIFY changed)
  /// Why a solve would be refused, in the user's language; empty for a spot that is ready.
  Q_PROPERTY(QString refusal READ refusal NOTIFY changed)
  /// The field that the refusal is about.
  Q_PROPERTY(QString field READ field NOTIFY changed)
  /// The names of all fields that still have to be filled in, in the user's language.
  Q_PROPERTY(QStringList missing READ missing NOTIFY changed)
  Q_PROPERTY(bool ready READ ready NOTIFY changed)

 public:
  explicit SpotFaults(QObject* parent = nullptr);

  void setConfig(const QVariantMap& config);
  void setInputFaults(const QVariantMap& faults);
  QVariantMap sentences() const { return sentences_; }
  QString refusal() const { return refusal_; }
  QString field() const { return field_; }
  QStringList missing() const { return missing_; }
  bool ready() const { return refusal_.isEmpty(); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void configChanged();
  void changed();

 private:
  void check();

  QVariantMap config_;
  QVariantMap inputFaults_;
  QVariantMap sentences_;
  QString refusal_;
  QString field_;
  QStringList missing_;
};
