// CborFields: reads the fields of one CBOR map strictly, for messages from a process that may be hostile.
#pragma once

#include <QByteArray>
#include <QCborMap>
#include <QCborValue>
#include <QDateTime>
#include <QHash>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace norvex {

/// A map whose every field must be asked for exactly once. The first wrong field fails the whole map: from
/// then on every answer is a harmless default and complete() is false, so that a reader needs one check at
/// its end. Not thread-safe.
class CborFields {
 public:
  /// Only plain maps are parsed: definite lengths, text keys, no tags, nesting of a few levels. Anything else
  /// gives fields that have failed.
  static CborFields parse(const QByteArray& cbor);
  explicit CborFields(QCborMap map) : map_(std::move(map)) {}

  [[nodiscard]] bool has(QLatin1String key) const { return map_.contains(key); }
  qint64 integer(QLatin1String key, qint64 minimum, qint64 maximum);
  /// Finite, and at most `maximum` away from 0.
  double number(QLatin1String key, double maximum);
  bool boolean(QLatin1String key);
  QString text(QLatin1String key, qsizetype maximumLength);
  QStringList texts(QLatin1String key, qsizetype maximumCount, qsizetype maximumLength);
  /// Four numbers: x, y, width and height; the latter two not negative.
  QRectF rect(QLatin1String key, double maximum);
  QSize size(QLatin1String key, int maximumSide);
  QCborArray array(QLatin1String key, qsizetype maximumCount);
  /// A map inside the map, to be read and checked like this one.
  CborFields fields(QLatin1String key);
  /// Texts by name.
  QHash<QString, QString> namedTexts(QLatin1String key, qsizetype maximumCount, qsizetype maximumLength);
  /// A moment, as cborFromDate() writes it; nothing when the field is absent.
  std::optional<QDateTime> date(QLatin1String key);

  /// Marks the map as wrong for a reason that the caller found.
  void fail() { failed_ = true; }
  /// Whether every field was right and none is left over. REQUIRES that all fields have been asked for.
  [[nodiscard]] bool complete() const { return !failed_ && asked_ == map_.size(); }

 private:
  QCborValue take(QLatin1String key, QCborValue::Type type);

  QCborMap map_;
  qsizetype asked_ = 0;
  bool failed_ = false;
};

/// The array form in which rect() reads.
[[nodiscard]] QCborArray cborFromRect(const QRectF& rect);
[[nodiscard]] QCborMap cborFromDate(const QDateTime& date);
/// At most `maximumCount` of them, each clipped.
[[nodiscard]] QCborMap cborFromNamedTexts(const QHash<QString, QString>& texts, qsizetype maximumCount,
                                          qsizetype maximumLength);
/// The rectangle of such an array; nothing: wrong.
[[nodiscard]] std::optional<QRectF> rectFromCbor(const QCborValue& value, double maximum);
/// At most `maximumLength` UTF-16 units of the text, never half of a surrogate pair.
[[nodiscard]] QString clipped(const QString& text, qsizetype maximumLength);

}  // namespace norvex
