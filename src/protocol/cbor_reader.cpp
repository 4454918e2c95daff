#include "protocol/cbor_reader.h"

#include <QCborStreamReader>

#include <cmath>

#include "protocol/cbor_clock.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

/// Values in one map, those inside others counted too. A page of text takes the most: a place is an array of
/// four numbers. A byte on the wire becomes sixteen in memory, so that bytes alone bound nothing.
constexpr qint64 kMostValues = 8 * limits::maximumLetters;

/// Walks over one value without building it. What our own encoder never writes is refused here, before Qt
/// turns tagged values into dates, addresses and patterns with parsers of their own. `left`: values that may
/// still come.
bool isPlain(QCborStreamReader& reader, int depth, qint64& left) {
  if (reader.lastError() != QCborError::NoError || depth > limits::maximumMessageDepth || --left < 0)
    return false;
  if (reader.isContainer()) {
    if (!reader.isLengthKnown()) return false;
    if (!reader.enterContainer()) return false;
    while (reader.lastError() == QCborError::NoError && reader.hasNext())
      if (!isPlain(reader, depth + 1, left)) return false;
    return reader.lastError() == QCborError::NoError && reader.leaveContainer();
  }
  if (reader.isByteArray()) {
    if (!reader.isLengthKnown()) return false;
    QCborStreamReader::StringResult<QByteArray> part;
    do {
      part = reader.readByteArray();
    } while (part.status == QCborStreamReader::Ok);
    return part.status == QCborStreamReader::EndOfString;
  }
  if (reader.isString()) {
    if (!reader.isLengthKnown()) return false;
    QCborStreamReader::StringResult<QString> part;
    do {
      part = reader.readString();
    } while (part.status == QCborStreamReader::Ok);
    return part.status == QCborStreamReader::EndOfString;
  }
  const bool simple = reader.isInteger() || reader.isDouble() || reader.isBool();
  return simple && reader.next();
}

bool isInRange(double number, double minimum, double maximum) {
  return std::isfinite(number) && number >= minimum && number <= maximum;
}

/// Nothing: wrong.
std::optional<QRectF> rectOf(const QCborValue& value, double maximum) {
  const QCborArray numbers = value.toArray();
  if (numbers.size() != 4) return std::nullopt;
  for (const QCborValue& number : numbers)
    if (!number.isDouble() || !isInRange(number.toDouble(), -maximum, maximum)) return std::nullopt;
  const QRectF rect(numbers.at(0).toDouble(), numbers.at(1).toDouble(), numbers.at(2).toDouble(),
                    numbers.at(3).toDouble());
  if (rect.width() < 0 || rect.height() < 0) return std::nullopt;
  return rect;
}

}  // namespace

CborReader CborReader::parse(const QByteArray& cbor) {
  CborReader failed{QCborMap()};
  failed.require(false);
  QCborStreamReader reader(cbor);
  qint64 left = kMostValues;
  if (!reader.isMap() || !isPlain(reader, 0, left) || reader.currentOffset() != cbor.size()) return failed;
  QCborParserError error;
  const QCborValue value = QCborValue::fromCbor(cbor, &error);
  if (error.error != QCborError::NoError || !value.isMap()) return failed;
  return CborReader(value.toMap());
}

QCborValue CborReader::take(Key key, QCborValue::Type type) {
  const QCborValue value = map_.value(key);
  ++asked_;
  if (value.type() == type) return value;
  failed_ = true;
  return {};
}

qint64 CborReader::integerWithin(Key key, qint64 minimum, qint64 maximum) {
  const qint64 number = take(key, QCborValue::Integer).toInteger(minimum);
  if (number >= minimum && number <= maximum) return number;
  failed_ = true;
  return minimum;
}

void CborReader::number(Key key, double& value, double minimum, double maximum) {
  value = take(key, QCborValue::Double).toDouble();
  if (isInRange(value, minimum, maximum)) return;
  failed_ = true;
  value = 0;
}

void CborReader::boolean(Key key, bool& value) {
  const QCborValue read = map_.value(key);
  ++asked_;
  require(read.isBool());
  value = read.toBool();
}

void CborReader::text(Key key, QString& text, qsizetype maximumLength) {
  text = take(key, QCborValue::String).toString();
  if (text.size() <= maximumLength) return;
  failed_ = true;
  text.clear();
}

void CborReader::bytes(Key key, QByteArray& bytes, qsizetype maximumSize) {
  bytes = take(key, QCborValue::ByteArray).toByteArray();
  if (bytes.size() <= maximumSize) return;
  failed_ = true;
  bytes.clear();
}

QCborArray CborReader::array(Key key, qsizetype maximumCount) {
  const QCborArray array = take(key, QCborValue::Array).toArray();
  if (array.size() <= maximumCount) return array;
  failed_ = true;
  return {};
}

void CborReader::texts(Key key, QStringList& texts, qsizetype maximumCount, qsizetype maximumLength) {
  texts.clear();
  for (const QCborValue& value : array(key, maximumCount)) {
    require(value.isString() && value.toString().size() <= maximumLength);
    if (failed_) return texts.clear();
    texts << value.toString();
  }
}

void CborReader::namedTexts(Key key, QHash<QString, QString>& texts, qsizetype maximumCount,
                            qsizetype maximumLength) {
  texts.clear();
  const QCborMap map = take(key, QCborValue::Map).toMap();
  require(map.size() <= maximumCount);
  for (auto it = map.begin(); it != map.end() && !failed_; ++it) {
    const QString name = it.key().toString(), text = it.value().toString();
    require(it.key().isString() && it.value().isString() && !texts.contains(name) &&
            name.size() <= maximumLength && text.size() <= maximumLength);
    texts.insert(name, text);
  }
}

void CborReader::date(Key key, std::optional<QDateTime>& date) {
  date.reset();
  if (!map_.contains(key)) return;
  CborReader inner(take(key, QCborValue::Map).toMap());
  qint64 instant = 0;
  auto clock = CborClock::Utc;
  int offset = 0;
  inner.integer(Key("ms"), instant, limits::firstInstant, limits::lastInstant);
  inner.oneOf(Key("clock"), clock, CborClock::Local, CborClock::Offset);
  inner.integer(Key("offset"), offset, -limits::maximumZoneSeconds, limits::maximumZoneSeconds);
  require(inner.complete());
  if (clock == CborClock::Local)
    date = QDateTime::fromMSecsSinceEpoch(instant);
  else if (clock == CborClock::Utc)
    date = QDateTime::fromMSecsSinceEpoch(instant, Qt::UTC);
  else
    date = QDateTime::fromMSecsSinceEpoch(instant, Qt::OffsetFromUTC, offset);
}

void CborReader::matrix(Key key, AffineTransform& matrix, double maximum) {
  const QCborArray numbers = array(key, 6);
  double m[6] = {};
  for (qsizetype i = 0; i < 6; ++i) {
    const QCborValue number = numbers.at(i);
    m[i] = number.toDouble();
    require(number.isDouble() && isInRange(m[i], -maximum, maximum));
  }
  matrix = {m[0], m[1], m[2], m[3], m[4], m[5]};
}

void CborReader::rect(Key key, QRectF& rect, double maximum) {
  const std::optional<QRectF> read = rectOf(take(key, QCborValue::Array), maximum);
  require(read.has_value());
  rect = read.value_or(QRectF());
}

void CborReader::extent(Key key, QSizeF& size, double maximum) {
  QRectF read;
  rect(key, read, maximum);
  size = read.size();
}

void CborReader::size(Key key, int& width, int& height, int maximumSide) {
  const QCborArray sides = array(key, 2);
  const auto isSide = [&](const QCborValue& side) {
    return side.isInteger() && side.toInteger() >= 1 && side.toInteger() <= maximumSide;
  };
  const bool good = sides.size() == 2 && isSide(sides.at(0)) && isSide(sides.at(1));
  require(good);
  width = good ? int(sides.at(0).toInteger()) : 0;
  height = good ? int(sides.at(1).toInteger()) : 0;
}

QList<QRectF> CborReader::rectsOf(Key key, qsizetype maximumCount, double maximum) {
  QList<QRectF> rects;
  for (const QCborValue& value : array(key, maximumCount)) {
    const std::optional<QRectF> rect = rectOf(value, maximum);
    require(rect.has_value());
    rects << rect.value_or(QRectF());
  }
  return rects;
}

}  // namespace norvex
