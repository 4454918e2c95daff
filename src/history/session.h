// Which files are open, on disk, so that they can be offered again after the program did not end as it
// should.
#pragma once

#include <QString>
#include <QStringList>

#include "base/file_descriptor.h"

namespace norvex {

/// The files that a program that is gone had open.
struct LeftSession {
  QStringList files;  ///< in the order in which they were opened
  QString last;       ///< the one that was opened or used last: perhaps what ended it; empty: none
};

/// A file of its own for each running program, locked while it runs and removed when it ends, also by a
/// signal that asks it to. What stays behind is a crash. Main thread.
class Session {
 public:
  /// `folder` is made when it is needed, the file with the first opened document.
  explicit Session(QString folder);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  void opened(const QString& path);
  void used(const QString& path);
  void closed(const QString& path);
  /// Nothing is kept on disk from now on, nor what was until now.
  void stop();
  /// Ends stop(): what is open now is kept again.
  void start();

  /// Of all programs that crashed, oldest first. Their files are removed: they are offered once.
  [[nodiscard]] static QList<LeftSession> takeLeft(const QString& folder);

 private:
  void write();

  const QString folder_;
  bool on_ = true;
  LeftSession now_;
  FileDescriptor file_;
};

}  // namespace norvex
