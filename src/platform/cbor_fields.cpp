#include "platform/cbor_fields.h"

#include <QCborArray>
#include <QCborStreamReader>

#include <cmath>

namespace norvex {
namespace {

constexpr int kMaximumDepth = 4;

/// Walks over one value without building it. What our own encoder never writes is refused here, before Qt
/// turns tagged values into dates, addresses and patterns with parsers of their own.
bool isPlain(QCborStreamReader& reader, int depth) {
  if (reader.lastError() != QCborError::NoError || depth > kMaximumDepth) return false;
  if (reader.isContainer()) {
    if (!reader.isLengthKnown()) return false;
    if (!reader.enterContainer()) return false;
    while (reader.lastError() == QCborError::NoError && reader.hasNext())
      if (!isPlain(reader, depth + 1)) return false;
    return reader.lastError() == QCborError::NoError && reader.leaveContainer();
  }
  if (reader.isString() || reader.isByteArray()) {
    if (!reader.isString() || !reader.isLengthKnown()) return false;
    QCborStreamReader::StringResult<QString> part;
    do {
      part = reader.readString();
    } while (part.status == QCborStreamReader::Ok);
    return part.status == QCborStreamReader::EndOfString;
  }
  const bool simple = reader.isInteger() || reader.isDouble() || reader.isBool();
  return simple && reader.next();
}

bool isInRange(double number, double maximum) {
  return std::isfinite(number) && std::abs(number) <= maximum;
}

}  // namespace

CborFields CborFields::parse(const QByteArray& cbor) {
  CborFields failed{QCborMap()};
  failed.fail();
  QCborStreamReader reader(cbor);
  if (!reader.isMap() || !isPlain(reader, 0) || reader.currentOffset() != cbor.size()) return failed;
  QCborParserError error;
  const QCborValue value = QCborValue::fromCbor(cbor, &error);
  if (error.error != QCborError::NoError || !value.isMap()) return failed;
  return CborFields(value.toMap());
}

QCborValue CborFields::take(QLatin1String key, QCborValue::Type type) {
  const QCborValue value = map_.value(key);
  ++asked_;
  if (value.type() == type) return value;
  failed_ = true;
  return {};
}

qint64 CborFields::integer(QLatin1String key, qint64 minimum, qint64 maximum) {
  const QCborValue value = take(key, QCborValue::Integer);
  const qint64 number = value.toInteger(minimum);
  if (number >= minimum && number <= maximum) return number;
  failed_ = true;
  return minimum;
}

double CborFields::number(QLatin1String key, double maximum) {
  const double number = take(key, QCborValue::Double).toDouble();
  if (isInRange(number, maximum)) return number;
  failed_ = true;
  return 0;
}

bool CborFields::boolean(QLatin1String key) {
  const QCborValue value = map_.value(key);
  ++asked_;
  if (!value.isBool()) failed_ = true;
  return value.toBool();
}

QString CborFields::text(QLatin1String key, qsizetype maximumLength) {
  const QString text = take(key, QCborValue::String).toString();
  if (text.size() <= maximumLength) return text;
  failed_ = true;
  return {};
}

QStringList CborFields::texts(QLatin1String key, qsizetype maximumCount, qsizetype maximumLength) {
  QStringList texts;
  for (const QCborValue& value : array(key, maximumCount)) {
    if (!value.isString() || value.toString().size() > maximumLength) failed_ = true;
    if (failed_) return {};
    texts << value.toString();
  }
  return texts;
}

QRectF CborFields::rect(QLatin1String key, double maximum) {
  const std::optional<QRectF> rect = rectFromCbor(take(key, QCborValue::Array), maximum);
  if (!rect) failed_ = true;
  return rect.value_or(QRectF());
}

QSize CborFields::size(QLatin1String key, int maximumSide) {
  const QCborArray sides = array(key, 2);
  const auto isSide = [&](const QCborValue& side) {
    return side.isInteger() && side.toInteger() >= 1 && side.toInteger() <= maximumSide;
  };
  if (sides.size() == 2 && isSide(sides.at(0)) && isSide(sides.at(1)))
    return {int(sides.at(0).toInteger()), int(sides.at(1).toInteger())};
  failed_ = true;
  return {};
}

QCborArray CborFields::array(QLatin1String key, qsizetype maximumCount) {
  const QCborArray array = take(key, QCborValue::Array).toArray();
  if (array.size() <= maximumCount) return array;
  failed_ = true;
  return {};
}

CborFields CborFields::fields(QLatin1String key) {
  CborFields inner(take(key, QCborValue::Map).toMap());
  inner.failed_ = failed_;
  return inner;
}

QCborMap CborFields::map(QLatin1String key, qsizetype maximumCount) {
  const QCborMap map = take(key, QCborValue::Map).toMap();
  if (map.size() <= maximumCount) return map;
  failed_ = true;
  return {};
}

QCborArray cborFromRect(const QRectF& rect) {
  return {rect.x(), rect.y(), rect.width(), rect.height()};
}

std::optional<QRectF> rectFromCbor(const QCborValue& value, double maximum) {
  const QCborArray numbers = value.toArray();
  if (numbers.size() != 4) return std::nullopt;
  for (const QCborValue& number : numbers)
    if (!number.isDouble() || !isInRange(number.toDouble(), maximum)) return std::nullopt;
  const QRectF rect(numbers.at(0).toDouble(), numbers.at(1).toDouble(), numbers.at(2).toDouble(),
                    numbers.at(3).toDouble());
  if (rect.width() < 0 || rect.height() < 0) return std::nullopt;
  return rect;
}

QString clipped(const QString& text, qsizetype maximumLength) {
  if (text.size() <= maximumLength) return text;
  const bool halves = maximumLength > 0 && text.at(maximumLength - 1).isHighSurrogate();
  return text.left(halves ? maximumLength - 1 : maximumLength);
}

}  // namespace norvex
