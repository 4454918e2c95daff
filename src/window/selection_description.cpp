#include "window/selection_description.h"

#include <QStringList>

#include "base/localized_string.h"

namespace norvex {

QString selectionDescription(const QString& start, const QString& end, const QString& area) {
  const auto words = [](const QString& pair) { return pair.simplified().split(u' '); };
  const QStringList from = words(start), to = words(end), size = words(area);
  if (from.size() != 2) return localizedString("Nothing is selected.");
  if (to.size() != 2 || size.size() != 2)
    return localizedString("The selection starts at %1, %2.").arg(from[0], from[1]);
  return localizedString("Selected from %1, %2 to %3, %4: %5 by %6 points.")
      .arg(from[0], from[1], to[0], to[1], size[0], size[1]);
}

}  // namespace norvex
