// The program itself, as a user starts it, without a screen.
#include <csignal>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

#include "app_test_support.h"

namespace {

/// A copy of the program in a directory of its own, with a temporary directory of its own.
class Program : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QDir(dir_.path()).mkdir("app") && QDir(dir_.path()).mkdir("temp"));
    ASSERT_TRUE(QFile::copy(DUNMARROW_PROGRAM, dir_.filePath("app/dunmarrow")));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", dir_.filePath("temp"));
    environment.insert("XDG_CONFIG_HOME", dir_.filePath("config"));
    program_.setProcessEnvironment(environment);
    program_.setWorkingDirectory(dir_.path());
  }

  void startAndWaitForWindow() { startAndWaitFor({}, "QML loaded."); }
  void startAndWaitFor(const QStringList& arguments, const QByteArray& message) {
    program_.start(dir_.filePath("app/dunmarrow"), arguments);
    ASSERT_TRUE(program_.waitForStarted());
    ASSERT_TRUE(waitUntil([&] { return bytesOf(tempLog()).contains(message); }))
        << bytesOf(tempLog()).toStdString() << program_.readAllStandardError().toStdString();
  }
  void killBy(int signal) {
    ASSERT_GT(program_.processId(), 0) << "it has ended by itself";
    ASSERT_EQ(::kill(static_cast<pid_t>(program_.processId()), signal), 0);
    ASSERT_TRUE(program_.waitForFinished());
    EXPECT_EQ(program_.exitStatus(), QProcess::CrashExit);
    EXPECT_EQ(program_.exitCode(), signal);
  }

  QString appDirLog() const { return dir_.filePath("app/dunmarrow.log"); }
  QString tempLog() const { return dir_.filePath("temp/dunmarrow.log"); }

  QTemporaryDir dir_;
  QProcess program_;
};

}  // namespace

TEST_F(Program, WritesItsLifeIntoBothLogs) {
  startAndWaitForWindow();
  killBy(SIGSEGV);

  // One expression for each line; the start lines and the crash lines end in CR LF.
  const QString time = "[-0-9]{10}T[:0-9]{8}\\.\\d{3} ";
  const auto quoted = [](const QString& text) { return QRegularExpression::escape(text); };
  const QString expected =
      time + "\\[INFO\\] Crash handlers installed \\(v2\\)\r\n" +                 //
      time + "\\[INFO\\] --- Velmora Desktop starting \\(pre-QFile\\) ---\r\n" +  //
      time + "\\[INFO\\] Starting Dunmarrow\n" +                                  //
      time + "\\[INFO\\] appDir=" + quoted(dir_.filePath("app")) + "\n" +         //
      time + "\\[INFO\\] cwd=" + quoted(dir_.path()) + "\n" +                     //
      time + "\\[INFO\\] log_appDir=" + quoted(appDirLog()) + "\n" +              //
      time + "\\[INFO\\] log_temp=" + quoted(tempLog()) + "\n" +                  //
      time + "\\[INFO\\] QuickControlsStyle=Basic\n" +                            //
      time + "\\[INFO\\] Language set to system [^\n]*\n" +                       //
      time + "\\[INFO\\] \\[devtools\\] compiled_in=1 [^\n]*\n" +                 //
      time + "\\[INFO\\] \\[ranges\\] Loaded STANDARD presets [^\n]*\n" +         //
      time + "\\[INFO\\] \\[ranges\\] Loaded POPULATION presets [^\n]*\n" +       //
      time + "\\[INFO\\] QML loaded\\. rootObjects=1\n" +                         //
      "FATAL: Vectored exception code=0xb addr=0\r\nFATAL: C signal received sig=11\r\n";
  const QString log = QString::fromUtf8(bytesOf(appDirLog()));
  EXPECT_TRUE(
      QRegularExpression(QRegularExpression::anchoredPattern(expected)).match(log).hasMatch())
      << log.toStdString();
  EXPECT_EQ(QString::fromUtf8(bytesOf(tempLog())), log);
}

TEST_F(Program, RunsWhereItCannotWrite) {
  ASSERT_TRUE(QDir(dir_.path()).mkdir("app/dunmarrow.log"));  // No file can be opened by that name.
  startAndWaitForWindow();
  killBy(SIGABRT);
  const QByteArray log = bytesOf(tempLog());
  EXPECT_TRUE(log.contains("[INFO] Crash handlers installed (v2)\r\n"));
  EXPECT_TRUE(log.contains("[INFO] Starting Dunmarrow\n"));
  EXPECT_TRUE(log.endsWith("FATAL: C signal received sig=6\r\n"));
}

TEST_F(Program, OpensTheFileThatItIsGiven) {
  ASSERT_TRUE(QDir(dir_.path()).mkdir("my spots"));
  const QString path = dir_.filePath("my spots/50% flop.velmoraproj");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(R"({"format": "velmora_project", "version": 1, "project": {"boardText": "AsKd7h"}})");
  file.close();
  const QByteArray loaded = "[INFO] Loaded project: \"" + path.toUtf8() + "\" hasResults= false\n";
  const struct {
    QString argument;
    QByteArray message;
  } cases[] = {
      {"my spots/50% flop.velmoraproj", loaded},
      {path, loaded},
      {QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded), loaded},
      {"missing.velmoraproj", "[WARN] Load failed: Failed to open file\n"},
      {"app", "[WARN] Load failed: Failed to open file\n"},
      {"https://dunmarrow.example/a.velmoraproj",
       "[WARN] Load failed: Invalid/non-local file URL\n"},
  };
  for (const auto& [argument, message] : cases) {
    SCOPED_TRACE(argument.toStdString());
    QFile::remove(tempLog());
    startAndWaitFor({argument}, message);
    killBy(SIGKILL);
  }
}

TEST_F(Program, AnswersInTheTerminal) {
  const struct {
    QStringList arguments;
    int exitCode;
    QByteArray out;
    QByteArray err;
  } cases[] = {
      {{"--version"}, 0, "dunmarrow 1.0.1\n", ""},
      {{"-platform", "xcb", "-v"}, 0, "dunmarrow 1.0.1\n", ""},
      {{"--help"}, 0, "[FILE]", ""},
      {{"-platform", "offscreen", "a", "b"}, 2, "", "Only one file can be opened at the start."},
      {{"-platform", "offscreen", "--bench"}, 2, "", "Unknown option 'bench'."},
  };
  QProcessEnvironment environment = program_.processEnvironment();
  environment.insert("QT_QPA_PLATFORM", "xcb");  // For which there is no display.
  environment.remove("DISPLAY");
  program_.setProcessEnvironment(environment);
  for (const auto& [arguments, exitCode, out, err] : cases) {
    SCOPED_TRACE(arguments.join(' ').toStdString());
    program_.start(dir_.filePath("app/dunmarrow"), arguments);
    ASSERT_TRUE(program_.waitForFinished());
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), exitCode);
    const QByteArray written = program_.readAllStandardOutput();
    EXPECT_TRUE(out.isEmpty() ? written.isEmpty() : written.contains(out)) << written.toStdString();
    const QByteArray complaint = program_.readAllStandardError();
    EXPECT_TRUE(err.isEmpty() ? complaint.isEmpty() : complaint.contains(err))
        << complaint.toStdString();
  }
}

TEST_F(Program, DropsBrokenSettings) {
  ASSERT_TRUE(QDir(dir_.path()).mkpath("config/Dunmarrow"));
  QFile settings(dir_.filePath("config/Dunmarrow/Dunmarrow.conf"));
  ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
  settings.write(R"([ui]
darkMode=@Rect(1 2 3 4)
accentHex=[1, 2]
language=@ByteArray(\xff\xfe)

[ranges]
oopCustomRangesJson="{\"not\": \"a list\"}"
ipCustomRangesJson="[{\"name\": {\"toString\": 1}}, {\"name\": \"ok\", \"value\": 7}, 3, null]"
oopStandardOverridesJson=@Invalid()
ipStandardOverridesJson=7
oopExploitOverridesJson=a, b, c
ipExploitOverridesJson="{\"__proto__\": 5, \"a\": {\"toString\": 2}}"

[settings_profiles]
profilesJson="[7, null, {\"name\": {\"toString\": null}}, {\"name\": \"p\", \"data\": []}]"

[updates]
manifestUrl=@Invalid()
cachedManifestJson="{\"version\": []"
cachedAt=yesterday

[no end
)");
  settings.close();
  startAndWaitForWindow();
  killBy(SIGABRT);
  const QByteArray log = bytesOf(tempLog());
  EXPECT_FALSE(log.contains("[WARN]")) << log.toStdString();
}

TEST_F(Program, RunsWithoutASettingsStore) {
  QFile inTheWay(dir_.filePath("config"));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  startAndWaitForWindow();
  killBy(SIGABRT);
  const QByteArray log = bytesOf(tempLog());
  EXPECT_FALSE(log.contains("[WARN]")) << log.toStdString();
  EXPECT_EQ(QFileInfo(dir_.filePath("config")).size(), 0);
}
