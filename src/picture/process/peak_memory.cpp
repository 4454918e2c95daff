#include "picture/process/peak_memory.h"

#include <algorithm>
#include <cstdio>
#include <memory>

namespace norvex {
namespace {

thread_local PeakMemory* current = nullptr;

}  // namespace

PeakMemory::PeakMemory() {
  current = this;
}

PeakMemory::~PeakMemory() {
  current = nullptr;
}

PeakMemory* PeakMemory::ofThisThread() {
  return current;
}

void PeakMemory::note(qint64 processId) {
  char line[128];
  std::snprintf(line, sizeof line, "/proc/%lld/status", static_cast<long long>(processId));
  const std::unique_ptr<FILE, int (*)(FILE*)> status(std::fopen(line, "re"), &std::fclose);
  long long kib = 0;
  while (status && std::fgets(line, sizeof line, status.get()))
    if (std::sscanf(line, "VmHWM: %lld", &kib) == 1) kib_ = std::max<qint64>(kib_, kib);
}

}  // namespace norvex
