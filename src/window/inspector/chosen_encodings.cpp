#include "window/inspector/chosen_encodings.h"

#include <QSettings>
#include <QStringList>

#include "base/state_folder.h"
#include "document/file_identity.h"
#include "metadata/text_encoding.h"

namespace norvex {
namespace {

constexpr qsizetype kKept = 200;
const QString kFiles = QStringLiteral("files");

QSettings settings() {
  return QSettings(stateFolder() + QStringLiteral("/encodings.ini"), QSettings::IniFormat);
}

/// Entries are "NAME PATH": names have no blanks.
QString pathOf(const QString& entry) {
  return entry.section(u' ', 1);
}

}  // namespace

QString chosenEncoding(const QString& path) {
  if (path.isEmpty()) return {};
  const QString wanted = fileIdentity(path);
  const QStringList entries = settings().value(kFiles).toStringList();
  for (const QString& entry : entries) {
    if (pathOf(entry) != wanted) continue;
    const QString name = entry.section(u' ', 0, 0);
    return encodingNames().contains(name) ? name : QString();
  }
  return {};
}

void rememberEncoding(const QString& path, const QString& encodingName) {
  if (path.isEmpty()) return;
  const QString wanted = fileIdentity(path);
  QSettings file = settings();
  QStringList entries = file.value(kFiles).toStringList();
  entries.removeIf([&](const QString& entry) { return pathOf(entry) == wanted; });
  if (!encodingName.isEmpty()) entries.prepend(encodingName + u' ' + wanted);
  file.setValue(kFiles, entries.mid(0, kKept));
}

}  // namespace norvex
