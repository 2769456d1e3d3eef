// What this process may use of the machine.
#pragma once

#include <cstdint>

namespace velmora_app {

/// Physical memory in bytes, limited by the memory limit of the process's control group where one
/// is set; 0 if it can't be read.
std::uint64_t total_memory_bytes();
/// Physical memory that can be had without swapping, limited likewise; 0 if it can't be read.
std::uint64_t available_memory_bytes();
/// Processors that this process may run on; 0 if the system doesn't say.
unsigned available_processors();

}  // namespace velmora_app
