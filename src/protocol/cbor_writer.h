// CborWriter: writes the fields of one CBOR map, in the form in which CborReader reads them.
#pragma once

#include <QCborArray>
#include <QCborMap>
#include <QDateTime>
#include <QHash>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

#include "base/affine_transform.h"

namespace norvex {

/// The functions are CborReader's, so that one list of fields serves both. Texts and lists are clipped to
/// what the reader takes; a number out of range is written, and refused there. Not thread-safe.
class CborWriter {
 public:
  using Key = QLatin1String;
  static constexpr bool writes = true;

  [[nodiscard]] const QCborMap& map() const { return map_; }

  void integer(Key key, qint64 value, qint64, qint64) { map_.insert(key, value); }
  template <typename Enum>
  void oneOf(Key key, Enum value, Enum, Enum) {
    map_.insert(key, qint64(value));
  }
  void number(Key key, double value, double, double) { map_.insert(key, value); }
  void boolean(Key key, bool value) { map_.insert(key, value); }
  void text(Key key, const QString& text, qsizetype maximumLength);
  void texts(Key key, const QStringList& texts, qsizetype maximumCount, qsizetype maximumLength);
  void bytes(Key key, const QByteArray& bytes, qsizetype) { map_.insert(key, bytes); }
  void namedTexts(Key key, const QHash<QString, QString>& texts, qsizetype maximumCount,
                  qsizetype maximumLength);
  void date(Key key, const std::optional<QDateTime>& date);
  void matrix(Key key, const AffineTransform& matrix, double maximum);
  void rect(Key key, const QRectF& rect, double maximum);
  void extent(Key key, const QSizeF& size, double maximum);
  void size(Key key, int width, int height, int maximumSide);
  void size(Key key, const QSize& size, int maximum) {
    this->size(key, size.width(), size.height(), maximum);
  }
  /// Each rectangle of each element, or the elements themselves.
  template <typename T, typename... Rects>
  void rects(Key key, const QList<T>& list, qsizetype maximumCount, double, Rects T::*... members) {
    QCborArray array;
    for (const T& element : list.mid(0, maximumCount)) {
      if constexpr (sizeof...(members) > 0)
        (append(array, element.*members), ...);
      else
        append(array, element);
    }
    map_.insert(key, array);
  }
  template <typename T, typename Field>
  void optional(Key, const std::optional<T>& value, Field&& field) {
    if (value) field(*value);
  }
  template <typename T>
  void nested(Key key, const T& value) {
    CborWriter inner;
    fields(inner, value);
    map_.insert(key, inner.map_);
  }
  template <typename T>
  void records(Key key, const QList<T>& list, qsizetype maximumCount) {
    QCborArray array;
    for (const T& element : list.mid(0, maximumCount)) {
      CborWriter inner;
      fields(inner, element);
      array.append(inner.map_);
    }
    map_.insert(key, array);
  }
  void require(bool) {}

 private:
  static void append(QCborArray& array, const QRectF& rect);

  QCborMap map_;
};

}  // namespace norvex
