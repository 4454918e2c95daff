#include "base/atomic_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>

#include "base/file_name.h"

namespace norvex {
namespace {

Error cannotWrite(int reason) {
  switch (reason) {
    case EEXIST:
      return {ErrorKind::CannotWrite, QStringLiteral("the file exists already")};
    case ENOENT:
    case ENOTDIR:
      return {ErrorKind::CannotWrite, QStringLiteral("the folder to write to does not exist")};
    case EISDIR:
      return {ErrorKind::CannotWrite, QStringLiteral("there is a folder of that name")};
    case ENOSPC:
    case EDQUOT:
      return {ErrorKind::CannotWrite, QStringLiteral("there is no space left to write to")};
    case EROFS:
    case EACCES:
    case EPERM:
      return {ErrorKind::CannotWrite, QStringLiteral("writing there is not permitted")};
    default:
      return {ErrorKind::CannotWrite, QStringLiteral("the file could not be written (%1)")
                                          .arg(QString::fromLocal8Bit(std::strerror(reason)))};
  }
}

/// The beginning of the hidden name of a file.
QByteArray hiddenBegin(const QByteArray& name) {
  constexpr qsizetype enoughToRecognise = 100;  // the whole name may be as long as names can be
  return '.' + name.left(enoughToRecognise) + '.';
}

constexpr int kRandomDigits = 16;

/// A name beside `path` that nobody else uses.
QByteArray hiddenNameBeside(const QString& path) {
  const QFileInfo info(path);
  const QByteArray random = QByteArray::number(QRandomGenerator::global()->generate64(), 16);
  return fileNameBytes(info.path()) + '/' + hiddenBegin(fileNameBytes(info.fileName())) +
         random.rightJustified(kRandomDigits, '0');
}

/// The part that hiddenNameBeside() put in front of the random digits; empty: it is no such name.
QByteArray beginOfHidden(const QByteArray& name) {
  const qsizetype begin = name.size() - kRandomDigits;
  if (begin < 2 || name[0] != '.' || name[begin - 1] != '.') return {};
  const bool random = std::all_of(name.begin() + begin, name.end(),
                                  [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
  return random ? name.left(begin) : QByteArray();
}

/// The new file while it has no name yet, or a hidden one where the file system knows no other way.
class NewFile {
 public:
  NewFile(const QString& path, mode_t mode) : path_(path) {
    const QByteArray folder = fileNameBytes(QFileInfo(path).path());
    descriptor_ = ::open(folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode);
    if (descriptor_ >= 0 || (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL)) return;
    hidden_ = hiddenNameBeside(path);
    descriptor_ = ::open(hidden_.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, mode);
    if (descriptor_ < 0) hidden_.clear();
  }
  ~NewFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
    if (!hidden_.isEmpty()) ::unlink(hidden_.constData());
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
  void setMode(mode_t mode) const { ::fchmod(descriptor_, mode); }

  [[nodiscard]] bool write(const QByteArray& bytes) const {
    for (qsizetype done = 0; done < bytes.size();) {
      const ssize_t count =
          ::write(descriptor_, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
      if (count < 0 && errno != EINTR) return false;
      if (count > 0) done += count;
    }
    return true;
  }

  /// False with errno when it could not appear.
  [[nodiscard]] bool appear(IfExists ifExists) {
    const QByteArray target = fileNameBytes(path_);
    if (ifExists == IfExists::Fail) return linkTo(target);
    // In one step where nothing is in the way: whoever is killed between two leaves what is hidden.
    if (hidden_.isEmpty() && linkTo(target)) return true;
    if (hidden_.isEmpty()) {
      const QByteArray name = hiddenNameBeside(path_);
      if (!linkTo(name)) return false;
      hidden_ = name;
    }
    if (::rename(hidden_.constData(), target.constData()) != 0) return false;
    hidden_.clear();
    return true;
  }

 private:
  [[nodiscard]] bool linkTo(const QByteArray& name) const {
    if (!hidden_.isEmpty()) return ::link(hidden_.constData(), name.constData()) == 0;
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(descriptor_);
    return ::linkat(AT_FDCWD, self.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0;
  }

  QString path_;
  QByteArray hidden_;
  int descriptor_ = -1;
};

std::optional<struct stat> statusOf(const QString& path) {
  struct stat status {};
  if (::stat(fileNameBytes(path).constData(), &status) != 0) return std::nullopt;
  return status;
}

}  // namespace

Result<void> writeFileAtomically(const QString& path, const QByteArray& bytes, IfExists ifExists) {
  const auto old = statusOf(path);
  if (old && S_ISDIR(old->st_mode)) return cannotWrite(EISDIR);
  if (old && ifExists == IfExists::Fail) return cannotWrite(EEXIST);
  if (old && !S_ISREG(old->st_mode)) {
    return Error{ErrorKind::CannotWrite, QStringLiteral("it is not an ordinary file")};  // a device, a pipe
  }
  if (old && (old->st_mode & S_IWUSR) == 0)
    return Error{ErrorKind::CannotWrite, QStringLiteral("the file is read-only")};
  const QString target = old ? fileNameText(realPath(fileNameBytes(path))) : path;

  NewFile file(target, 0666);
  if (!file.isOpen() || !file.write(bytes)) return cannotWrite(errno);
  if (old) file.setMode(old->st_mode & 07777);
  if (!file.appear(ifExists)) return cannotWrite(errno);
  return {};
}

void removeUnfinishedFiles(const QByteArray& folder, const QSet<QByteArray>& names) {
  QSet<QByteArray> begins;
  for (const QByteArray& name : names) begins.insert(hiddenBegin(name));
  const std::unique_ptr<DIR, int (*)(DIR*)> opened(::opendir(folder.constData()), &::closedir);
  while (const dirent* entry = opened ? ::readdir(opened.get()) : nullptr)
    if (begins.contains(beginOfHidden(entry->d_name))) ::unlinkat(::dirfd(opened.get()), entry->d_name, 0);
}

bool isSameFile(const QString& path, const QString& other) {
  const auto one = statusOf(path);
  const auto two = statusOf(other);
  return one && two && one->st_dev == two->st_dev && one->st_ino == two->st_ino;
}

}  // namespace norvex
