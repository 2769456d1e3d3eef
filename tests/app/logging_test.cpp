#include "system/logging.h"

#include <thread>
#include <vector>

#include <QDebug>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "app_test_support.h"

namespace {

QStringList linesOf(const QString& path) {
  return QString::fromUtf8(bytesOf(path)).split('\n', Qt::SkipEmptyParts);
}

}  // namespace

TEST(LogLine, HasTimeLevelAndMessage) {
  const QDateTime time({2026, 11, 18}, {5, 16, 7, 123});
  EXPECT_EQ(logLine(time, QtDebugMsg, "a ♠"), "2026-11-18T05:16:07.123 [DEBUG] a ♠");
  EXPECT_EQ(logLine(time, QtInfoMsg, ""), "2026-11-18T05:16:07.123 [INFO] ");
  EXPECT_EQ(logLine(time, QtCriticalMsg, "a"), "2026-11-18T05:16:07.123 [ERROR] a");
  EXPECT_EQ(logLine(time, QtFatalMsg, "a"), "2026-11-18T05:16:07.123 [FATAL] a");
}

TEST(LogPaths, TheCurrentDirectoryStandsInForAMissingTemporaryOne) {
  EXPECT_EQ(logPaths("/opt/d", "/tmp", "/home").appDirLogPath, "/opt/d/dunmarrow.log");
  EXPECT_EQ(logPaths("/opt/d", "/tmp", "/home").tempLogPath, "/tmp/dunmarrow.log");
  EXPECT_EQ(logPaths("/opt/d", "", "/home").tempLogPath, "/home/dunmarrow.log");
}

TEST(LogFiles, EveryMessageReachesEveryOpenFile) {
  const QTemporaryDir dir;
  const LogPaths paths{dir.filePath("a.log"), dir.filePath("b.log")};
  for (int run = 0; run < 2; ++run) {
    LogFiles files(paths);
    ASSERT_TRUE(files.open());
    qInfo().noquote() << "plain" << run;
    qWarning() << QString("quoted");
  }
  const QRegularExpression pattern("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3} (.*)$");
  QStringList messages = linesOf(paths.appDirLogPath);
  EXPECT_EQ(linesOf(paths.tempLogPath), messages);
  messages.replaceInStrings(pattern, "\\1");
  // The second run's lines follow the first one's.
  EXPECT_EQ(messages, (QStringList{"[INFO] plain 0", "[WARN] \"quoted\"", "[INFO] plain 1",
                                   "[WARN] \"quoted\""}));
}

TEST(LogFiles, OneFileIsEnoughAndNoneChangesNothing) {
  const QTemporaryDir dir;
  {
    LogFiles files({dir.path(), dir.filePath("b.log")});
    ASSERT_TRUE(files.open());
    qInfo() << "here";
  }
  EXPECT_EQ(linesOf(dir.filePath("b.log")).size(), 1);

  const LogCapture log;
  LogFiles files({dir.path(), dir.filePath("no/such/folder.log")});
  EXPECT_FALSE(files.open());
  qInfo() << "there";
  EXPECT_EQ(log.messages(), QStringList("there"));
}

TEST(LogFiles, LinesOfManyThreadsStayWhole) {
  const QTemporaryDir dir;
  constexpr int kThreads = 4, kLines = 200;
  const QString message(150, 'x');
  {
    LogFiles files({dir.filePath("a.log"), dir.filePath("b.log")});
    ASSERT_TRUE(files.open());
    std::vector<std::jthread> threads;
    for (int t = 0; t < kThreads; ++t) {
      threads.emplace_back([&] {
        for (int i = 0; i < kLines; ++i) qInfo().noquote() << message;
      });
    }
  }
  const QStringList lines = linesOf(dir.filePath("a.log"));
  EXPECT_EQ(lines.size(), kThreads * kLines);
  for (const QString& line : lines)
    EXPECT_TRUE(line.endsWith("] " + message)) << line.toStdString();
}
