// The vector instructions that the kernels use, chosen for the processor at hand when the program
// starts. Results are equal to the bit on each of them.
#pragma once

#include <string_view>
#include <vector>

namespace velmora {

enum class InstructionSet { kBaseline, kAvx2, kAvx512 };

/// "baseline", "avx2", "avx512".
std::string_view instruction_set_name(InstructionSet set);
/// Those that this processor has, weakest first.
std::vector<InstructionSet> supported_instruction_sets();
/// The one in force: the strongest, unless `use_instruction_set` chose another.
InstructionSet instruction_set();
/// For measurements and tests. Call it while no solver runs.
/// Throws `std::invalid_argument` if the processor doesn't have it.
void use_instruction_set(InstructionSet set);

}  // namespace velmora
