#include "instruction_set.h"

#include <algorithm>
#include <atomic>
#include <stdexcept>

namespace velmora {
namespace {

std::atomic<InstructionSet>& in_force() {
  static std::atomic<InstructionSet> set = supported_instruction_sets().back();
  return set;
}

}  // namespace

std::string_view instruction_set_name(InstructionSet set) {
  switch (set) {
    case InstructionSet::kAvx512: return "avx512";
    case InstructionSet::kAvx2: return "avx2";
    case InstructionSet::kBaseline: break;
  }
  return "baseline";
}

std::vector<InstructionSet> supported_instruction_sets() {
  std::vector<InstructionSet> sets = {InstructionSet::kBaseline};
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
  __builtin_cpu_init();
  if (__builtin_cpu_supports("x86-64-v3")) sets.push_back(InstructionSet::kAvx2);
  if (__builtin_cpu_supports("x86-64-v4")) sets.push_back(InstructionSet::kAvx512);
#endif
  return sets;
}

InstructionSet instruction_set() {
  return in_force().load(std::memory_order_relaxed);
}

void use_instruction_set(InstructionSet set) {
  const std::vector<InstructionSet> sets = supported_instruction_sets();
  if (std::find(sets.begin(), sets.end(), set) == sets.end()) {
    throw std::invalid_argument("This processor doesn't have the instruction set '" +
                                std::string(instruction_set_name(set)) + "'");
  }
  in_force() = set;
}

}  // namespace velmora
