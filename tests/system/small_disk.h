// A disk that is soon full.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <sys/mount.h>

namespace norvex {

/// A small file system of its own; empty where mounting is not permitted.
class SmallDisk {
 public:
  explicit SmallDisk(const char* size) {
    const QByteArray options = QByteArray("size=") + size;
    mounted_ = ::mount("tmpfs", QFile::encodeName(folder_.path()), "tmpfs", 0, options.constData()) == 0;
  }
  ~SmallDisk() {
    if (mounted_) ::umount(QFile::encodeName(folder_.path()));
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  /// Room for what did not fit.
  [[nodiscard]] bool resize(const char* size) {
    const QByteArray options = QByteArray("size=") + size;
    return ::mount("tmpfs", QFile::encodeName(folder_.path()), "tmpfs", MS_REMOUNT, options.constData()) == 0;
  }
  [[nodiscard]] bool isMounted() const { return mounted_; }
  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }
  [[nodiscard]] QString folder() const { return folder_.path(); }

 private:
  QTemporaryDir folder_;
  bool mounted_ = false;
};

}  // namespace norvex
