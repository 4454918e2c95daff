#include "application/recent_files.h"

#include <QFileInfo>
#include <QSettings>
#include <QStringList>

namespace norvex {
namespace {

const QString kKey = QStringLiteral("RecentFiles");

}  // namespace

RecentFiles::RecentFiles(QSettings& settings, QObject* parent) : QObject(parent), settings_(settings) {}

void RecentFiles::add(const QUrl& url) {
  if (!url.isLocalFile()) return;
  const QString path = QFileInfo(url.toLocalFile()).absoluteFilePath();
  QStringList paths = settings_.value(kKey).toStringList();
  paths.removeAll(path);
  paths.prepend(path);
  store(paths.mid(0, maximumCount));
}

void RecentFiles::remove(const QUrl& url) {
  QStringList paths = settings_.value(kKey).toStringList();
  if (paths.removeAll(QFileInfo(url.toLocalFile()).absoluteFilePath()) > 0) store(paths);
}

void RecentFiles::clear() {
  store({});
}

QList<QUrl> RecentFiles::urls() const {
  QList<QUrl> urls;
  // The settings may have been edited by hand: the bounds hold here too.
  for (const QString& path : settings_.value(kKey).toStringList().mid(0, maximumCount))
    if (!path.isEmpty()) urls << QUrl::fromLocalFile(path);
  return urls;
}

QString RecentFiles::lastFolder() const {
  for (const QUrl& url : urls()) {
    const QFileInfo folder(QFileInfo(url.toLocalFile()).absolutePath());
    if (folder.isDir()) return folder.filePath();
  }
  return {};
}

void RecentFiles::store(const QStringList& paths) {
  settings_.setValue(kKey, paths);
  emit changed();
}

}  // namespace norvex
