#include "system/developer_mode.h"

#include <array>

#include <QByteArray>
#include <QDebug>

bool developerModeOfEnvironment() {
  static constexpr std::array kNames{"VELMORA_DEV_MODE", "DUNMARROW_DEV_MODE",
                                     "CPP_SOLVER_DEV_MODE"};
  bool enabled = false;
  for (const char* name : kNames) {
    const QByteArray value = qgetenv(name);
    if (value.isEmpty()) continue;
    const QByteArray word = value.trimmed().toLower();
    enabled = word == "1" || word == "true" || word == "yes" || word == "on";
    break;
  }

  QByteArray line = "[devtools] compiled_in=1";
  for (const char* name : kNames) {
    line += QByteArray(" ") + name + "=" + qgetenv(name);
  }
  line += enabled ? " developerMode=true" : " developerMode=false";
  qInfo().noquote() << QString::fromLocal8Bit(line);
  return enabled;
}
