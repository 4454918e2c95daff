#include "worker/sandbox.h"

#include <QFile>

#include <fcntl.h>
#include <malloc.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>

#include "base/file_descriptor.h"

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define NORVEX_SHADOW_MEMORY 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define NORVEX_SHADOW_MEMORY 1
#endif
#endif

namespace norvex {
namespace {

Error notConfined() {
  return {ErrorKind::NoSandbox, QStringLiteral("the picture process could not be confined")};
}

constexpr rlim_t kOpenFiles = 128;  ///< Ghostscript, fonts and pipes stay far below
constexpr rlim_t kMiB = 1 << 20;
constexpr rlim_t kLibraries = 192 * kMiB;  ///< more than all of ours take

bool limit(__rlimit_resource resource, rlim_t value) {
  rlimit current = {};
  if (::getrlimit(resource, &current) != 0) return false;
  // A limit that is already lower stays: raising it is not ours to do.
  const rlim_t both = std::min(value, current.rlim_max);
  const rlimit wanted = {both, both};
  return ::setrlimit(resource, &wanted) == 0;
}

#ifdef NORVEX_SHADOW_MEMORY
bool limitAddressSpace(const PictureLimits&, rlim_t) {
  return true;
}  // shadow memory takes terabytes of address space
#else
/// What the program and its libraries have mapped already: the caller's limit speaks of the document.
rlim_t addressSpaceInUse() {
  QFile file(QStringLiteral("/proc/self/statm"));
  if (!file.open(QIODevice::ReadOnly)) return 512 * kMiB;
  return file.readAll().split(' ').first().toULongLong() * rlim_t(::sysconf(_SC_PAGESIZE));
}

bool limitAddressSpace(const PictureLimits& limits, rlim_t more) {
  // A second allocation arena would reserve 64 MiB for the thread that only reads messages.
  ::mallopt(M_ARENA_MAX, 1);
  return limit(RLIMIT_AS, addressSpaceInUse() + rlim_t(limits.memoryMiB) * kMiB + more);
}
#endif

/// Results are written to shared memory, to which this limit applies too; scratch files get as much.
bool limitFiles(const PictureLimits& limits) {
  const rlim_t bitmap = rlim_t(limits.megapixels * 4.0e6) + kMiB;
  // Exceeding it is an error of the write, not the death of the process.
  std::signal(SIGXFSZ, SIG_IGN);
  return limit(RLIMIT_FSIZE, std::max(bitmap, rlim_t(limits.memoryMiB) * kMiB)) &&
         limit(RLIMIT_NOFILE, kOpenFiles) && limit(RLIMIT_CORE, 0);
}

void volunteerWhenMemoryRunsOut() {
  const FileDescriptor score(::open("/proc/self/oom_score_adj", O_WRONLY | O_CLOEXEC));
  // Not being allowed to is no loss of confinement.
  if (score.valid() && ::write(score.get(), "500", 3) < 0) return;
}

}  // namespace

Result<void> limitMemory(const PictureLimits& limits) {
  return limitAddressSpace(limits, 0) ? Result<void>() : notConfined();
}

Result<void> enterSandbox(const PictureLimits& limits, const QString& scratchFolder, bool librariesToCome) {
  volunteerWhenMemoryRunsOut();
  if (!scratchFolder.isEmpty()) ::setenv("TMPDIR", QFile::encodeName(scratchFolder).constData(), 1);
  if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || !limitFiles(limits) ||
      !limitAddressSpace(limits, librariesToCome ? kLibraries : 0))
    return notConfined();
  return {};
}

}  // namespace norvex
