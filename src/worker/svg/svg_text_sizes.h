// How large the letters of an SVG document become.
#pragma once

#include <QList>
#include <QString>

namespace norvex::engine {

/// Follows the elements as they open and close. Rather says too much than too little: a size counts whatever
/// its unit is, that of a style sheet for every text, and an enlarged <use> for every text, too.
class SvgTextSizes {
 public:
  /// `element`: its name, empty where it is not SVG's. `fontSize`: its own, 0 where it says nothing.
  void open(const QString& element, const QString& transform, double fontSize);
  void close();
  void styleSheet(double largestFont);

  /// The largest product of a text's size, in user units, and the square of what transforms enlarge it by: so
  /// large are the letters that librsvg asks for. 0 without text.
  [[nodiscard]] double largest() const;

 private:
  struct Element {
    double enlargement = 1;
    double font = 16;  ///< what a text without a size has
  };
  QList<Element> open_;
  double text_ = 0, enlargement_ = 0, use_ = 1, styleSheet_ = 0;
};

}  // namespace norvex::engine
