// The line above and the line below a printed page.
#pragma once

#include <QDateTime>
#include <QFont>
#include <QLocale>
#include <QRectF>
#include <QString>

#include <optional>

#include "metadata/full_date.h"

class QPainter;

namespace norvex {

/// One line of text in up to three fields separated by tabs: at the left end, in the middle, at the right
/// end.
struct PageLine {
  QString text;
  QFont font;
};

/// The platform's own lines, whose font the ones below keep.
[[nodiscard]] PageLine defaultPageLine();

/// Date and time, in full and after the user's locale and calendar, at the right end. Nothing with a null
/// title. Any thread.
[[nodiscard]] std::optional<PageLine> pageHeader(const QString& title, const QDateTime& now,
                                                 const QLocale& locale = userDateLocale());
/// The title at the left end. Nothing with a null title. Any thread.
[[nodiscard]] std::optional<PageLine> pageFooter(const QString& title);

/// Draws `line` into `rect` (painter's coordinates, y down), each field elided to the room that it has.
void drawPageLine(QPainter& painter, const QRectF& rect, const PageLine& line);

}  // namespace norvex
