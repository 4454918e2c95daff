// FileWatcher: tells when a file on disk has become another one, and is whole again.
#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>

#include <functional>

#include "base/result.h"

namespace norvex {

/// Watches one file, also across programs that save by renaming a new file over the old one. A change is told
/// when the file has stayed the same for the settling time, can be read and its bytes differ from those known
/// last. Main thread; bytes are read on a thread of its own.
class FileWatcher final : public QObject {
  Q_OBJECT
 public:
  static constexpr int defaultSettlingMilliseconds = 400;

  /// All bytes of a file; called on the watcher's thread.
  using Reader = std::function<Result<QByteArray>(const QString& path)>;

  explicit FileWatcher(const QString& path, int settlingMilliseconds = defaultSettlingMilliseconds,
                       QObject* parent = nullptr);
  /// With another reader than readDocumentFile().
  FileWatcher(const QString& path, int settlingMilliseconds, Reader read, QObject* parent = nullptr);
  ~FileWatcher() override;

  [[nodiscard]] QString path() const { return path_; }
  /// The file as it is on disk now counts as known (it has been read). What is written after that is news.
  void acknowledge();

 signals:
  void fileDidChange();
  /// The file was deleted or moved away, and nothing took its place meanwhile. Its coming back is a change.
  void fileDidDisappear();

 private:
  struct Look;
  /// Blocks; any thread.
  static Look lookAt(const Reader& read, const QString& path);
  /// A file that was replaced is no longer watched; and the folder tells when it comes back.
  void watchAgain();
  /// Reads the file in the background; finishLook() decides.
  void look(bool acknowledges = false);
  void finishLook(const Look& look, int turn, bool acknowledges);

  QString path_;
  Reader read_;
  QFileSystemWatcher watcher_;
  QTimer settling_;
  QByteArray known_;  ///< digest of the bytes known last
  int turn_ = 0;      ///< looks that were begun; the answer of an older one is dropped
  QThreadPool thread_;
};

}  // namespace norvex
