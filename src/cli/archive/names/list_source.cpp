#include "cli/archive/names/list_source.h"

#include <QList>

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace norvex {
namespace {

constexpr qsizetype kChunk = 1 << 16;
constexpr qsizetype kLongestPath = 4096;

PassedOver failure(const QByteArray& path, const QString& reason) {
  return {path, reason, true};
}

}  // namespace

std::optional<QByteArray> placeOf(const QByteArray& path, const QByteArray& base) {
  QByteArray rest = path;
  if (base.isEmpty()) {
    while (rest.endsWith('/')) rest.chop(1);
    return rest.mid(rest.lastIndexOf('/') + 1);
  }
  const QByteArray folder = pathBelow(base, {});
  if (base != "." && !rest.startsWith(folder)) return std::nullopt;
  if (rest.startsWith(folder)) rest = rest.mid(folder.size());
  if (rest.startsWith('/') && base == ".") return std::nullopt;
  QByteArray place;
  for (const QByteArray& part : rest.split('/')) {
    if (part == "..") return std::nullopt;
    if (!part.isEmpty() && part != ".") place = pathBelow(place, part);
  }
  return place;
}

ListSource::ListSource(FileDescriptor list, char separator, QByteArray base, const CancelToken& cancel,
                       QByteArray name)
    : list_(std::move(list)),
      cancelled_(::eventfd(0, EFD_CLOEXEC)),
      separator_(separator),
      base_(std::move(base)),
      name_(std::move(name)),
      listener_(cancel, [this] { (void)::eventfd_write(cancelled_.get(), 1); }) {}

Listed ListSource::listed(const QByteArray& name) const {
  if (name.contains('\0')) return failure(name, QStringLiteral("a file name holds no NUL (--null)"));
  const auto place = placeOf(name, base_);
  if (!place) return failure(name, QStringLiteral("it does not lie below the folder of --base"));
  return ListedName{name, *place};
}

std::optional<Listed> ListSource::next() {
  for (;;) {
    const qsizetype end = buffer_.indexOf(separator_, begin_);
    if (end < 0) {
      const bool isTooLong = buffer_.size() - begin_ > kLongestPath;
      if (isTooLong && !std::exchange(tooLong_, true))
        return failure(buffer_.mid(begin_, 100), QStringLiteral("the name is longer than a path can be"));
      if (tooLong_) begin_ = buffer_.size();
      if (fill()) continue;
      if (const int code = std::exchange(failed_, 0); code != 0)
        return failure(name_, QStringLiteral("the list cannot be read to its end (%1)")
                                  .arg(QString::fromLocal8Bit(std::strerror(code))));
    }
    const bool isLast = end < 0;
    const QByteArray name = buffer_.mid(begin_, isLast ? -1 : end - begin_);
    begin_ = isLast ? buffer_.size() : end + 1;
    if (std::exchange(tooLong_, false)) continue;
    if (name.size() > kLongestPath)
      return failure(name.left(100), QStringLiteral("the name is longer than a path can be"));
    if (!name.isEmpty()) return listed(name);
    if (isLast) return std::nullopt;
  }
}

/// False at the end of the list.
bool ListSource::fill() {
  if (ended_) return false;
  buffer_.remove(0, std::exchange(begin_, 0));
  pollfd waiting[] = {{list_.get(), POLLIN, 0}, {cancelled_.get(), POLLIN, 0}};
  while (::poll(waiting, 2, -1) < 0 && errno == EINTR) continue;
  if (waiting[1].revents != 0) return cutOff(0);
  const qsizetype before = buffer_.size();
  buffer_.resize(before + kChunk);
  const ssize_t count = ::read(list_.get(), buffer_.data() + before, size_t(kChunk));
  const int code = count < 0 ? errno : 0;
  buffer_.resize(before + qsizetype(std::max<ssize_t>(count, 0)));
  if (code == EINTR || code == EAGAIN) return true;
  if (code != 0) return cutOff(code);
  ended_ = count == 0;
  return !ended_;
}

/// The name at hand is none. `code`: why it ends here, as errno has it; 0: nobody wants more.
bool ListSource::cutOff(int code) {
  buffer_.clear();
  ended_ = true;
  failed_ = code;
  return false;
}

bool ListSource::wouldWait() {
  if (ended_ || buffer_.indexOf(separator_, begin_) >= 0) return false;
  pollfd waiting{list_.get(), POLLIN, 0};
  return ::poll(&waiting, 1, 0) == 0;
}

Result<FileDescriptor> openList(const QByteArray& name) {
  FileDescriptor list(name == "-" ? ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3)
                                  : ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (list.valid()) return list;
  return Error{ErrorKind::CannotRead, QString::fromLocal8Bit(std::strerror(errno))};
}

}  // namespace norvex
