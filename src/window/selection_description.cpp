#include "window/selection_description.h"

#include <QLabel>
#include <QStringList>

#include "base/localized_string.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_parts.h"

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

void showSelection(WindowParts& parts, const QString& start, const QString& end, const QString& area) {
  const QString description = selectionDescription(start, end, area);
  parts.viewWidget()->setAccessibleDescription(description);
  // The area has the focus, and is what a screen reader reads first.
  parts.scrollArea()->setAccessibleDescription(description);
  if (start.isEmpty()) {
    parts.startPoint->clear();
    parts.endPoint->clear();
    return;
  }
  double first = 0, second = 0;
  const auto read = [&](const QString& pair) {
    const QStringList numbers = pair.simplified().split(QChar(' '));
    bool ok = false;
    const double x = numbers.value(0).toDouble(&ok);
    if (!ok) return;
    first = x;
    const double y = numbers.value(1).toDouble(&ok);
    if (ok) second = y;
  };
  const auto shown = [&] { return QString::asprintf("(%9.2f,%9.2f)", first, second); };
  read(start);
  parts.startPoint->setText(shown());
  if (end.isEmpty()) return parts.endPoint->clear();
  read(end);
  parts.endPoint->setText(shown());
}

}  // namespace norvex
