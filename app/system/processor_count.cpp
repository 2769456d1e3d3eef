#include "system/processor_count.h"

#include <thread>

#include <QThread>

#include "system_memory.h"

int usableProcessorCount() {
  return chooseProcessorCount(velmora_app::available_processors(), QThread::idealThreadCount(),
                              std::thread::hardware_concurrency());
}

int chooseProcessorCount(unsigned systemCount, int idealThreadCount, unsigned hardwareConcurrency) {
  int count = static_cast<int>(systemCount);
  if (count == 0) count = idealThreadCount;
  if (count < 1) count = static_cast<int>(hardwareConcurrency);
  return count < 2 ? 1 : count;
}
