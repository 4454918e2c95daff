#include "worker/svg/svg_text_sizes.h"

#include <algorithm>

#include "worker/svg/svg_stretching.h"

namespace norvex::engine {

void SvgTextSizes::open(const QString& element, const QString& transform, double fontSize) {
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

void SvgTextSizes::close() {
  if (!open_.isEmpty()) open_.removeLast();
}

void SvgTextSizes::styleSheet(double largestFont) {
  styleSheet_ = std::max(styleSheet_, largestFont);
}

double SvgTextSizes::largest() const {
  return std::max(text_, enlargement_ * styleSheet_) * use_;
}

}  // namespace norvex::engine
