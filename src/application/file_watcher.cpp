#include "application/file_watcher.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <utility>

#include "base/background_work.h"
#include "picture/document_file.h"

namespace norvex {
namespace {

/// True if a file that is still being written could look like this. Only what every whole file of its kind
/// has is asked for: a PDF's end mark, an SVG's last bracket.
bool looksWhole(const QByteArray& bytes) {
  if (bytes.isEmpty()) return false;
  if (bytes.startsWith("%PDF-")) return bytes.last(qMin<qsizetype>(bytes.size(), 1024)).contains("%%EOF");
  if (bytes.startsWith('<')) return bytes.trimmed().endsWith('>');
  return true;
}

}  // namespace

/// The result of one reading of the file.
struct FileWatcher::Look {
  QByteArray digest;  ///< empty when the file cannot be read now
  bool whole = false;
};

FileWatcher::Look FileWatcher::lookAt(const Reader& read, const QString& path) {
  const Result<QByteArray> bytes = read(path);
  if (!bytes) return {};
  return {QCryptographicHash::hash(*bytes, QCryptographicHash::Sha1), looksWhole(*bytes)};
}

FileWatcher::FileWatcher(const QString& path, int settlingMilliseconds, QObject* parent)
    : FileWatcher(
          path, settlingMilliseconds, [](const QString& file) { return readDocumentFile(file); }, parent) {}

FileWatcher::FileWatcher(const QString& path, int settlingMilliseconds, Reader read, QObject* parent)
    : QObject(parent), path_(path), read_(std::move(read)) {
  thread_.setMaxThreadCount(1);
  settling_.setSingleShot(true);
  settling_.setInterval(settlingMilliseconds);
  connect(&settling_, &QTimer::timeout, this, [this] { look(); });
  const auto touched = [this] {
    watchAgain();
    ++turn_;
    settling_.start();
  };
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, touched);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this, touched] {
    // A folder changes for many reasons; only the file's coming back is news.
    if (!watcher_.files().contains(path_) && QFileInfo::exists(path_)) touched();
  });
  watchAgain();
  look(true);
}

FileWatcher::~FileWatcher() {
  thread_.clear();
  waitForWork(thread_);
}

void FileWatcher::watchAgain() {
  const QString folder = QFileInfo(path_).absolutePath();
  if (!watcher_.directories().contains(folder)) watcher_.addPath(folder);
  if (!watcher_.files().contains(path_) && QFileInfo::exists(path_)) watcher_.addPath(path_);
}

void FileWatcher::acknowledge() {
  look(true);
}

void FileWatcher::look(bool acknowledges) {
  const int turn = ++turn_;
  workInBackground(
      this, [read = read_, path = path_] { return lookAt(read, path); },
      [this, turn, acknowledges](const Look& result) { finishLook(result, turn, acknowledges); }, thread_);
}

void FileWatcher::finishLook(const Look& look, int turn, bool acknowledges) {
  // Also when the file was touched again meanwhile: the look that follows is to tell what has come since.
  if (acknowledges) known_ = look.digest;
  if (turn != turn_) return;  // the file was touched again; a later look follows
  watchAgain();
  if (acknowledges) return;
  if (look.digest.isEmpty() && !known_.isEmpty() && !QFileInfo::exists(path_)) {
    known_.clear();  // so that its coming back is news, whatever it holds then
    emit fileDidDisappear();
    return;
  }
  if (!look.whole || look.digest == known_)
    return;  // cannot be read now, half written (its next part is told), or only touched
  known_ = look.digest;
  emit fileDidChange();
}

}  // namespace norvex
