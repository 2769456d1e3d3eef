#include "app_test_support.h"

#include <QTest>

QVariantMap riverSpot() {
  QVariantMap map{
      {"board", "KsQd7h2c3s"},      {"starting_pot", 100},        {"effective_stack", 200},
      {"max_iterations", 60},       {"target_exploitability", 0}, {"thread_count", 1},
      {"starting_street", "river"}, {"oop_range", "AA"},          {"ip_range", "KK,JJ,KJs"}};
  for (const char* seat : {"oop", "ip"}) {
    for (const char* street : {"flop", "turn", "river"}) {
      map[QStringLiteral("%1_%2_bet_sizes").arg(seat, street)] = "50";
      map[QStringLiteral("%1_%2_raise_sizes").arg(seat, street)] = "60";
    }
  }
  return map;
}

QVariantMap endlessSpot() {
  QVariantMap map = riverSpot();
  map["max_iterations"] = 4'000'000'000U;
  map["target_exploitability"] = -1;
  return map;
}

bool waitUntil(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 60'000);
}
