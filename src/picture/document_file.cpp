#include "picture/document_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/file_descriptor.h"
#include "base/file_name.h"

namespace norvex {
namespace {

constexpr int kAttempts = 3;
constexpr qsizetype kChunk = 1 << 20;

Error cannotRead(const QString& message) {
  return {ErrorKind::CannotRead, message};
}
Error systemError(int code) {
  return cannotRead(QString::fromLocal8Bit(std::strerror(code)));
}

Error tooLarge(qint64 limit) {
  return {ErrorKind::Limit, QStringLiteral("it is larger than %1 MiB").arg(std::max<qint64>(1, limit >> 20))};
}

std::optional<Error> notOrdinary(const struct stat& state) {
  if (S_ISREG(state.st_mode)) return std::nullopt;
  if (S_ISDIR(state.st_mode)) return cannotRead(QStringLiteral("it is a folder"));
  if (S_ISFIFO(state.st_mode)) return cannotRead(QStringLiteral("it is a pipe, not an ordinary file"));
  if (S_ISSOCK(state.st_mode)) return cannotRead(QStringLiteral("it is a socket, not an ordinary file"));
  return cannotRead(QStringLiteral("it is a device, not an ordinary file"));
}

bool sameState(const struct stat& a, const struct stat& b) {
  return a.st_size == b.st_size && a.st_mtim.tv_sec == b.st_mtim.tv_sec &&
         a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

/// Waits until there is something to read; false: `stop` became readable.
bool waitForInput(int descriptor, int stop) {
  pollfd waiting[] = {{descriptor, POLLIN, 0}, {stop, POLLIN, 0}};
  while (::poll(waiting, std::size(waiting), -1) < 0 && errno == EINTR) continue;
  return waiting[1].revents == 0;  // an error of the other shows in the read that follows
}

/// `stop`: what ends the reading once it is readable; -1: nothing, and nothing is waited for.
Result<QByteArray> readToEnd(int descriptor, qint64 expected, qint64 limit, int stop) {
  const auto start = qsizetype(std::min(expected, limit));
  QByteArray bytes("");
  qsizetype filled = 0;
  for (;;) {
    if (stop >= 0 && !waitForInput(descriptor, stop))
      return Error{ErrorKind::Cancelled, QStringLiteral("reading was cancelled")};
    const qsizetype room = filled <= start ? start - filled + 1 : kChunk;  // the byte more finds the end
    bytes.resize(filled + room);
    const ssize_t got = ::read(descriptor, bytes.data() + filled, size_t(room));
    if (got < 0 && (errno == EINTR || errno == EAGAIN)) {
      if (errno == EAGAIN && stop < 0) return systemError(EAGAIN);
      continue;
    }
    if (got < 0) return systemError(errno);
    filled += got;
    if (filled > limit) return tooLarge(limit);
    if (got == 0) break;
  }
  bytes.truncate(filled);
  return bytes;
}

/// One attempt; nothing when the file was changed meanwhile.
std::optional<Result<QByteArray>> readOnce(const QByteArray& path, qint64 limit) {
  // Without O_NONBLOCK opening a pipe would wait for its writer.
  const FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!file.valid()) return systemError(errno);
  struct stat before = {};
  if (::fstat(file.get(), &before) != 0) return systemError(errno);
  if (const auto reason = notOrdinary(before)) return *reason;
  if (before.st_size > limit) return tooLarge(limit);
  Result<QByteArray> bytes = readToEnd(file.get(), before.st_size, limit, -1);
  if (!bytes) return bytes;
  struct stat after = {};
  if (::fstat(file.get(), &after) != 0) return systemError(errno);
  const bool sizeIsTold = after.st_size != 0;  // some file systems tell none
  if (!sameState(before, after) || (sizeIsTold && after.st_size != bytes->size())) return std::nullopt;
  return bytes;
}

}  // namespace

Result<QByteArray> readDocumentFile(const QString& path, qint64 limit) {
  const QByteArray name = fileNameBytes(path);
  if (name.isEmpty() || name.contains('\0')) return systemError(ENOENT);
  for (int attempt = 0; attempt < kAttempts; ++attempt)
    if (auto bytes = readOnce(name, limit)) return *bytes;
  return cannotRead(QStringLiteral("it is being changed by another program"));
}

Result<QByteArray> readDocumentStream(int descriptor, const CancelToken& cancel, qint64 limit) {
  struct stat state = {};
  if (::fstat(descriptor, &state) != 0) return systemError(errno);
  if (S_ISDIR(state.st_mode)) return cannotRead(QStringLiteral("it is a folder"));
  const FileDescriptor stop(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
  if (!stop.valid()) return systemError(errno);
  const CancelListener listener(cancel, [&] { ::eventfd_write(stop.get(), 1); });
  return readToEnd(descriptor, state.st_size, limit, stop.get());
}

}  // namespace norvex
