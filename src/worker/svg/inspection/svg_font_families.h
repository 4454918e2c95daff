// The font families that an SVG document names for its texts.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace norvex::engine {

/// Fed with the elements and style sheets in document order; asked once at the end.
class SvgFontFamilies {
 public:
  /// An element with a local name begins.
  void element(const QString& name);
  /// An attribute of the element that began last.
  void attribute(const QString& name, const QString& value);
  /// The text of a style sheet, or a part of it that ends between two declarations.
  void styleSheet(QStringView css);

  /// Each family once, without quotes, as it is first named. Empty without a text: drawing programs name
  /// families on shapes too.
  [[nodiscard]] QStringList families() const { return hasText_ ? families_ : QStringList(); }
  /// The lists that they stand in, each once: the first that is there is meant.
  [[nodiscard]] QList<QStringList> lists() const { return hasText_ ? lists_ : QList<QStringList>(); }

 private:
  void declarations(QStringView css);
  void list(QStringView names);
  void shorthand(QStringView value);

  QStringList families_;
  QList<QStringList> lists_;
  bool hasText_ = false;
  bool drawsShape_ =
      false;  ///< the element that began last is a shape or an image: what it says of fonts means nothing
};

}  // namespace norvex::engine
