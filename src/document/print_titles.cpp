#include "document/print_titles.h"

#include <QFileInfo>

namespace norvex {

QString printJobTitle(const QUrl& fileURL, const QString& displayName) {
  if (fileURL.isEmpty()) return displayName;
  const QFileInfo file(fileURL.path(QUrl::FullyDecoded));
  // A name that is nothing but a dot and an "extension" is a whole name.
  return file.completeBaseName().isEmpty() ? file.fileName() : file.completeBaseName();
}

QString printPageTitle(const QUrl& fileURL, const QString& untitled) {
  if (fileURL.isEmpty()) return untitled;
  return QUrl::fromPercentEncoding(fileURL.toEncoded(QUrl::FullyEncoded));
}

}  // namespace norvex
