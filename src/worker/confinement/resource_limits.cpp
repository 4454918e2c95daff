#include "worker/confinement/resource_limits.h"

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <optional>

#include "protocol/limits.h"
#include "worker/confinement/instrumented.h"
#include "worker/confinement/process_files.h"

namespace norvex {
namespace {

constexpr rlim_t kMiB = 1 << 20;
constexpr rlim_t kUnknown = 512 * kMiB;  ///< taken for what is mapped where that cannot be found out
constexpr int kSpareSeconds = 30;

bool limit(__rlimit_resource resource, rlim_t value) {
  rlimit current = {};
  if (::getrlimit(resource, &current) != 0) return false;
  // A limit that is already lower stays: raising it is not ours to do.
  const rlim_t both = std::min(value, current.rlim_max);
  const rlimit wanted = {both, both};
  return ::setrlimit(resource, &wanted) == 0;
}

/// The system keeps it only for processes that are run in real time, which no process of ours is: a note of
/// the seconds that were granted, which who has been taken over by a document cannot raise.
bool noteSeconds(int seconds) {
  return limit(RLIMIT_RTTIME, rlim_t(seconds) * 1'000'000);
}

/// The hard limit of another process; nothing where that cannot be found out.
std::optional<rlim_t> limitOf(int process, __rlimit_resource resource) {
  rlimit found = {};
  if (process <= 0 || ::prlimit(process, resource, nullptr, &found) != 0) return std::nullopt;
  return found.rlim_max;
}

rlim_t usedSeconds() {
  rusage usage = {};
  ::getrusage(RUSAGE_SELF, &usage);
  return rlim_t(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) + 1;
}

}  // namespace

bool limitFiles(const PictureLimits& limits, bool sends) {
  const quint64 open = sends ? limits::maximumOpenFilesOfSender : limits::maximumOpenFiles;
  const rlim_t bitmap = rlim_t(limits.megapixels * 4.0e6) + kMiB;
  std::signal(SIGXFSZ, SIG_IGN);
  return limit(RLIMIT_FSIZE, std::max(bitmap, rlim_t(limits.memoryMiB) * kMiB)) &&
         limit(RLIMIT_NOFILE, open) && limit(RLIMIT_CORE, 0) && noteSeconds(limits.seconds);
}

PictureLimits grantedFor(int asker, PictureLimits wanted) {
  const PictureLimits usual;
  const std::optional<rlim_t> files = limitOf(asker, RLIMIT_FSIZE);
  if (files != RLIM_INFINITY) {
    const rlim_t memory = files ? *files / kMiB : rlim_t(usual.memoryMiB);
    wanted.memoryMiB = int(std::min(rlim_t(wanted.memoryMiB), std::max<rlim_t>(1, memory)));
    wanted.megapixels = std::min(wanted.megapixels, files ? double(*files) / 4.0e6 : usual.megapixels);
  }
  std::optional<rlim_t> time = limitOf(asker, RLIMIT_RTTIME);
  // Where all of us have been started with such a limit, one that is no lower says nothing of what was
  // granted.
  if (const auto inherited = limitOf(::getpid(), RLIMIT_RTTIME);
      inherited != RLIM_INFINITY && time >= inherited)
    time.reset();
  if (time != RLIM_INFINITY) {
    const rlim_t seconds = time ? *time / 1'000'000 : rlim_t(usual.seconds);
    wanted.seconds = int(std::min(rlim_t(wanted.seconds), seconds));
  }
  return wanted;
}

void keepOneArena() {
  // Asked for again it would go through all memory that is free.
  static const int isKept = ::mallopt(M_ARENA_MAX, 1);
  (void)isKept;
}

bool limitAddressSpace(const PictureLimits& limits, quint64 more) {
  if (isInstrumented) return true;  // shadow memory takes terabytes of address space
  keepOneArena();
  const rlim_t mapped = mappedBytes();
  return limit(RLIMIT_AS, (mapped != 0 ? mapped : kUnknown) + rlim_t(limits.memoryMiB) * kMiB + more);
}

bool limitProcessorTime(int seconds, bool forGood) {
  rlimit current = {};
  if (::getrlimit(RLIMIT_CPU, &current) != 0) return false;
  const rlim_t wanted = usedSeconds() + rlim_t(seconds) + kSpareSeconds;
  current.rlim_cur = std::min(wanted, current.rlim_max);
  if (forGood) current.rlim_max = current.rlim_cur;
  return ::setrlimit(RLIMIT_CPU, &current) == 0;
}

}  // namespace norvex
