// Which names of a tree are wanted.
#pragma once

#include <QByteArray>
#include <QList>

namespace norvex {

/// Shell patterns (fnmatch(3)): one with a slash is compared with the whole path below the tree's root, and
/// its * goes over slashes; one without is compared with the last name alone. A value.
struct NameFilter {
  QList<QByteArray> include;  ///< empty: the extensions of pictures that can be opened, in any case
  QList<QByteArray> exclude;

  /// A file; `below`: its path below the root.
  [[nodiscard]] bool takes(const QByteArray& below) const;
  /// A file or folder that nobody is to look at.
  [[nodiscard]] bool excludes(const QByteArray& below) const;
};

}  // namespace norvex
