// The extension of a file's name, as the panels and commands that give files their names count it.
#pragma once

#include <QString>

namespace norvex {

/// Without the dot; empty when there is none. The dot that hides a file begins no extension.
[[nodiscard]] inline QString pathExtension(const QString& path) {
  const QString name = path.section(u'/', -1);
  const qsizetype dot = name.lastIndexOf(u'.');
  return dot > 0 ? name.mid(dot + 1) : QString();
}

[[nodiscard]] inline QString pathWithoutExtension(const QString& path) {
  const QString extension = pathExtension(path);
  return extension.isEmpty() ? path : path.chopped(extension.size() + 1);
}

}  // namespace norvex
