// JSON texts of any length, read and written piece by piece.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <QByteArray>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

/// Writes one indented JSON text as `QJsonDocument` would, if the caller gives the keys of an
/// object in ascending order. The device should be unbuffered.
class JsonWriter {
 public:
  explicit JsonWriter(QIODevice& device);

  void beginObject() { begin('{'); }
  void endObject() { end('}'); }
  void beginArray() { begin('['); }
  void endArray() { end(']'); }
  /// The next value is the member of this name. The name needs no escapes.
  void key(const char* name);
  /// A number that isn't finite becomes null.
  void value(const QJsonValue& value);
  /// The same for a UTF-8 text.
  void text(std::string_view utf8);
  /// Ends the text. False if the device has refused a part of it.
  bool finish();
  /// True once the device has refused something; whatever follows is not written.
  bool failed() const { return failed_; }

 private:
  void begin(char bracket);
  void end(char bracket);
  void startValue();
  void indent();
  void escaped(const QString& text);
  void flush();

  QIODevice& device_;
  QByteArray buffer_;
  int level_ = 0;
  bool first_ = true;  ///< Nothing has been written into the innermost container.
  bool afterKey_ = false;
  bool failed_ = false;
};

/// Says that a text is no JSON.
struct JsonFault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Reads one JSON text in the caller's own steps and holds no more of it than the value that is
/// asked for whole. Every step throws `JsonFault` at the first fault of the text.
class JsonReader {
 public:
  /// Containers within containers, as many as `QJsonDocument` reads.
  static constexpr int kMaxDepth = 1024;
  /// Bytes of a value or a name that is taken whole, more or less. The largest that is written is
  /// the answer about one node, a few megabytes.
  static constexpr qsizetype kMaxTakenBytes = 32 << 20;

  /// At the outermost value, which must be an object or an array.
  explicit JsonReader(QIODevice& device);
  /// True if the next value is an object, an array.
  bool atObject() { return peekToken() == '{'; }
  bool atArray() { return peekToken() == '['; }

  /// Calls `read` with the name of each member, at its value; a value that it leaves is skipped. A
  /// value that is no object has no members.
  template <typename Read>
  void members(const Read& read) {
    if (!enter('{')) return;
    for (bool first = true; next('}', first); first = false) {
      const std::string name = memberName();
      pending_ = true;
      read(name);
      if (pending_) skip();
    }
    pending_ = false;
  }
  /// The same for the elements of an array.
  template <typename Read>
  void elements(const Read& read) {
    if (!enter('[')) return;
    for (bool first = true; next(']', first); first = false) {
      pending_ = true;
      read();
      if (pending_) skip();
    }
    pending_ = false;
  }
  /// The value whole.
  QJsonValue value();
  /// The same for what must be of one kind; a value of another kind is skipped, however long it is,
  /// and reads as empty.
  QJsonObject object();
  QJsonArray array();
  QJsonValue scalar();
  std::string text();
  /// Nothing but white space may follow the outermost value.
  void finish();
  /// Bytes that were taken from the device.
  qint64 bytesRead() const { return bytesRead_; }
  /// Where the next step begins, or where the text is at fault: bytes from the start.
  qint64 position() const { return bytesRead_ - (end_ - at_); }

 private:
  /// Steps into a container of this kind, or over a value of another kind.
  bool enter(char bracket);
  /// To the next entry of the innermost container, or out of it.
  bool next(char bracket, bool first);
  std::string memberName();
  void skip();
  void scan();
  void scanString();
  void scanScalar();
  void scanDigits();
  void expect(std::string_view text);
  /// The next byte, -1 at the end.
  int peek();
  /// The same after white space.
  int peekToken();
  bool refill();
  /// The bytes of the value, which is scanned. They are valid until the next step.
  QByteArrayView take();

  QIODevice& device_;
  std::vector<char> buffer_;
  const char* at_ = nullptr;
  const char* end_ = nullptr;
  const char* mark_ = nullptr;  ///< Start of what is being taken, in this filling of the buffer.
  QByteArray taken_;            ///< What was taken from earlier fillings.
  qint64 bytesRead_ = 0;
  int depth_ = 0;
  bool pending_ = true;  ///< At a value that nobody has taken yet.
};
