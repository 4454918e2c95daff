// How large the letters of an SVG document become.
#pragma once

#include <QList>
#include <QString>

#include <algorithm>

#include "worker/svg/inspection/svg_stretching.h"

namespace norvex::engine {

/// Follows the elements as they open and close. Rather says too much than too little: a size counts whatever
/// its unit is, that of a style sheet for every text, and an enlarged <use> for every text, too.
class SvgTextSizes {
 public:
  /// `element`: its name, empty where it is not SVG's. `fontSize`: its own, 0 where it says nothing.
  void open(const QString& element, const QString& transform, double fontSize) {
    Element now = open_.isEmpty() ? Element() : open_.last();
    if (!transform.isEmpty()) now.enlargement *= enlargement(transform);
    if (fontSize > 0) now.font = fontSize;
    open_ << now;
    const double squared = now.enlargement * now.enlargement;
    if (element == QLatin1String("use")) use_ = std::max(use_, squared);
    if (element != QLatin1String("text") && element != QLatin1String("tspan")) return;
    enlargement_ = std::max(enlargement_, squared);
    text_ = std::max(text_, now.font * squared);
  }
  void close() {
    if (!open_.isEmpty()) open_.removeLast();
  }
  void styleSheet(double largestFont) { styleSheet_ = std::max(styleSheet_, largestFont); }

  /// The largest product of a text's size, in user units, and the square of what transforms enlarge it by: so
  /// large are the letters that librsvg asks for. 0 without text.
  [[nodiscard]] double largest() const { return std::max(text_, enlargement_ * styleSheet_) * use_; }

 private:
  struct Element {
    double enlargement = 1;
    double font = 16;  ///< what a text without a size has
  };
  QList<Element> open_;
  double text_ = 0, enlargement_ = 0, use_ = 1, styleSheet_ = 0;
};

}  // namespace norvex::engine
