#include "text_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "file_test_support.h"

namespace {

QUrl urlOf(const QString& path) {
  return QUrl::fromLocalFile(path);
}

void writeBytes(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(bytes), bytes.size());
}

class TextFiles : public ::testing::Test {
 protected:
  QString path(const char* name) const { return dir_.filePath(name); }

  QTemporaryDir dir_;
};

}  // namespace

TEST_F(TextFiles, ATextComesBackAsItWasSaved) {
  const QString text = "AA:0.5, König ♠\nzweite Zeile";
  EXPECT_EQ(saveTextFile(urlOf(path("a.txt")), text), (QVariantMap{{"ok", true}, {"error", ""}}));
  EXPECT_EQ(readTextFile(urlOf(path("a.txt"))),
            (QVariantMap{{"ok", true}, {"error", ""}, {"text", text}}));
  EXPECT_EQ(saveTextFile(urlOf(path("a.txt")), "short").value("ok"), true);
  EXPECT_EQ(bytesOf(path("a.txt")), "short");
  writeBytes(path("crlf.txt"), "AA\r\nKK\r\n");
  EXPECT_EQ(readTextFile(urlOf(path("crlf.txt"))).value("text").toString(), "AA\nKK\n");
}

TEST_F(TextFiles, KindsOfAddressThatAreNoFile) {
  const struct {
    QUrl url;
    QString save, read;
  } cases[] = {{QUrl(), "Invalid/non-local file URL", "Invalid file URL."},
               {QUrl("http://example.org/a.txt"), "Invalid/non-local file URL",
                "Only local files are supported."},
               {QUrl("file:"), "Empty file path", "Empty file path."}};
  for (const auto& c : cases) {
    EXPECT_EQ(saveTextFile(c.url, "x"), (QVariantMap{{"ok", false}, {"error", c.save}}));
    EXPECT_EQ(readTextFile(c.url),
              (QVariantMap{{"ok", false}, {"error", c.read}, {"text", QString()}}));
  }
  EXPECT_EQ(readTextFile(urlOf(path("none.txt"))).value("error"), "File does not exist.");
}

TEST_F(TextFiles, WhatCannotBeOpenedSaysWhy) {
  for (const QVariantMap& answer :
       {saveTextFile(urlOf(dir_.path()), "x"), readTextFile(urlOf(dir_.path())),
        saveTextFile(urlOf(path("no/such/folder.txt")), "x")}) {
    EXPECT_EQ(answer.value("ok"), false);
    EXPECT_GT(answer.value("error").toString().size(), QString("Failed to open file: ").size());
    EXPECT_TRUE(answer.value("error").toString().startsWith("Failed to open file: "));
  }
}

TEST_F(TextFiles, TwoMebibytesAreTheLimit) {
  writeBytes(path("big.txt"), QByteArray(2097152, 'x'));
  EXPECT_EQ(readTextFile(urlOf(path("big.txt"))).value("text").toString().size(), 2097152);
  writeBytes(path("big.txt"), QByteArray(2097153, 'x'));
  EXPECT_EQ(
      readTextFile(urlOf(path("big.txt"))),
      (QVariantMap{
          {"ok", false}, {"error", "File is too large (2097153 bytes)."}, {"text", QString()}}));
}

TEST_F(TextFiles, AFailedSaveLeavesTheOldContent) {
  writeBytes(path("kept.txt"), "old");
  const QVariantMap answer = [this] {
    const FullDisk disk(4096);
    return saveTextFile(urlOf(path("kept.txt")), QString(1'000'000, 'n'));
  }();

  EXPECT_EQ(answer.value("ok"), false);
  EXPECT_TRUE(answer.value("error").toString().startsWith("Failed to save file: "));
  EXPECT_EQ(bytesOf(path("kept.txt")), "old");
  EXPECT_EQ(QDir(dir_.path()).entryList(QDir::Files), QStringList("kept.txt"));
}

TEST(ReadTextResource, TakesTheThreeFormsOfAPath) {
  for (const char* path :
       {":/greeting.txt", "qrc:/greeting.txt", "/greeting.txt", "  qrc:/greeting.txt "}) {
    EXPECT_EQ(readTextResource(path), QString("Grüße, ♠\n")) << path;
  }
}
