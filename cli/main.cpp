// The command line: which command, with which options.

#include <cstdio>
#include <exception>
#include <limits>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStringList>

#include "commands.h"

namespace {

constexpr std::uint64_t kMaxThreads = 1024;
constexpr std::uint64_t kMaxSeconds = 100'000'000;

constexpr const char* kOverview =
    "Usage: dunmarrow-cli <command> [options]\n"
    "\n"
    "Solves heads-up postflop hold'em spots without a window.\n"
    "\n"
    "Commands:\n"
    "  solve SPOT.json      solve a spot; the result is a JSON object on standard output\n"
    "  estimate SPOT.json   tell how much memory a spot will take\n"
    "  bench                measure the speed on a fixed set of spots\n"
    "\n"
    "Options:\n"
    "  -h, --help           show this text, or that of a command\n"
    "  -v, --version        show the version\n"
    "\n"
    "Exit status: 0 done, 1 failed, 2 wrong use, 3 stopped by the time limit,\n"
    "130 stopped by Ctrl+C or SIGTERM. A solve that is stopped gives what is there so far.\n";

void print(std::FILE* stream, const QString& text) {
  std::fputs(text.toLocal8Bit().constData(), stream);
}

/// The options of one command, and what was wrong with them.
class CommandOptions {
 public:
  CommandOptions(const QString& name, const QString& description) : name_(name) {
    parser_.setApplicationDescription(description);
    // Shown in the usage line only.
    parser_.addPositionalArgument("command", {}, name);
    help_ = parser_.addHelpOption();
  }

  QCommandLineParser& parser() { return parser_; }

  /// False if the program is to end now, with `status()`.
  bool read(const QStringList& arguments, int positionals) {
    if (!parser_.parse(arguments)) return refuse(parser_.errorText());
    if (parser_.isSet(help_)) {
      print(stdout, parser_.helpText());
      return end(kDone);
    }
    const qsizetype given = parser_.positionalArguments().size() - 1;
    if (given > positionals) {
      return refuse("Unexpected argument: " + parser_.positionalArguments().at(positionals + 1));
    }
    if (given < positionals) return refuse("The spot file is missing.");
    return true;
  }

  /// The option's whole number, nothing if it isn't set. False if it is no such number.
  template <typename Number>
  bool number(const QString& option, std::uint64_t least, std::uint64_t most,
              std::optional<Number>& number) {
    if (!parser_.isSet(option)) return true;
    bool ok = false;
    const qulonglong value = parser_.value(option).toULongLong(&ok);
    if (!ok || value < least || value > most) {
      return refuse(QString("--%1 must be a whole number from %2 to %3, not '%4'.")
                        .arg(option)
                        .arg(least)
                        .arg(most)
                        .arg(parser_.value(option)));
    }
    number = static_cast<Number>(value);
    return true;
  }

  QString argument() const { return parser_.positionalArguments().at(1); }
  ExitStatus status() const { return status_; }

 private:
  bool end(ExitStatus status) {
    status_ = status;
    return false;
  }
  bool refuse(const QString& why) {
    print(stderr, "dunmarrow-cli " + name_ + ": " + why + "\n\n" + parser_.helpText());
    return end(kWrongUse);
  }

  QString name_;
  QCommandLineParser parser_;
  QCommandLineOption help_{"help"};
  ExitStatus status_ = kDone;
};

const QCommandLineOption kThreads("threads", "Threads to use; all processors if absent.", "N");

const QCommandLineOption kLocks("locks",
                                "Fix how hands play at nodes: a JSON list of objects with node, "
                                "hand, action and frequency.",
                                "FILE");

ExitStatus solve_command(const QStringList& arguments) {
  CommandOptions line("solve",
                      "Solves a spot: a JSON file with a solve configuration map or a "
                      "project. The result is one JSON object on standard output. Ctrl+C, SIGTERM "
                      "and the time limit stop the solve and give what is there so far, with "
                      "\"success\" false and \"stopped\" true.");
  line.parser().addPositionalArgument("SPOT.json", "The spot.");
  line.parser().addOptions(
      {kThreads,
       {"iterations", "Limit of iterations instead of the spot's.", "N"},
       {"time-limit",
        "Stop after so many seconds with what is there; exit status 3. The iteration in progress "
        "is "
        "completed first.",
        "SECONDS"},
       {"output", "Write the result to FILE, at once and whole, instead of standard output.",
        "FILE"},
       {"export", "Write the strategy of every decision node to FILE as JSON lines.", "FILE"},
       kLocks,
       {"quiet", "No progress on standard error."}});
  SolveRequest request;
  if (!line.read(arguments, 1) || !line.number("threads", 1, kMaxThreads, request.threads) ||
      !line.number("iterations", 0, std::numeric_limits<std::uint32_t>::max(),
                   request.iterations) ||
      !line.number("time-limit", 1, kMaxSeconds, request.seconds)) {
    return line.status();
  }
  request.spot_path = line.argument();
  request.output_path = line.parser().value("output");
  request.export_path = line.parser().value("export");
  request.locks_path = line.parser().value("locks");
  request.quiet = line.parser().isSet("quiet");
  return solve(request);
}

ExitStatus estimate_command(const QStringList& arguments) {
  CommandOptions line("estimate", "Tells how much memory a spot will take, as a JSON object.");
  line.parser().addPositionalArgument("SPOT.json", "The spot.");
  line.parser().addOptions({kThreads, kLocks});
  SolveRequest request;
  if (!line.read(arguments, 1) || !line.number("threads", 1, kMaxThreads, request.threads)) {
    return line.status();
  }
  request.spot_path = line.argument();
  request.locks_path = line.parser().value("locks");
  return estimate(request);
}

ExitStatus bench_command(const QStringList& arguments) {
  CommandOptions line("bench",
                      "Solves a fixed set of spots. Prints iterations per second for each "
                      "and a signature of all results.");
  line.parser().addOptions(
      {kThreads, {"isa", "Vector instructions: baseline, avx2 or avx512.", "NAME"}});
  std::optional<std::uint64_t> threads;
  if (!line.read(arguments, 0) || !line.number("threads", 1, kMaxThreads, threads)) {
    return line.status();
  }
  return bench(threads, line.parser().value("isa"));
}

ExitStatus run(const QStringList& arguments) {
  const QString command = arguments.value(1);
  if (command == "solve") return solve_command(arguments);
  if (command == "estimate") return estimate_command(arguments);
  if (command == "bench") return bench_command(arguments);
  if (command == "-h" || command == "--help") {
    print(stdout, kOverview);
    return kDone;
  }
  if (command == "-v" || command == "--version") {
    print(stdout, "dunmarrow-cli " DUNMARROW_VERSION "\n");
    return kDone;
  }
  print(stderr, command.isEmpty() ? QString("dunmarrow-cli: a command is missing.\n\n")
                                  : "dunmarrow-cli: no command '" + command + "'.\n\n");
  print(stderr, kOverview);
  return kWrongUse;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName("dunmarrow-cli");
  try {
    return run(QCoreApplication::arguments());
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "dunmarrow-cli: %s\n", fault.what());
    return kFailed;
  }
}
