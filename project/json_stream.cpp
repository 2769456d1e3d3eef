#include "json_stream.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

#include <QJsonDocument>
#include <QLocale>

namespace {

constexpr qsizetype kBufferBytes = 256 * 1024;

[[noreturn]] void fail(const char* why) {
  throw JsonFault(why);
}

bool needsNoEscape(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return c >= ' ' && c < '\x7F' && c != '"' && c != '\\'; });
}

bool isDigit(int byte) {
  return byte >= '0' && byte <= '9';
}

/// What the parser of Qt makes of a part of the text.
QJsonValue parsed(QByteArrayView json) {
  QJsonParseError error;
  QByteArray list;
  list.reserve(json.size() + 2);
  list.append('[').append(json).append(']');
  const QJsonDocument document = QJsonDocument::fromJson(list, &error);
  if (error.error != QJsonParseError::NoError) fail("Broken value");
  return document.array().at(0);
}

QJsonValue numberIn(QByteArrayView json) {
  const char* const end = json.data() + json.size();
  std::int64_t whole = 0;
  if (const auto [stop, fault] = std::from_chars(json.data(), end, whole);
      fault == std::errc() && stop == end) {
    return QJsonValue(static_cast<qint64>(whole));
  }
  double number = 0;
  if (std::from_chars(json.data(), end, number).ec != std::errc()) fail("Number out of range");
  return QJsonValue(number);
}

}  // namespace

JsonWriter::JsonWriter(QIODevice& device) : device_(device) {
  buffer_.reserve(2 * kBufferBytes);
}

void JsonWriter::begin(char bracket) {
  startValue();
  buffer_.append(bracket).append('\n');
  ++level_;
  first_ = true;
}

void JsonWriter::end(char bracket) {
  if (!first_) buffer_.append('\n');
  --level_;
  indent();
  buffer_.append(bracket);
  first_ = false;
}

void JsonWriter::key(const char* name) {
  startValue();
  buffer_.append('"').append(name).append("\": ");
  afterKey_ = true;
}

void JsonWriter::startValue() {
  if (buffer_.size() >= kBufferBytes) flush();
  if (!afterKey_) {
    if (!first_) buffer_.append(",\n");
    indent();
  }
  afterKey_ = false;
  first_ = false;
}

void JsonWriter::indent() {
  buffer_.append(4 * level_, ' ');
}

void JsonWriter::value(const QJsonValue& value) {
  switch (value.type()) {
    case QJsonValue::Object: {
      beginObject();
      const QJsonObject object = value.toObject();
      for (auto member = object.begin(); member != object.end(); ++member) {
        startValue();
        escaped(member.key());
        buffer_.append(": ");
        afterKey_ = true;
        this->value(member.value());
      }
      endObject();
      return;
    }
    case QJsonValue::Array: {
      beginArray();
      const QJsonArray array = value.toArray();
      for (const QJsonValue& element : array) this->value(element);
      endArray();
      return;
    }
    case QJsonValue::String:
      startValue();
      escaped(value.toString());
      return;
    case QJsonValue::Double: {
      startValue();
      const double number = value.toDouble();
      // Distinguishes the whole numbers beyond 2^53 as well.
      const qint64 whole = value.toInteger(std::numeric_limits<qint64>::min());
      if (whole != std::numeric_limits<qint64>::min()) {
        buffer_.append(QByteArray::number(whole));
      } else if (std::isfinite(number)) {
        buffer_.append(QByteArray::number(number, 'g', QLocale::FloatingPointShortest));
      } else {
        buffer_.append("null");
      }
      return;
    }
    case QJsonValue::Bool:
      startValue();
      buffer_.append(value.toBool() ? "true" : "false");
      return;
    default: startValue(); buffer_.append("null");
  }
}

void JsonWriter::text(std::string_view utf8) {
  if (!needsNoEscape(utf8)) {
    value(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
    return;
  }
  startValue();
  buffer_.append('"').append(utf8.data(), static_cast<qsizetype>(utf8.size())).append('"');
}

void JsonWriter::escaped(const QString& text) {
  const QByteArray utf8 = text.toUtf8();
  if (needsNoEscape({utf8.data(), static_cast<std::size_t>(utf8.size())})) {
    buffer_.append('"').append(utf8).append('"');
  } else {
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    buffer_.append(list.constData() + 1, list.size() - 2);
  }
}

bool JsonWriter::finish() {
  buffer_.append('\n');
  flush();
  return !failed_;
}

void JsonWriter::flush() {
  // A disk that fills up takes a part without a fault and refuses only the rest.
  for (qint64 written = 0, count = 0; written < buffer_.size() && !failed_; written += count) {
    count = device_.write(buffer_.constData() + written, buffer_.size() - written);
    if (count <= 0) failed_ = true;
  }
  buffer_.resize(0);
}

JsonReader::JsonReader(QIODevice& device)
    : device_(device), buffer_(static_cast<std::size_t>(kBufferBytes)) {
  if (peek() == 0xEF) expect("\xEF\xBB\xBF");
  if (const int start = peekToken(); start != '{' && start != '[') fail("No object and no list");
}

bool JsonReader::refill() {
  if (mark_) {
    if (taken_.size() > kMaxTakenBytes) fail("A value is too long");
    taken_.append(mark_, end_ - mark_);
  }
  const qint64 count = device_.read(buffer_.data(), static_cast<qint64>(buffer_.size()));
  at_ = buffer_.data();
  end_ = at_ + std::max<qint64>(count, 0);
  if (mark_) mark_ = at_;
  bytesRead_ += end_ - at_;
  return at_ != end_;
}

int JsonReader::peek() {
  if (at_ == end_ && !refill()) return -1;
  return static_cast<unsigned char>(*at_);
}

int JsonReader::peekToken() {
  // Most of an indented text.
  const auto isSpace = [](int byte) {
    return byte == ' ' || byte == '\n' || byte == '\r' || byte == '\t';
  };
  for (;;) {
    while (at_ != end_ && isSpace(*at_)) ++at_;
    if (at_ != end_ || !refill()) return peek();
  }
}

void JsonReader::expect(std::string_view text) {
  for (const char c : text) {
    if (peek() != static_cast<unsigned char>(c)) fail("Something else was expected");
    ++at_;
  }
}

bool JsonReader::enter(char bracket) {
  pending_ = false;
  if (peekToken() != bracket) {
    scan();
    return false;
  }
  ++at_;
  if (++depth_ > kMaxDepth) fail("Nested too deeply");
  return true;
}

bool JsonReader::next(char bracket, bool first) {
  const int byte = peekToken();
  if (byte == bracket) {
    ++at_;
    --depth_;
    return false;
  }
  if (first) return true;
  if (byte != ',') fail("No comma");
  ++at_;
  return true;
}

std::string JsonReader::memberName() {
  if (peekToken() != '"') fail("No name");
  std::string name = text();
  peekToken();
  expect(":");
  return name;
}

QJsonObject JsonReader::object() {
  if (peekToken() == '{') return value().toObject();
  skip();
  return {};
}

QJsonArray JsonReader::array() {
  if (peekToken() == '[') return value().toArray();
  skip();
  return {};
}

QJsonValue JsonReader::scalar() {
  if (const int start = peekToken(); start != '{' && start != '[') return value();
  skip();
  return {};
}

std::string JsonReader::text() {
  if (peekToken() != '"') {
    skip();
    return {};
  }
  pending_ = false;
  const QByteArrayView json = take();
  if (json.contains('\\')) return parsed(json).toString().toStdString();
  if (!json.isValidUtf8()) fail("A text is no UTF-8");
  return {json.data() + 1, static_cast<std::size_t>(json.size()) - 2};
}

void JsonReader::skip() {
  pending_ = false;
  scan();
}

void JsonReader::scan() {
  const int start = peekToken();
  if (start == '"') return scanString();
  if (start != '{' && start != '[') return scanScalar();
  const char close = start == '{' ? '}' : ']';
  enter(static_cast<char>(start));
  for (bool first = true; next(close, first); first = false) {
    if (start == '{') {
      if (peekToken() != '"') fail("No name");
      scanString();
      peekToken();
      expect(":");
    }
    scan();
  }
}

void JsonReader::scanString() {
  ++at_;
  for (;;) {
    while (at_ != end_ && *at_ != '"' && *at_ != '\\') ++at_;
    const int byte = peek();
    if (byte < 0) fail("A text has no end");
    if (byte != '"' && byte != '\\') continue;  // The buffer was filled again.
    ++at_;
    if (byte == '"') return;
    if (peek() < 0) fail("A text has no end");
    ++at_;
  }
}

void JsonReader::scanScalar() {
  switch (peek()) {
    case 't': return expect("true");
    case 'f': return expect("false");
    case 'n': return expect("null");
    default: break;
  }
  if (peek() != '-' && !isDigit(peek())) fail("No value");
  if (peek() == '-') ++at_;
  if (peek() == '0') {
    ++at_;
  } else {
    scanDigits();
  }
  if (peek() == '.') {
    ++at_;
    scanDigits();
  }
  if (peek() == 'e' || peek() == 'E') {
    ++at_;
    if (peek() == '+' || peek() == '-') ++at_;
    scanDigits();
  }
}

void JsonReader::scanDigits() {
  if (!isDigit(peek())) fail("No digit");
  while (isDigit(peek())) ++at_;
}

QByteArrayView JsonReader::take() {
  taken_.resize(0);
  mark_ = at_;
  scan();
  const QByteArrayView rest(mark_, at_ - mark_);
  mark_ = nullptr;
  if (taken_.isEmpty()) return rest;
  taken_.append(rest);
  return taken_;
}

QJsonValue JsonReader::value() {
  pending_ = false;
  const int start = peekToken();
  const QByteArrayView json = take();
  switch (start) {
    case 't': return true;
    case 'f': return false;
    case 'n': return QJsonValue::Null;
    case '{':
    case '[': return parsed(json);
    case '"':
      if (json.contains('\\')) return parsed(json);
      if (!json.isValidUtf8()) fail("A text is no UTF-8");
      return QString::fromUtf8(json.sliced(1, json.size() - 2));
    default: return numberIn(json);
  }
}

void JsonReader::finish() {
  if (peekToken() >= 0) fail("Something follows the end");
}
