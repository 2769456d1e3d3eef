// The objects of the program that its pages know by name.
#pragma once

#include <QtQml/qqml.h>

#include "app_controller.h"
#include "services/language_manager.h"
#include "services/update_manager.h"

class QJSEngine;
class QQmlEngine;

/// Gives an engine what its pages reach as `Controller`, `Translator` and `UpdateService`. To be
/// called before the first page is loaded. The objects stay the caller's and outlive the pages.
void setPageServices(QQmlEngine& engine, AppController& controller, LanguageManager& translator,
                     UpdateManager& updateService);

/// The number of bytes, a type of properties below: the linter wants to know each of them.
struct BytesOfPages {
  Q_GADGET
  QML_FOREIGN(qulonglong)
  QML_ANONYMOUS
};

struct ControllerOfPages {
  Q_GADGET
  QML_FOREIGN(AppController)
  QML_NAMED_ELEMENT(Controller)
  QML_SINGLETON

 public:
  static AppController* create(QQmlEngine* engine, QJSEngine*);
};

struct TranslatorOfPages {
  Q_GADGET
  QML_FOREIGN(LanguageManager)
  QML_NAMED_ELEMENT(Translator)
  QML_SINGLETON

 public:
  static LanguageManager* create(QQmlEngine* engine, QJSEngine*);
};

struct UpdateServiceOfPages {
  Q_GADGET
  QML_FOREIGN(UpdateManager)
  QML_NAMED_ELEMENT(UpdateService)
  QML_SINGLETON

 public:
  static UpdateManager* create(QQmlEngine* engine, QJSEngine*);
};
