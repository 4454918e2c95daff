#include "cli/archive/names/tree_source.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace norvex {
namespace {

QString reasonOf(int code) {
  return QStringLiteral("the folder cannot be read (%1)").arg(QString::fromLocal8Bit(std::strerror(code)));
}

/// The type of an entry without following it; DT_UNKNOWN: it is gone.
unsigned char typeOf(int folder, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) return entry.d_type;
  struct stat status {};
  if (::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) return DT_UNKNOWN;
  return static_cast<unsigned char>(IFTODT(status.st_mode));
}

QString reasonOfType(unsigned char type) {
  switch (type) {
    case DT_LNK:
      return QStringLiteral("it is a link, which is not followed");
    case DT_FIFO:
      return QStringLiteral("it is a pipe, not an ordinary file");
    case DT_SOCK:
      return QStringLiteral("it is a socket, not an ordinary file");
    case DT_UNKNOWN:
      return QStringLiteral("it is gone");
    default:
      return QStringLiteral("it is a device, not an ordinary file");
  }
}

}  // namespace

TreeSource::TreeSource(QByteArray root, NameFilter filter, const QByteArray& results,
                       const CancelToken& cancel)
    : root_(std::move(root)), filter_(std::move(filter)), cancel_(cancel) {
  struct stat status {};
  if (results.isEmpty() || ::stat(results.constData(), &status) != 0) return;
  resultsDevice_ = status.st_dev;
  resultsInode_ = status.st_ino;
}

TreeSource::~TreeSource() {
  for (const Folder& folder : way_) ::closedir(folder.stream);
}

QByteArray TreeSource::pathOf(const QByteArray& below) const {
  return below.isEmpty() ? root_ : pathBelow(root_, below);
}

std::optional<Listed> TreeSource::next() {
  if (!std::exchange(begun_, true)) {
    // The root itself was named by the user, through whatever links.
    const int descriptor = ::open(root_.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (auto told = enter({}, descriptor)) return told;
  }
  while (!way_.empty() && !cancel_.cancelled()) {
    errno = 0;
    const dirent* entry = ::readdir(way_.back().stream);
    if (entry) {
      if (auto found = look(*entry)) return found;
      continue;
    }
    const int failed = errno;
    const QByteArray below = way_.back().below;
    ::closedir(way_.back().stream);
    way_.pop_back();
    if (failed != 0) return PassedOver{pathOf(below), reasonOf(failed), true};
  }
  return std::nullopt;
}

/// `descriptor`: of the folder, or below 0 with errno.
std::optional<Listed> TreeSource::enter(const QByteArray& below, int descriptor) {
  struct stat status {};
  DIR* stream = descriptor < 0 || ::fstat(descriptor, &status) != 0 ? nullptr : ::fdopendir(descriptor);
  if (!stream) {
    const int failed = errno;
    if (descriptor >= 0) ::close(descriptor);
    return PassedOver{pathOf(below), reasonOf(failed), true};
  }
  const auto isSame = [&](dev_t device, ino_t inode) {
    return device == status.st_dev && inode == status.st_ino;
  };
  const bool holdsItself = std::any_of(
      way_.begin(), way_.end(), [&](const Folder& folder) { return isSame(folder.device, folder.inode); });
  const bool isResults = resultsInode_ != 0 && !below.isEmpty() && isSame(resultsDevice_, resultsInode_);
  if (!holdsItself && !isResults) {
    way_.push_back({stream, below, status.st_dev, status.st_ino});
    return std::nullopt;
  }
  ::closedir(stream);
  if (isResults) return PassedOver{pathOf(below), QStringLiteral("it is the folder of the results"), false};
  return PassedOver{pathOf(below), QStringLiteral("the folder holds itself"), true};
}

/// Nothing for what needs no word.
std::optional<Listed> TreeSource::look(const dirent& entry) {
  const QByteArray name(entry.d_name);
  if (name == "." || name == "..") return std::nullopt;
  const QByteArray below = pathBelow(way_.back().below, name);
  if (filter_.excludes(below)) return std::nullopt;
  const int folder = ::dirfd(way_.back().stream);
  const unsigned char type = typeOf(folder, entry);
  if (type == DT_DIR)
    return enter(below, ::openat(folder, entry.d_name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (type != DT_REG) return PassedOver{pathOf(below), reasonOfType(type), false};
  if (!filter_.takes(below)) return std::nullopt;
  return ListedName{pathOf(below), below};
}

}  // namespace norvex
