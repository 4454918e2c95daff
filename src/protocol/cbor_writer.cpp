#include "protocol/cbor_writer.h"

#include "protocol/cbor_clock.h"

namespace norvex {
namespace {

/// At most `maximumLength` UTF-16 units of the text, never half of a surrogate pair.
QString clipped(const QString& text, qsizetype maximumLength) {
  if (text.size() <= maximumLength) return text;
  const bool halves = maximumLength > 0 && text.at(maximumLength - 1).isHighSurrogate();
  return text.left(halves ? maximumLength - 1 : maximumLength);
}

QCborArray arrayOf(const QRectF& rect) {
  return {rect.x(), rect.y(), rect.width(), rect.height()};
}

}  // namespace

void CborWriter::text(Key key, const QString& text, qsizetype maximumLength) {
  map_.insert(key, clipped(text, maximumLength));
}

void CborWriter::texts(Key key, const QStringList& texts, qsizetype maximumCount, qsizetype maximumLength) {
  QCborArray array;
  for (const QString& text : texts.mid(0, maximumCount)) array.append(clipped(text, maximumLength));
  map_.insert(key, array);
}

void CborWriter::namedTexts(Key key, const QHash<QString, QString>& texts, qsizetype maximumCount,
                            qsizetype maximumLength) {
  QCborMap map;
  for (auto it = texts.begin(); it != texts.end() && map.size() < maximumCount; ++it)
    map.insert(clipped(it.key(), maximumLength), clipped(it.value(), maximumLength));
  map_.insert(key, map);
}

void CborWriter::date(Key key, const std::optional<QDateTime>& date) {
  if (!date || !date->isValid()) return;
  const CborClock clock = date->timeSpec() == Qt::LocalTime ? CborClock::Local
                          : date->timeSpec() == Qt::UTC     ? CborClock::Utc
                                                            : CborClock::Offset;
  map_.insert(key, QCborMap{{Key("ms"), date->toMSecsSinceEpoch()},
                            {Key("clock"), int(clock)},
                            {Key("offset"), clock == CborClock::Offset ? date->offsetFromUtc() : 0}});
}

void CborWriter::matrix(Key key, const AffineTransform& t, double) {
  map_.insert(key, QCborArray{t.m11(), t.m12(), t.m21(), t.m22(), t.dx(), t.dy()});
}

void CborWriter::rect(Key key, const QRectF& rect, double) {
  map_.insert(key, arrayOf(rect));
}

void CborWriter::extent(Key key, const QSizeF& size, double) {
  map_.insert(key, arrayOf(QRectF(QPointF(0, 0), size)));
}

void CborWriter::size(Key key, int width, int height, int) {
  map_.insert(key, QCborArray{width, height});
}

void CborWriter::append(QCborArray& array, const QRectF& rect) {
  array.append(arrayOf(rect));
}

}  // namespace norvex
