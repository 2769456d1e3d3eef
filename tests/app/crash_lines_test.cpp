#include "system/crash_lines.h"

#include <csignal>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "app_test_support.h"

namespace {

/// Number of the signal by which the helper died; 0 if it did not die by one.
int runHelper(const QString& appDirLog, const QString& tempLog, const QString& way) {
  QProcess helper;
  helper.start(CRASH_HELPER_PROGRAM, {appDirLog, tempLog, way});
  if (!helper.waitForFinished(60'000)) return 0;
  return helper.exitStatus() == QProcess::CrashExit ? helper.exitCode() : 0;
}

}  // namespace

TEST(WriteDirect, AppendsWholeLines) {
  const QTemporaryDir dir;
  const QString path = dir.filePath("lines.log");
  writeDirect("first", QFile::encodeName(path));
  writeDirect("zweite ♠", QFile::encodeName(path));
  writeDirect("", QFile::encodeName(path));
  EXPECT_EQ(bytesOf(path), "first\r\nzweite ♠\r\n\r\n");
  writeDirect("nowhere", "");
  writeDirect("nowhere", QFile::encodeName(dir.path()));
  writeDirect(std::string(kMaxCrashLineBytes + 5, 'x'), QFile::encodeName(dir.filePath("long")));
  EXPECT_EQ(bytesOf(dir.filePath("long")), QByteArray(kMaxCrashLineBytes, 'x') + "\r\n");
}

TEST(CrashLines, EveryWayToDieLeavesItsLinesInBothFiles) {
  const struct {
    const char* way;
    int signal;
    const char* lines;  ///< A regular expression.
  } cases[] = {
      {"address", SIGSEGV,
       "FATAL: Vectored exception code=0xb addr=10\r\nFATAL: C signal received sig=11\r\n"},
      {"thread", SIGSEGV,
       "FATAL: Vectored exception code=0xb addr=10\r\nFATAL: C signal received sig=11\r\n"},
      {"overflow", SIGSEGV,
       "FATAL: Vectored exception code=0xb addr=[1-9a-f][0-9a-f]+\r\n"
       "FATAL: C signal received sig=11\r\n"},
      {"division", SIGFPE,
       "FATAL: Vectored exception code=0x8 addr=[1-9a-f][0-9a-f]+\r\n"
       "FATAL: C signal received sig=8\r\n"},
      {"sent SIGSEGV", SIGSEGV,
       "FATAL: Vectored exception code=0xb addr=0\r\nFATAL: C signal received sig=11\r\n"},
      {"sent SIGBUS", SIGBUS,
       "FATAL: Vectored exception code=0x7 addr=0\r\nFATAL: C signal received sig=7\r\n"},
      {"sent SIGILL", SIGILL,
       "FATAL: Vectored exception code=0x4 addr=0\r\nFATAL: C signal received sig=4\r\n"},
      {"sent SIGABRT", SIGABRT, "FATAL: C signal received sig=6\r\n"},
      {"abort", SIGABRT, "FATAL: C signal received sig=6\r\n"},
      {"exception", SIGABRT,
       "FATAL: std::terminate\\(\\) called\r\nFATAL: C signal received sig=6\r\n"},
      {"memory", SIGABRT,
       "FATAL: std::new_handler invoked \\(out of memory\\)\r\n"
       "FATAL: C signal received sig=6\r\n"},
      {"fatal message", SIGABRT,
       "[-0-9]{10}T[:0-9]{8}\\.\\d{3} \\[FATAL\\] the end\nFATAL: C signal received sig=6\r\n"},
  };
  for (const auto& c : cases) {
    const QTemporaryDir dir;
    const QString appDirLog = dir.filePath("app.log");
    const QString tempLog = dir.filePath("temp.log");
    EXPECT_EQ(runHelper(appDirLog, tempLog, c.way), c.signal) << c.way;
    const QRegularExpression lines(QRegularExpression::anchoredPattern(c.lines));
    EXPECT_TRUE(lines.match(bytesOf(appDirLog)).hasMatch())
        << c.way << ": " << bytesOf(appDirLog).toStdString();
    EXPECT_EQ(bytesOf(tempLog), bytesOf(appDirLog)) << c.way;
  }
}

TEST(CrashLines, ASolveSurvivesExhaustedMemory) {
  const QTemporaryDir dir;
  QProcess helper;
  helper.start(CRASH_HELPER_PROGRAM, {dir.filePath("a"), dir.filePath("b"), "memory in a solve"});
  ASSERT_TRUE(helper.waitForFinished(60'000));
  EXPECT_EQ(helper.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(helper.exitCode(), 42);
  EXPECT_TRUE(bytesOf(dir.filePath("a")).isEmpty());
}
