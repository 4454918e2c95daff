// Runs the program with temporary folders and a session of its own, so that nothing that it leaves behind is
// missed.
#pragma once

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <unistd.h>

#include <functional>
#include <utility>

#include "kit/process_watch.h"
#include "kit/program.h"

namespace norvex::kit {

/// Everything in a folder, hidden files too.
inline QStringList entriesOf(const QString& folder) {
  return QDir(folder).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden | QDir::System);
}

/// What the system tells of a process behind its name: state, parent, group, session …; empty: there is none.
inline QByteArrayList statusOf(qint64 pid) {
  QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray line = file.readAll();
  return line.mid(line.lastIndexOf(')') + 2).split(' ');
}

inline qint64 parentOf(qint64 pid) {
  return statusOf(pid).value(1).toLongLong();
}

/// The living processes of a session.
inline QList<qint64> membersOf(qint64 session) {
  QList<qint64> members;
  for (const QString& name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
    if (!name.at(0).isDigit()) continue;
    const QByteArrayList status = statusOf(name.toLongLong());
    if (status.value(0) != "Z" && status.value(3).toLongLong() == session) members << name.toLongLong();
  }
  return members;
}

/// The name of the program that a process runs; empty when there is none any more.
inline QString programOf(qint64 pid) {
  return QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(pid))).fileName();
}

/// One run of norvex. Its output folder is there before it starts, and empty.
class WatchedProgram {
 public:
  /// `before` is called in the new process before the program: only what is safe between fork and exec.
  explicit WatchedProgram(std::function<void()> before = {}) {
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime_.path());
    variables.insert(QStringLiteral("TMPDIR"), temporary_.path());
    variables.insert(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1000000000"));
    process_.setProcessEnvironment(variables);
    process_.setChildProcessModifier([before = std::move(before)] {
      ::setsid();
      if (before) before();
    });
  }
  ~WatchedProgram() {
    if (process_.state() != QProcess::NotRunning) process_.kill();
    process_.waitForFinished();
  }
  WatchedProgram(const WatchedProgram&) = delete;
  WatchedProgram& operator=(const WatchedProgram&) = delete;

  void start(const QStringList& arguments) {
    process_.start(norvexProgram(), arguments, QIODevice::ReadOnly);
    process_.waitForStarted();
    session_ = process_.processId();
  }
  /// Waits for the end, or kills it after so many seconds, which counts as a crash.
  Ran end(int seconds = 120) {
    Ran ran;
    if (!process_.waitForFinished(seconds * 1000)) {
      process_.kill();
      process_.waitForFinished();
      ran.crashed = true;
    }
    ran.crashed = ran.crashed || process_.exitStatus() == QProcess::CrashExit;
    ran.exitCode = process_.exitCode();
    ran.out = process_.readAllStandardOutput();
    ran.err = process_.readAllStandardError();
    return ran;
  }
  Ran run(const QStringList& arguments, int seconds = 120) {
    start(arguments);
    return end(seconds);
  }

  [[nodiscard]] QProcess& process() { return process_; }
  /// Number of its process while it runs.
  [[nodiscard]] qint64 pid() const { return process_.processId(); }
  /// What it started and what they started, while it runs or afterwards.
  [[nodiscard]] QList<qint64> descendants() const {
    QList<qint64> all = membersOf(session_);
    all.removeAll(session_);
    return all;
  }
  [[nodiscard]] QString output() const { return output_.path(); }
  [[nodiscard]] QString output(const QString& name) const { return output_.filePath(name); }
  /// What lies in the temporary folders.
  [[nodiscard]] QStringList litter() const {
    return entriesOf(runtime_.path()) + entriesOf(temporary_.path());
  }

 private:
  QTemporaryDir runtime_, temporary_, output_;
  QProcess process_;
  qint64 session_ = 0;
};

/// Whether it is one line that says who speaks, and nothing else.
inline bool isOneSentence(const QByteArray& told) {
  return told.startsWith("norvex: ") && told.endsWith('\n') && told.count('\n') == 1 && told.size() > 20;
}

}  // namespace norvex::kit
