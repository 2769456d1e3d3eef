#include "system/command_line.h"

#include <QCommandLineParser>

namespace {

/// The options of Qt's own, such as -platform, have one dash: so no letter of theirs counts.
void describe(QCommandLineParser& parser) {
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  parser.setApplicationDescription("Solves heads-up postflop hold'em spots in a window.");
  parser.addOptions({{{"h", "help"}, "Show this text."}, {{"v", "version"}, "Show the version."}});
  parser.addPositionalArgument("FILE", "A project (.velmoraproj) to open: a path or a file URL.",
                               "[FILE]");
}

}  // namespace

CommandLine readCommandLine(const QStringList& arguments, const QString& currentDir) {
  QCommandLineParser parser;
  describe(parser);
  CommandLine line;
  if (!parser.parse(arguments)) line.error = parser.errorText();
  line.help = parser.isSet("help");
  line.version = parser.isSet("version");
  const QStringList files = parser.positionalArguments();
  if (files.size() > 1) line.error = "Only one file can be opened at the start.";
  if (files.size() == 1) {
    line.project = QUrl::fromUserInput(files.first(), currentDir, QUrl::AssumeLocalFile);
  }
  return line;
}

QString commandLineHelp() {
  QCommandLineParser parser;
  describe(parser);
  return parser.helpText();
}
