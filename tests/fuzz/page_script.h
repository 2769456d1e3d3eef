// Runs a page's script: the same .js files that the window loads.
#pragma once

#include <memory>

#include <QString>

class QObject;
class QQmlEngine;

namespace fuzz {

/// A component whose function `check(text: string): string` does something with a text and answers
/// with a text, the beginning of which is "fault: " where a check failed.
class PageScript {
 public:
  /// `file` is a name in this folder.
  explicit PageScript(const char* file);
  ~PageScript();

  /// Ends the program if the function throws or answers with a fault. The fuzzer counts different
  /// answers as different paths, as it can't see those within a script.
  QString run(const QString& text);

 private:
  std::unique_ptr<QQmlEngine> engine_;
  std::unique_ptr<QObject> script_;
};

}  // namespace fuzz
