// Measures how long the window's thread works without a look at what came in.
#pragma once

#include <QList>
#include <QObject>

/// Cuts the work of the thread that makes it into turns of its event loop: what comes in during a
/// turn waits for the end of it. Turns are measured in milliseconds of the thread's own processor
/// time, which a busy machine does not stretch.
class TurnClock : public QObject {
  Q_OBJECT

 public:
  explicit TurnClock(QObject* parent = nullptr);

  /// Forgets all turns. The turn that is under way counts from here.
  Q_INVOKABLE void restart();
  /// The turns since then, without those of less than a millisecond; the one under way is the last.
  Q_INVOKABLE QList<double> turns() const;

 private:
  void endTurn();

  QList<double> turns_;
  double start_ = 0;
};
