// FileWatcher: tells when a file on disk has become another one, and is whole again.
#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>

namespace norvex {

/// Watches one file, also across programs that save by renaming a new file over the old one. A change is told
/// when the file has stayed the same for the settling time, can be read and its bytes differ from those known
/// last. Main thread; bytes are read on a thread of its own.
class FileWatcher final : public QObject {
  Q_OBJECT
 public:
  static constexpr int defaultSettlingMilliseconds = 400;

  explicit FileWatcher(const QString& path, int settlingMilliseconds = defaultSettlingMilliseconds,
                       QObject* parent = nullptr);
  ~FileWatcher() override;

  [[nodiscard]] QString path() const { return path_; }
  /// The file as it is on disk now counts as known (it has been read).
  void acknowledge();

 signals:
  void fileDidChange();
  /// The file was deleted or moved away, and nothing took its place meanwhile. Its coming back is a change.
  void fileDidDisappear();

 private:
  struct Look;
  /// Blocks; any thread.
  static Look lookAt(const QString& path);
  /// A file that was replaced is no longer watched; and the folder tells when it comes back.
  void watchAgain();
  /// Reads the file in the background; finishLook() decides.
  void look();
  void finishLook(const Look& look, int turn);

  QString path_;
  QFileSystemWatcher watcher_;
  QTimer settling_;
  QByteArray known_;  ///< digest of the bytes known last
  int turn_ = 0;      ///< looks that were begun; the answer of an older one is dropped
  bool acknowledging_ = true;
  QThreadPool thread_;
};

}  // namespace norvex
