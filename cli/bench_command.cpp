#include <cstdio>

#include "bench_spots.h"
#include "commands.h"
#include "instruction_set.h"

namespace {

velmora::InstructionSet instruction_set_of(const QString& name) {
  QString names;
  for (const velmora::InstructionSet set : velmora::supported_instruction_sets()) {
    const std::string_view known = velmora::instruction_set_name(set);
    if (name.toStdString() == known) return set;
    names += (names.isEmpty() ? "" : ", ") + QString::fromStdString(std::string(known));
  }
  throw InputFault("This processor doesn't have '" + name + "'; it has " + names + ".");
}

void print_line(const BenchLine& line) {
  const double speed = line.seconds > 0 ? line.iterations / line.seconds : 0;
  const QString text = QString("%1 %2 iterations %3 s %4 it/s\n")
                           .arg(QString::fromStdString(line.name), -28)
                           .arg(line.iterations, 6)
                           .arg(line.seconds, 9, 'f', 3)
                           .arg(speed, 10, 'f', 2);
  std::fputs(text.toLocal8Bit().constData(), stdout);
  std::fflush(stdout);
}

}  // namespace

ExitStatus bench(std::optional<std::uint64_t> threads, const QString& instruction_set) {
  if (!instruction_set.isEmpty()) {
    velmora::use_instruction_set(instruction_set_of(instruction_set));
  }
  const std::uint64_t count = threads.value_or(all_processors());
  const std::string name(velmora::instruction_set_name(velmora::instruction_set()));
  std::printf("%s, threads: %llu\n", name.c_str(), static_cast<unsigned long long>(count));
  std::fflush(stdout);
  const BenchReport report = run_bench(count, print_line);
  std::printf("signature %016llx\n", static_cast<unsigned long long>(report.signature));
  return kDone;
}
