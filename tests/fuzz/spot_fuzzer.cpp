// Spot files of the headless tool, in both of their forms, and its files of node locks.
#include <cmath>

#include <QString>

#include "cards.h"
#include "fuzz_support.h"
#include "spot_file.h"

namespace {

template <typename Read>
bool reads(const Read& read) {
  try {
    read();
    return true;
  } catch (const InputFault& fault) {
    fuzz::check(*fault.what() != '\0', "a fault has a text");
    return false;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::MemoryFile file(fuzz::text_of(data, size));
  const QString path = QString::fromStdString(file.path());
  velmora_app::SolveConfig config;
  if (reads([&] { config = read_spot(path); })) {
    velmora::parse_board(config.board);
    fuzz::check(config.starting_pot >= 0 && config.effective_stack >= 0, "chips are counted");
    fuzz::check(config.rake_percent >= 0 && config.rake_percent <= 100, "the rake is a share");
    fuzz::check(std::isfinite(config.rake_cap) && std::isfinite(config.target_exploitability),
                "numbers are finite");
    fuzz::check(velmora::street_from_string(config.starting_street) ==
                    velmora::street_of(velmora::parse_board(config.board)),
                "the street is that of the board");
  }
  std::vector<velmora_app::NodeLockEntry> locks;
  if (reads([&] { locks = read_locks(path); })) {
    for (const velmora_app::NodeLockEntry& lock : locks) {
      fuzz::check(lock.frequency >= 0 && lock.frequency <= 1, "a frequency is in 0..1");
    }
  }
  return 0;
}
