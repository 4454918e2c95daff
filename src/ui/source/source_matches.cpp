#include "ui/source/source_matches.h"

#include <QStringMatcher>

#include <algorithm>

namespace norvex {

SourceMatches::SourceMatches(const QString& text, const QString& needle) : length_(needle.size()) {
  if (needle.isEmpty()) return;
  const QStringMatcher matcher(needle, Qt::CaseInsensitive);
  for (qsizetype at = matcher.indexIn(text); at >= 0; at = matcher.indexIn(text, at + length_))
    starts_.append(at);
}

std::optional<qsizetype> SourceMatches::at(qsizetype position) const {
  if (starts_.isEmpty()) return std::nullopt;
  const auto found = std::lower_bound(starts_.cbegin(), starts_.cend(), position);
  return found == starts_.cend() ? 0 : found - starts_.cbegin();
}

std::optional<qsizetype> SourceMatches::before(qsizetype position) const {
  if (starts_.isEmpty()) return std::nullopt;
  const auto found = std::lower_bound(starts_.cbegin(), starts_.cend(), position);
  return (found == starts_.cbegin() ? starts_.cend() : found) - starts_.cbegin() - 1;
}

}  // namespace norvex
