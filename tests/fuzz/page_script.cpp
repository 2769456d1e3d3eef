#include "page_script.h"

#include <array>

#include <QCoreApplication>
#include <QHash>
#include <QQmlComponent>
#include <QQmlEngine>

#include "fuzz_support.h"

namespace fuzz {
namespace {

/// What the fuzzer reads as further counters of its own.
__attribute__((section("__libfuzzer_extra_counters"))) std::array<std::uint8_t, 4096> counters;

// The engine tells of an exception by a message.
void on_message(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  std::fprintf(stderr, "%s\n", message.toUtf8().constData());
  check(type != QtWarningMsg && type != QtCriticalMsg, "a script throws nothing");
}

int argument_count = 1;
char program_name[] = "fuzzer";
std::array<char*, 2> arguments{program_name, nullptr};

}  // namespace

PageScript::PageScript(const char* file) {
  static const QCoreApplication application(argument_count, arguments.data());
  qInstallMessageHandler(on_message);
  engine_ = std::make_unique<QQmlEngine>();
  QQmlComponent component(engine_.get(), QString(FUZZ_FOLDER "/") + file);
  script_.reset(component.create());
  check(script_ != nullptr, "the script can be loaded");
}

PageScript::~PageScript() = default;

QString PageScript::run(const QString& text) {
  QString answer;
  check(QMetaObject::invokeMethod(script_.get(), "check", Q_RETURN_ARG(QString, answer),
                                  Q_ARG(QString, text)),
        "the script has a check");
  if (answer.startsWith("fault: ")) {
    std::fprintf(stderr, "%s\n", answer.toUtf8().constData());
    check(false, "the script's own check");
  }
  counters[qHash(answer, 0) % counters.size()] = 1;
  return answer;
}

}  // namespace fuzz
