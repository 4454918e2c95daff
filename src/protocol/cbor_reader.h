// CborReader: reads the fields of one CBOR map strictly, for messages from a process that may be hostile.
#pragma once

#include <QByteArray>
#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QDateTime>
#include <QHash>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <utility>

#include "base/affine_transform.h"

namespace norvex {

/// A map whose every field must be asked for exactly once. The first wrong field fails the whole map: from
/// then on every value is a harmless one and complete() is false, so that a reader needs one check at its
/// end. Not thread-safe.
class CborReader {
 public:
  using Key = QLatin1String;
  static constexpr bool writes = false;

  /// Only plain maps are parsed: definite lengths, text keys, no tags, nesting of a few levels. Anything else
  /// gives fields that have failed.
  static CborReader parse(const QByteArray& cbor);
  explicit CborReader(QCborMap map) : map_(std::move(map)) {}

  template <typename Int>
  void integer(Key key, Int& value, qint64 minimum, qint64 maximum) {
    value = Int(integerWithin(key, minimum, maximum));
  }
  template <typename Enum>
  void oneOf(Key key, Enum& value, Enum first, Enum last) {
    value = Enum(integerWithin(key, qint64(first), qint64(last)));
  }
  /// Finite, too.
  void number(Key key, double& value, double minimum, double maximum);
  void boolean(Key key, bool& value);
  void text(Key key, QString& text, qsizetype maximumLength);
  void texts(Key key, QStringList& texts, qsizetype maximumCount, qsizetype maximumLength);
  void bytes(Key key, QByteArray& bytes, qsizetype maximumSize);
  /// Texts by name.
  void namedTexts(Key key, QHash<QString, QString>& texts, qsizetype maximumCount, qsizetype maximumLength);
  /// A moment; nothing when the field is absent.
  void date(Key key, std::optional<QDateTime>& date);
  /// Six numbers, each at most `maximum` away from 0.
  void matrix(Key key, AffineTransform& matrix, double maximum);
  /// Four numbers, each at most `maximum` away from 0: x, y, width and height; the latter two not negative.
  void rect(Key key, QRectF& rect, double maximum);
  /// The size of such a rectangle.
  void extent(Key key, QSizeF& size, double maximum);
  /// Two sides from 1.
  void size(Key key, int& width, int& height, int maximumSide);
  void size(Key key, QSize& size, int maximumSide) {
    this->size(key, size.rwidth(), size.rheight(), maximumSide);
  }
  /// Rectangles one after the other: of each element those that are named, or the elements themselves.
  template <typename T, typename... Rects>
  void rects(Key key, QList<T>& list, qsizetype maximumCount, double maximum, Rects T::*... members) {
    constexpr qsizetype each = std::max<qsizetype>(1, sizeof...(members));
    const QList<QRectF> all = rectsOf(key, maximumCount * each, maximum);
    require(all.size() % each == 0);
    list.clear();
    for (qsizetype i = 0; i + each <= all.size();) {
      T element;
      if constexpr (sizeof...(members) > 0)
        ((element.*members = all.at(i++)), ...);
      else
        element = all.at(i++);
      list.append(element);
    }
  }
  /// `field` reads the value, if the field is there.
  template <typename T, typename Field>
  void optional(Key key, std::optional<T>& value, Field&& field) {
    value.reset();
    if (map_.contains(key)) field(value.emplace());
  }
  /// A map inside the map, read by the fields() of its value and checked like this one.
  template <typename T>
  void nested(Key key, T& value) {
    CborReader inner(take(key, QCborValue::Map).toMap());
    fields(inner, value);
    require(inner.complete());
  }
  /// Maps one after the other, each read as nested() reads one.
  template <typename T>
  void records(Key key, QList<T>& list, qsizetype maximumCount) {
    list.clear();
    for (const QCborValue& value : array(key, maximumCount)) {
      require(value.isMap());
      CborReader inner(value.toMap());
      T element;
      fields(inner, element);
      require(inner.complete());
      list.append(element);
    }
  }
  /// A condition of the values; where it fails, the map is wrong.
  void require(bool condition) { failed_ = failed_ || !condition; }

  /// True if every field was right and none is left over. REQUIRES that all fields have been asked for.
  [[nodiscard]] bool complete() const { return !failed_ && asked_ == map_.size(); }

 private:
  QCborValue take(Key key, QCborValue::Type type);
  qint64 integerWithin(Key key, qint64 minimum, qint64 maximum);
  QCborArray array(Key key, qsizetype maximumCount);
  QList<QRectF> rectsOf(Key key, qsizetype maximumCount, double maximum);

  QCborMap map_;
  qsizetype asked_ = 0;
  bool failed_ = false;
};

}  // namespace norvex
