#include "worker/confinement/scratch_watch.h"

#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <memory>

#include "protocol/limits.h"

namespace norvex {
namespace {

constexpr qint64 kBlock = 512;

}  // namespace

Error tooManyScratchFiles() {
  return {ErrorKind::Limit, QStringLiteral("the picture needs more temporary files than it is allowed")};
}

ScratchWatch::ScratchWatch(const QString& folder) : folder_(QFile::encodeName(folder)) {}

Result<void> ScratchWatch::look() {
  if (folder_.isEmpty() || (sinceLast_.isValid() && sinceLast_.elapsed() < kPause)) return {};
  sinceLast_.start();
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder_.constData()), ::closedir);
  if (!entries) return {};
  qint64 bytes = 0;
  int files = 0;
  while (const dirent* entry = ::readdir(entries.get())) {
    struct stat status = {};
    if (::fstatat(::dirfd(entries.get()), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) continue;
    if (!S_ISREG(status.st_mode)) continue;
    bytes += status.st_blocks * kBlock;
    ++files;
  }
  if (bytes <= limits::maximumScratchBytes - kBetweenLooks && files <= limits::maximumScratchFiles) return {};
  return tooManyScratchFiles();
}

}  // namespace norvex
