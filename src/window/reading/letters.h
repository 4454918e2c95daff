// The letters of a page as places: which lie where, and what a run of them covers.
#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

#include "protocol/page_text.h"

namespace norvex {

/// A run of UTF-16 units of a page's text.
struct LetterRun {
  qsizetype from = 0, length = 0;

  [[nodiscard]] bool isEmpty() const { return length <= 0; }
  friend bool operator==(const LetterRun&, const LetterRun&) = default;
};

/// Rectangles that cover the letters of the run, one for each piece of a line. Picture coordinates.
[[nodiscard]] QList<QRectF> placesOf(const PageText& page, const LetterRun& run);

/// The letter at `point` (picture coordinates), or the nearest one, those of the same line before others; -1
/// for a page without letters.
[[nodiscard]] qsizetype letterNear(const PageText& page, const QPointF& point);

/// From one letter to another, both of them in it, in whichever order.
[[nodiscard]] LetterRun runBetween(const PageText& page, qsizetype one, qsizetype other);

/// Where `needle` stands, in order, whatever the case of letters. The end of a line counts as a blank.
[[nodiscard]] QList<LetterRun> runsWith(const PageText& page, const QString& needle);

/// The link at `point`, the uppermost of several; null: there is none.
[[nodiscard]] const PageLink* linkAt(const PageText& page, const QPointF& point);

}  // namespace norvex
