#include "spot_faults.h"

#include <algorithm>

#include <QCoreApplication>
#include <QEvent>

#include "solve_request.h"

using velmora_app::SpotFault;

SpotFaults::SpotFaults(QObject* parent) : QObject(parent) {
  // The sentences name fields in the user's language.
  QCoreApplication::instance()->installEventFilter(this);
  check();
}

void SpotFaults::setConfig(const QVariantMap& config) {
  config_ = config;
  emit configChanged();
  check();
}

void SpotFaults::setInputFaults(const QVariantMap& faults) {
  inputFaults_ = faults;
  emit configChanged();
  check();
}

bool SpotFaults::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::LanguageChange) check();
  return QObject::eventFilter(watched, event);
}

void SpotFaults::check() {
  std::vector<SpotFault> faults = spotFaults(config_);
  for (auto it = inputFaults_.begin(); it != inputFaults_.end(); ++it) {
    const std::string field = it.key().toStdString();
    std::erase_if(faults, [&](const SpotFault& fault) { return fault.field == field; });
    faults.push_back({field, it.value().toString().toStdString(), false});
  }
  sentences_.clear();
  missing_.clear();
  for (const SpotFault& fault : faults) {
    const QString field = QString::fromStdString(fault.field);
    if (fault.missing) {
      missing_ += fieldTitle(field);
    } else {
      sentences_[field] = QString::fromStdString(fault.sentence);
    }
  }
  refusal_ = refusalOf(faults);
  field_ = faults.empty() ? QString() : QString::fromStdString(mostUrgent(faults).field);
  emit changed();
}
