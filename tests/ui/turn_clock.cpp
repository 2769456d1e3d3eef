#include "turn_clock.h"

#include <ctime>

#include <QAbstractEventDispatcher>

namespace {

double threadMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

}  // namespace

TurnClock::TurnClock(QObject* parent) : QObject(parent), start_(threadMilliseconds()) {
  // One of them comes between any two turns, whether the loop waits for events or only takes those
  // that are there.
  const auto* dispatcher = QAbstractEventDispatcher::instance();
  connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &TurnClock::endTurn);
  connect(dispatcher, &QAbstractEventDispatcher::awake, this, &TurnClock::endTurn);
}

void TurnClock::restart() {
  turns_.clear();
  start_ = threadMilliseconds();
}

QList<double> TurnClock::turns() const {
  QList<double> all = turns_;
  all.append(threadMilliseconds() - start_);
  return all;
}

void TurnClock::endTurn() {
  const double now = threadMilliseconds();
  if (now - start_ >= 1) turns_.append(now - start_);
  start_ = now;
}
