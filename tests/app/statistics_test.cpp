// Solves and trainer hands, counted by day.
#include <limits>

#include <QDate>
#include <QSettings>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include "app_controller.h"
#include "app_test_support.h"
#include "services/solve_activity.h"
#include "services/trainer_stats.h"

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

class Statistics : public testing::Test {
 protected:
  void SetUp() override {
    QSettings().remove("solveActivity");
    QSettings().remove("playVsSolution");
  }
};

QVariantMap cellOf(const QVariantList& grid, qsizetype index) {
  return grid.at(index).toMap();
}

}  // namespace

TEST_F(Statistics, TheGridEndsWithTheWeekOfToday) {
  const struct {
    QDate today;
    const char *first, *last;
    int future;
  } cases[] = {
      {QDate(2026, 3, 1), "2025-03-03", "2026-03-01", 0},    // Sunday
      {QDate(2026, 3, 2), "2025-03-10", "2026-03-08", 6},    // Monday
      {QDate(2025, 12, 31), "2025-01-06", "2026-01-04", 4},  // Wednesday, over the turn of the year
      {QDate(2024, 2, 29), "2023-03-06", "2024-03-03", 3},   // Leap day
  };
  for (const auto& c : cases) {
    const QVariantList grid = SolveActivity::gridOfYear(c.today);
    ASSERT_EQ(grid.size(), 364) << c.first;
    EXPECT_EQ(cellOf(grid, 0).value("date"), c.first);
    EXPECT_EQ(cellOf(grid, 363).value("date"), c.last);
    EXPECT_EQ(QDate::fromString(c.first, Qt::ISODate).dayOfWeek(), Qt::Monday);
    int future = 0;
    for (const QVariant& entry : grid) {
      const QVariantMap cell = entry.toMap();
      EXPECT_EQ(cell.value("isPadding"), false);
      EXPECT_EQ(cell.value("solves"), 0);
      EXPECT_EQ(cell.value("avgIterations"), 0.0);
      future += cell.value("isFuture").toBool() ? 1 : 0;
    }
    EXPECT_EQ(future, c.future) << c.first;
  }
}

TEST_F(Statistics, SolvesAreCountedByTheirDay) {
  const QDate today(2026, 3, 4);
  SolveActivity::record(today, 200, 0.5);
  SolveActivity::record(today, 0, 0.25);
  SolveActivity::record(today.addDays(-1), 5'000'000'000, 1);
  EXPECT_EQ(SolveActivity::solvesOn(today), 2);
  EXPECT_EQ(SolveActivity::solvesOn(today.addDays(1)), 0);
  const QVariantList grid = SolveActivity::gridOfYear(today);
  const QVariantMap cell = cellOf(grid, 359);
  EXPECT_EQ(cell.value("date"), "2026-03-04");
  EXPECT_EQ(cell.value("solves"), 2);
  EXPECT_EQ(cell.value("avgIterations"), 100.0);
  EXPECT_EQ(cell.value("avgExploitability"), 0.375);
  EXPECT_EQ(cell.value("isFuture"), false);
  EXPECT_EQ(cellOf(grid, 358).value("avgIterations"), 5e9);
  EXPECT_EQ(QSettings().value("solveActivity/2026-03-04/iterationsSum").toInt(), 200);
}

TEST_F(Statistics, AHandIsAMistakeByItsFlagOrItsLoss) {
  const struct {
    bool isMistake;
    double evLoss;
    int mistakes;
    double loss;
  } cases[] = {{false, 0.5, 1, 0.5},
               {true, 0, 1, 0},
               {false, kNaN, 0, 0},
               {false, -2, 0, 0},
               {true, -2, 1, 0},
               {true, 1.5, 1, 1.5},
               {false, std::numeric_limits<double>::infinity(), 0, 0}};
  const QDate today(2026, 3, 4);
  for (const auto& c : cases) {
    TrainerStats::clear();
    TrainerStats::record(today, c.isMistake, c.evLoss);
    const QVariantMap figures = TrainerStats::figures(today);
    for (const QString scope : {"today", "total"}) {
      EXPECT_EQ(figures.value(scope + "Hands"), 1);
      EXPECT_EQ(figures.value(scope + "Mistakes"), c.mistakes) << c.isMistake << c.evLoss;
      EXPECT_EQ(figures.value(scope + "AvgEvLoss"), c.loss) << c.isMistake << c.evLoss;
      EXPECT_EQ(figures.value(scope + "AccuracyPct"), 100.0 * (1 - c.mistakes));
    }
  }
}

TEST_F(Statistics, ANewDayStartsItsOwnFiguresAndClearingTakesAll) {
  const QDate yesterday(2025, 12, 31), today(2026, 1, 1);
  TrainerStats::record(yesterday, true, 3);
  for (int hand = 0; hand < 3; ++hand) TrainerStats::record(today, false, kNaN);
  EXPECT_EQ(TrainerStats::figures(today), (QVariantMap{{"totalHands", 4},
                                                       {"totalMistakes", 1},
                                                       {"totalAccuracyPct", 75.0},
                                                       {"totalAvgEvLoss", 0.75},
                                                       {"todayHands", 3},
                                                       {"todayMistakes", 0},
                                                       {"todayAccuracyPct", 100.0},
                                                       {"todayAvgEvLoss", 0.0}}));
  TrainerStats::clear();
  for (const QVariant& figure : TrainerStats::figures(yesterday)) EXPECT_EQ(figure.toDouble(), 0);
}

TEST_F(Statistics, BrokenFiguresCountNothing) {
  const QDate today(2026, 3, 4);
  const struct {
    QVariant stored;
    int count;   ///< What is read of it as a count,
    double sum;  ///< as a sum.
  } cases[] = {{"many", 0, 0},
               {-3, 0, 0},
               {"nan", 0, 0},
               {"-inf", 0, 0},
               {QVariantList{1, 2}, 0, 0},
               {QByteArray("\xFF"), 0, 0},
               {2147483647, 2147483647, 2147483647.0},
               {9'223'372'036'854'775'807LL, 2147483647, 9223372036854775807.0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.stored.toString().toStdString());
    QSettings settings;
    for (const char* name : {"hands", "mistakes", "evLossSum"}) {
      settings.setValue(QString("playVsSolution/total/") + name, c.stored);
    }
    for (const char* name : {"solves", "iterationsSum", "exploitabilitySum"}) {
      settings.setValue(QString("solveActivity/2026-03-04/") + name, c.stored);
    }
    const auto total = [&] { return TrainerStats::figures(today).value("totalHands").toInt(); };
    EXPECT_EQ(total(), c.count);
    EXPECT_EQ(SolveActivity::solvesOn(today), c.count);
    const double mean = c.count ? c.sum / c.count : 0;
    EXPECT_DOUBLE_EQ(TrainerStats::figures(today).value("totalAvgEvLoss").toDouble(), mean);
    const QVariantMap cell = cellOf(SolveActivity::gridOfYear(today), 359);
    EXPECT_DOUBLE_EQ(cell.value("avgExploitability").toDouble(), mean);

    // What follows is counted on top, as far as numbers go.
    TrainerStats::record(today, true, 2);
    SolveActivity::record(today, 100, 0.5);
    EXPECT_EQ(total(), c.count == 0 ? 1 : 2147483647);
    EXPECT_EQ(SolveActivity::solvesOn(today), c.count == 0 ? 1 : 2147483647);
    TrainerStats::clear();
  }
}

TEST_F(Statistics, TheControllerCountsSolvesThatSucceedAndTellsOfHands) {
  AppController controller;
  const QSignalSpy solves(&controller, &AppController::solveStatsChanged);
  const QSignalSpy hands(&controller, &AppController::playVsSolutionStatsChanged);
  controller.startSolveWithConfig(riverSpot());
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  EXPECT_EQ(controller.solvesToday(), 1);
  EXPECT_EQ(solves.count(), 1);
  controller.startSolveWithConfig(endlessSpot());
  controller.cancelSolve();
  ASSERT_TRUE(waitUntil([&] { return !controller.running(); }));
  EXPECT_EQ(controller.solvesToday(), 1);

  controller.recordPlayVsSolutionHand(true, 0.5);
  EXPECT_EQ(controller.playVsSolutionStats().value("todayMistakes"), 1);
  controller.clearPlayVsSolutionStats();
  EXPECT_EQ(controller.playVsSolutionStats().value("totalHands"), 0);
  EXPECT_EQ(hands.count(), 2);
  EXPECT_EQ(controller.solveActivityGridLastYear().size(), 364);
}
