#include "json_stream.h"

#include <optional>

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

/// Gives one byte at a time.
class Drip : public QBuffer {
 protected:
  qint64 readData(char* data, qint64 most) override {
    return QBuffer::readData(data, std::min<qint64>(most, 1));
  }
};

/// The members of the outermost object, each taken whole; nothing if the text is refused.
std::optional<QJsonObject> readBy(QBuffer& device, const QByteArray& text) {
  device.setData(text);
  device.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
  try {
    QJsonObject object;
    JsonReader reader(device);
    reader.members(
        [&](const std::string& name) { object[QString::fromStdString(name)] = reader.value(); });
    reader.finish();
    return object;
  } catch (const JsonFault&) {
    return std::nullopt;
  }
}

/// Whether the text is taken when nobody asks for its values.
bool skips(const QByteArray& text) {
  QBuffer device;
  device.setData(text);
  device.open(QIODevice::ReadOnly);
  try {
    JsonReader reader(device);
    reader.members([](const std::string&) {});
    reader.finish();
    return true;
  } catch (const JsonFault&) {
    return false;
  }
}

const QByteArray kText =
    "\xEF\xBB\xBF { \"a\": [1, -2.5e3, 0.10000000149011612, 9007199254740993, []],"
    "\"\\u00fc\\n\" : {\"x\":{\"y\" :null}} ,\t\"t\":true,\"f\":false,\"n\":null,\n"
    "\"s\":\"K\xC3\xB6nig \\\"\\\\ \\ud83c\\udca1 \xE2\x99\xA0\", \"e\":\"\",\"d\":-0.5E-2 } ";

}  // namespace

TEST(JsonReader, ReadsWhatTheParserOfQtReads) {
  QBuffer whole;
  Drip drip;
  const QJsonObject expected = QJsonDocument::fromJson(kText).object();
  ASSERT_EQ(expected.size(), 8);
  EXPECT_EQ(readBy(whole, kText), expected);
  EXPECT_EQ(readBy(drip, kText), expected);
  EXPECT_TRUE(skips(kText));
}

TEST(JsonReader, TakesNoDamagedTextForAnother) {
  // Each byte in turn left out, replaced, or the last one.
  for (qsizetype i = 0; i < kText.size(); ++i) {
    for (const QByteArray& text :
         {QByteArray(kText).remove(i, 1), kText.left(i), QByteArray(kText).replace(i, 1, "]"),
          QByteArray(kText).replace(i, 1, "\""), QByteArray(kText).replace(i, 1, "\xFF")}) {
      QBuffer device;
      QJsonParseError error;
      const QJsonObject expected = QJsonDocument::fromJson(text, &error).object();
      const auto object = readBy(device, text);
      if (object) {
        EXPECT_EQ(error.error, QJsonParseError::NoError) << text.toStdString();
        EXPECT_EQ(*object, expected) << text.toStdString();
      }
    }
  }
}

TEST(JsonReader, RefusesWhatIsNoJson) {
  const QByteArray deep(JsonReader::kMaxDepth, '[');
  for (const QByteArray& text :
       {QByteArray(), QByteArray(" "), QByteArray("7"), QByteArray("\"a\""), QByteArray("{} x"),
        QByteArray("{}{}"), QByteArray("{\"a\":1,}"), QByteArray("{\"a\" 1}"),
        QByteArray("{\"a\":}"), QByteArray("{a:1}"), QByteArray("{\"a\":[1,]}"),
        QByteArray("{\"a\":[1}]"), QByteArray("{\"a\":01}"), QByteArray("{\"a\":-}"),
        QByteArray("{\"a\":1.}"), QByteArray("{\"a\":nul}"), QByteArray("{\"a\":\"\\"),
        QByteArray("{}\0", 3), "{\"a\":" + deep + QByteArray(deep.size(), ']') + '}'}) {
    QBuffer device;
    EXPECT_EQ(readBy(device, text), std::nullopt) << text.left(20).toStdString();
    EXPECT_FALSE(skips(text)) << text.left(20).toStdString();
  }
  QBuffer device;
  EXPECT_EQ(readBy(device, "{\"a\":1e999}"), std::nullopt);
}

TEST(JsonWriter, WritesWhatTheWriterOfQtWrites) {
  QBuffer device;
  ASSERT_TRUE(device.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
  QJsonObject object = QJsonDocument::fromJson(kText).object();
  object["long"] = QString(600'000, 'x');
  object["nested"] = QJsonArray{QJsonArray{}, QJsonObject{}, QJsonArray{QJsonObject{{"k", 1e300}}}};
  JsonWriter writer(device);
  writer.value(object);
  EXPECT_TRUE(writer.finish());
  EXPECT_EQ(device.data(), QJsonDocument(object).toJson());
}
