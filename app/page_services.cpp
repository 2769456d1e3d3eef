#include "page_services.h"

#include <QQmlEngine>
#include <QVariant>

namespace {

// The engine holds on to its services under these names.
constexpr char kController[] = "velmora_controller";
constexpr char kTranslator[] = "velmora_translator";
constexpr char kUpdateService[] = "velmora_update_service";

void put(QQmlEngine& engine, const char* name, QObject& service) {
  QQmlEngine::setObjectOwnership(&service, QQmlEngine::CppOwnership);
  engine.setProperty(name, QVariant::fromValue(&service));
}

template <typename Service>
Service* serviceOf(const QQmlEngine* engine, const char* name) {
  return qobject_cast<Service*>(engine->property(name).value<QObject*>());
}

}  // namespace

void setPageServices(QQmlEngine& engine, AppController& controller, LanguageManager& translator,
                     UpdateManager& updateService) {
  put(engine, kController, controller);
  put(engine, kTranslator, translator);
  put(engine, kUpdateService, updateService);
}

AppController* ControllerOfPages::create(QQmlEngine* engine, QJSEngine* /*script*/) {
  return serviceOf<AppController>(engine, kController);
}

LanguageManager* TranslatorOfPages::create(QQmlEngine* engine, QJSEngine* /*script*/) {
  return serviceOf<LanguageManager>(engine, kTranslator);
}

UpdateManager* UpdateServiceOfPages::create(QQmlEngine* engine, QJSEngine* /*script*/) {
  return serviceOf<UpdateManager>(engine, kUpdateService);
}
