#include "protocol/cbor_fields.h"

#include <QCborArray>
#include <QCborStreamReader>

#include <cmath>

namespace norvex {
namespace {

constexpr int kMaximumDepth = 4;
constexpr qint64 kFirstInstant = -62167219200000;  ///< the year 0, in milliseconds from 1970
constexpr qint64 kLastInstant = 253402300799999;   ///< the end of the year 9999
constexpr int kMaximumOffset = 14 * 60 * 60;

enum class Clock { Local = 0, Utc = 1, Offset = 2 };

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

QHash<QString, QString> CborFields::namedTexts(QLatin1String key, qsizetype maximumCount,
                                               qsizetype maximumLength) {
  QHash<QString, QString> texts;
  const QCborMap map = take(key, QCborValue::Map).toMap();
  if (map.size() > maximumCount) failed_ = true;
  for (auto it = map.begin(); it != map.end() && !failed_; ++it) {
    const QString name = it.key().toString(), text = it.value().toString();
    const bool good = it.key().isString() && it.value().isString() && !texts.contains(name);
    if (!good || name.size() > maximumLength || text.size() > maximumLength) failed_ = true;
    texts.insert(name, text);
  }
  return texts;
}

std::optional<QDateTime> CborFields::date(QLatin1String key) {
  if (!has(key)) return std::nullopt;
  CborFields inner = fields(key);
  const qint64 instant = inner.integer(QLatin1String("ms"), kFirstInstant, kLastInstant);
  const auto clock = Clock(inner.integer(QLatin1String("clock"), int(Clock::Local), int(Clock::Offset)));
  const int offset = int(inner.integer(QLatin1String("offset"), -kMaximumOffset, kMaximumOffset));
  if (!inner.complete()) failed_ = true;
  if (clock == Clock::Local) return QDateTime::fromMSecsSinceEpoch(instant);
  if (clock == Clock::Utc) return QDateTime::fromMSecsSinceEpoch(instant, Qt::UTC);
  return QDateTime::fromMSecsSinceEpoch(instant, Qt::OffsetFromUTC, offset);
}

QCborMap cborFromNamedTexts(const QHash<QString, QString>& texts, qsizetype maximumCount,
                            qsizetype maximumLength) {
  QCborMap map;
  for (auto it = texts.begin(); it != texts.end() && map.size() < maximumCount; ++it)
    map.insert(clipped(it.key(), maximumLength), clipped(it.value(), maximumLength));
  return map;
}

QCborMap cborFromDate(const QDateTime& date) {
  const Clock clock = date.timeSpec() == Qt::LocalTime ? Clock::Local
                      : date.timeSpec() == Qt::UTC     ? Clock::Utc
                                                       : Clock::Offset;
  return {{QLatin1String("ms"), date.toMSecsSinceEpoch()},
          {QLatin1String("clock"), int(clock)},
          {QLatin1String("offset"), clock == Clock::Offset ? date.offsetFromUtc() : 0}};
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
