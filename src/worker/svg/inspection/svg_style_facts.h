// The facts of a style sheet, or a style attribute, that matter before anything is drawn.
#pragma once

#include <QString>

namespace norvex::engine {

struct SvgStyleFacts {
  int outsideReferences = 0;  ///< "@import" and url() of other files, each of which is never loaded
  int deepestBrackets = 0;    ///< round ones: functions and selectors within one another
  double largestFont = 0;     ///< the largest number after "font-size" and "font", whatever its unit
  bool namesSize = false;     ///< there is a "width" or "height", which may be the root's
};

/// Comments count for nothing; strings are not looked into.
[[nodiscard]] SvgStyleFacts svgStyleFacts(const QString& css);

/// A comment without an end goes on to the end.
[[nodiscard]] QString withoutComments(QStringView css);

/// The largest number in `text`, 0 without any; what is too large for a number is none.
[[nodiscard]] double largestNumber(const QString& text);

/// How many numbers the matrix of a filter has whose "order" is `order`: one number, or one for each side.
[[nodiscard]] double matrixSize(const QString& order);

}  // namespace norvex::engine
