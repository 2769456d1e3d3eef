#include "system_memory.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>
#include <sched.h>
#include <string>
#include <vector>

namespace velmora_app {
namespace {

constexpr std::uint64_t kNoLimit = std::numeric_limits<std::uint64_t>::max();

/// Value of a line such as "MemTotal:  24 kB" in bytes; 0 if there is none.
std::uint64_t meminfo(const std::string& key) {
  std::ifstream file("/proc/meminfo");
  std::string name;
  std::uint64_t kilobytes = 0;
  std::string unit;
  while (file >> name >> kilobytes) {
    std::getline(file, unit);
    if (name == key + ":") return kilobytes * 1024;
  }
  return 0;
}

/// The number in a file of the control group file system; `missing` for "max" or no file.
std::uint64_t number_in(const std::string& path, std::uint64_t missing) {
  std::ifstream file(path);
  std::uint64_t number = 0;
  return file >> number ? number : missing;
}

/// Memory of a control group that is given back when needed: file cache not in use.
std::uint64_t reclaimable_in(const std::string& stat_path) {
  std::ifstream file(stat_path);
  std::string name;
  std::uint64_t bytes = 0;
  while (file >> name >> bytes) {
    if (name == "inactive_file") return bytes;
  }
  return 0;
}

struct GroupMemory {
  std::uint64_t limit = kNoLimit;
  std::uint64_t used = 0;
};

/// Path of this process's control group: version 2 has the line "0::/path", version 1 a line with
/// "memory" among the controllers.
std::string group_path(const std::string& controller) {
  std::ifstream file("/proc/self/cgroup");
  std::string line;
  while (std::getline(file, line)) {
    const std::size_t first = line.find(':');
    const std::size_t second = line.find(':', first + 1);
    if (first == std::string::npos || second == std::string::npos) continue;
    if (line.substr(first + 1, second - first - 1) == controller) return line.substr(second + 1);
  }
  return "/";
}

/// A group and its ancestors below `mount`, innermost first: a limit holds for all below it.
std::vector<std::string> group_folders(const std::string& mount, std::string path) {
  std::vector<std::string> folders;
  while (path.starts_with('/') && path != "/") {
    folders.push_back(mount + path);
    path.resize(path.rfind('/'));
  }
  folders.push_back(mount);
  return folders;
}

std::vector<GroupMemory> memory_groups() {
  /// Where a version of the control groups keeps its figures.
  struct Version {
    const char* mount;
    const char* controller;
    const char* limit;
    const char* used;
  };
  constexpr Version kVersions[] = {
      {"/sys/fs/cgroup", "", "/memory.max", "/memory.current"},
      {"/sys/fs/cgroup/memory", "memory", "/memory.limit_in_bytes", "/memory.usage_in_bytes"}};
  std::vector<GroupMemory> groups;
  for (const Version& version : kVersions) {
    for (const std::string& folder : group_folders(version.mount, group_path(version.controller))) {
      const std::uint64_t limit = number_in(folder + version.limit, kNoLimit);
      if (limit == kNoLimit) continue;
      const std::uint64_t used = number_in(folder + version.used, 0);
      const std::uint64_t cache = reclaimable_in(folder + "/memory.stat");
      groups.push_back({limit, used - std::min(used, cache)});
    }
  }
  return groups;
}

/// Processors that the control group's time quota amounts to, rounded up; a very large number for
/// no quota.
unsigned quota_processors() {
  unsigned processors = std::numeric_limits<unsigned>::max();
  for (const std::string& folder : group_folders("/sys/fs/cgroup", group_path(""))) {
    std::ifstream file(folder + "/cpu.max");
    double quota = 0;
    double period = 0;
    if (file >> quota >> period && quota > 0 && period > 0) {
      processors = std::min(processors, static_cast<unsigned>(std::ceil(quota / period)));
    }
  }
  return processors;
}

}  // namespace

std::uint64_t total_memory_bytes() {
  std::uint64_t total = meminfo("MemTotal");
  if (total == 0) return 0;
  for (const GroupMemory& group : memory_groups()) total = std::min(total, group.limit);
  return total;
}

std::uint64_t available_memory_bytes() {
  std::uint64_t available = meminfo("MemAvailable");
  if (available == 0) return 0;
  for (const GroupMemory& group : memory_groups()) {
    available = std::min(available, group.limit - std::min(group.limit, group.used));
  }
  return available;
}

unsigned available_processors() {
  cpu_set_t set;
  CPU_ZERO(&set);
  if (sched_getaffinity(0, sizeof(set), &set) != 0) return 0;
  const int count = CPU_COUNT(&set);
  return count > 0 ? std::min(static_cast<unsigned>(count), quota_processors()) : 0;
}

}  // namespace velmora_app
