#include "window/reading/letters.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "ui/source/source_matches.h"

namespace norvex {
namespace {

/// Letters of a line follow each other so closely, in heights of them.
constexpr double kGap = 1.5;
/// How much farther off a letter of another line is than one of this line.
constexpr double kOtherLine = 100;

bool continues(const QRectF& line, const QRectF& letter) {
  const double shared = std::min(line.bottom(), letter.bottom()) - std::max(line.top(), letter.top());
  const double least = std::min(line.height(), letter.height());
  const double gap = std::max(letter.left() - line.right(), line.left() - letter.right());
  return shared > least / 2 && gap < kGap * least;
}

double outside(double value, double least, double most) {
  return std::max({least - value, value - most, 0.0});
}

}  // namespace

QList<QRectF> placesOf(const PageText& page, const LetterRun& run) {
  QList<QRectF> places;
  const qsizetype end = std::min(run.from + run.length, page.places.size());
  for (qsizetype i = std::max<qsizetype>(run.from, 0); i < end; ++i) {
    const QRectF& letter = page.places.at(i);
    if (letter.isEmpty()) continue;
    if (!places.isEmpty() && continues(places.constLast(), letter))
      places.last() |= letter;
    else
      places << letter;
  }
  return places;
}

qsizetype letterNear(const PageText& page, const QPointF& point) {
  qsizetype nearest = -1;
  double least = std::numeric_limits<double>::max();
  for (qsizetype i = 0; i < page.places.size(); ++i) {
    const QRectF& letter = page.places.at(i);
    if (letter.isEmpty()) continue;
    const double across = outside(point.x(), letter.left(), letter.right());
    const double along = outside(point.y(), letter.top(), letter.bottom()) * kOtherLine;
    const double far = std::hypot(across, along);
    if (far >= least) continue;
    least = far;
    nearest = i;
    if (far == 0) break;
  }
  return nearest;
}

LetterRun runBetween(const PageText& page, qsizetype one, qsizetype other) {
  if (one < 0 || other < 0) return {};
  const qsizetype from = std::min(one, other), last = std::max(one, other);
  const bool pair = last + 1 < page.text.size() && page.text.at(last).isHighSurrogate();
  return {from, last - from + (pair ? 2 : 1)};
}

QList<LetterRun> runsWith(const PageText& page, const QString& needle) {
  QString line = page.text;
  line.replace(u'\n', u' ');
  const SourceMatches matches(line, needle);
  QList<LetterRun> runs;
  for (const qsizetype start : matches.starts()) runs.append({start, matches.length()});
  return runs;
}

const PageLink* linkAt(const PageText& page, const QPointF& point) {
  for (auto link = page.links.crbegin(); link != page.links.crend(); ++link)
    if (link->rect.contains(point)) return &*link;
  return nullptr;
}

}  // namespace norvex
