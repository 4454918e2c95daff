#include "application/folder_neighbours.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

#include "picture/open_picture.h"
#include "types/uniform_type.h"

namespace norvex {
namespace {

bool isPictureName(const QString& name) {
  const auto type = UTType::typeWithFilenameExtension(QFileInfo(name).suffix());
  return type && !pictureKindsForType(type->identifier()).isEmpty();
}

}  // namespace

QUrl neighbourOf(const QUrl& url, int step) {
  if (!url.isLocalFile()) return {};
  const QFileInfo file(url.toLocalFile());
  QStringList names = file.dir().entryList(QDir::Files | QDir::Readable);
  names.removeIf([&](const QString& name) { return name != file.fileName() && !isPictureName(name); });
  // The locale of no language knows neither numbers nor letter cases.
  QCollator order(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale());
  order.setNumericMode(true);
  order.setCaseSensitivity(Qt::CaseInsensitive);
  std::sort(names.begin(), names.end(), order);
  const qsizetype at = names.indexOf(file.fileName());
  const QString wanted = at < 0 ? QString() : names.value(at + step);
  return wanted.isEmpty() || wanted == file.fileName() ? QUrl()
                                                       : QUrl::fromLocalFile(file.dir().filePath(wanted));
}

}  // namespace norvex
