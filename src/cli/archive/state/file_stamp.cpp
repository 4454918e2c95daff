#include "cli/archive/state/file_stamp.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>

#include <algorithm>
#include <cerrno>
#include <ctime>

#include "base/file_descriptor.h"

namespace norvex {
namespace {

qint64 nanoseconds(const timespec& time) {
  return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

}  // namespace

std::optional<FileMark> markOf(const QByteArray& path) {
  struct stat status {};
  if (::stat(path.constData(), &status) != 0) return std::nullopt;
  return FileMark{{status.st_size, nanoseconds(status.st_mtim)},
                  status.st_dev,
                  status.st_ino,
                  nanoseconds(status.st_ctim)};
}

qint64 fileClock() {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
  return nanoseconds(now);
}

std::optional<FileStamp> stampOf(const QByteArray& path) {
  const auto mark = markOf(path);
  return mark ? std::optional(mark->stamp) : std::nullopt;
}

std::optional<QByteArray> contentHash(const QByteArray& path) {
  const FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!file.valid() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  QCryptographicHash hash(QCryptographicHash::Sha256);
  QByteArray piece(qsizetype(std::clamp<off_t>(status.st_size, 1, 1 << 18)), Qt::Uninitialized);
  for (;;) {
    const ssize_t count = ::read(file.get(), piece.data(), size_t(piece.size()));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) return hash.result();
    hash.addData(QByteArrayView(piece).first(count));
  }
}

}  // namespace norvex
