#include "cli/archive/names/name_filter.h"

#include <fnmatch.h>

#include <algorithm>

#include "types/picture_format.h"

namespace norvex {
namespace {

bool matches(const QByteArray& pattern, const QByteArray& below) {
  const bool whole = pattern.contains('/');
  const QByteArray subject = whole ? below : below.mid(below.lastIndexOf('/') + 1);
  return ::fnmatch(pattern.constData(), subject.constData(), 0) == 0;
}

bool anyMatches(const QList<QByteArray>& patterns, const QByteArray& below) {
  return std::any_of(patterns.begin(), patterns.end(),
                     [&](const QByteArray& pattern) { return matches(pattern, below); });
}

bool isNamedAsPicture(const QByteArray& below) {
  const qsizetype dot = below.lastIndexOf('.');
  if (dot < 0 || dot < below.lastIndexOf('/')) return false;
  const auto format = formatOfExtension(below.mid(dot + 1).toLower().toStdString());
  return format && rowOf(*format).kind != DocumentKind::Other;
}

}  // namespace

bool NameFilter::takes(const QByteArray& below) const {
  return include.isEmpty() ? isNamedAsPicture(below) : anyMatches(include, below);
}

bool NameFilter::excludes(const QByteArray& below) const {
  return anyMatches(exclude, below);
}

}  // namespace norvex
