// What a test of processes leaves behind: descriptors, children, folders.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <sys/types.h>
#include <sys/wait.h>

#include <cerrno>
#include <functional>

namespace norvex::kit {

inline qsizetype openDescriptors() {
  return QDir(QStringLiteral("/proc/self/fd"))
      .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
      .size();
}

/// Waits until the condition holds; false after a time that only a broken program needs.
inline bool eventually(const std::function<bool()>& condition) {
  QElapsedTimer timer;
  timer.start();
  while (!condition()) {
    if (timer.elapsed() > 20'000) return false;
    QThread::msleep(5);
  }
  return true;
}

/// State letter of a process ('R', 'S', 'Z' …); 0: there is none.
inline char stateOf(qint64 pid) {
  QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  const QByteArray line = file.readAll();
  return line.mid(line.lastIndexOf(')') + 2, 1).append('\0').at(0);
}

/// Whether this process has no child at all, dead or alive.
inline bool hasNoChildren() {
  return ::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD;
}

/// All process numbers whose parent is `pid`.
inline QList<qint64> childrenOf(qint64 pid) {
  QList<qint64> children;
  for (const QString& name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
    QFile file(QStringLiteral("/proc/%1/stat").arg(name));
    if (!name.at(0).isDigit() || !file.open(QIODevice::ReadOnly)) continue;
    const QByteArray line = file.readAll();
    if (line.mid(line.lastIndexOf(')') + 4).split(' ').value(0).toLongLong() == pid)
      children << name.toLongLong();
  }
  return children;
}

/// A runtime folder of its own for the processes of one test.
class RuntimeFolder {
 public:
  RuntimeFolder() : before_(qgetenv("XDG_RUNTIME_DIR")) {
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(dir_.path()));
  }
  ~RuntimeFolder() { qputenv("XDG_RUNTIME_DIR", before_); }
  RuntimeFolder(const RuntimeFolder&) = delete;
  RuntimeFolder& operator=(const RuntimeFolder&) = delete;
  [[nodiscard]] QStringList entries() const {
    return QDir(dir_.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden | QDir::System);
  }
  /// Scratch folders of single documents.
  [[nodiscard]] QStringList scratchFolders() const {
    QStringList all;
    for (const QString& root : entries())
      all += QDir(dir_.filePath(root)).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
    return all;
  }

 private:
  QTemporaryDir dir_;
  QByteArray before_;
};

}  // namespace norvex::kit
