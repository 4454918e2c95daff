// What the attributes of an SVG's elements and its style sheets tell about drawing it.
#pragma once

#include <QString>

#include "base/result.h"
#include "worker/svg/inspection/svg_inspection.h"
#include "worker/svg/inspection/svg_nesting.h"

namespace norvex::engine {

struct SvgAttribute {
  QString name, prefix, value;  ///< the value with its entities expanded
};

/// Notes in an inspection and in what refers to what, which outlive this, what each attribute says. All fail
/// with Limit: text of more than maximumSvgFont, a matrix of more than maximumFilterMatrix numbers, selectors
/// that nest deeper than maximumSelectorDepth.
class SvgAttributes {
 public:
  SvgAttributes(SvgInspection& found, SvgNesting& nesting) : found_(found), nesting_(nesting) {}

  /// The size of text that it names, in user units whatever its unit is; 0: none.
  [[nodiscard]] Result<double> lookAt(const QString& element, const SvgAttribute& attribute);
  /// Whether it names something in another file, or is a document of its own.
  void lookAtReference(const QString& element, const SvgAttribute& attribute);
  /// The largest size of text in it.
  [[nodiscard]] Result<double> lookAtStyleSheet(const QString& css);

 private:
  void lookAtEffects(const SvgAttribute& attribute);
  void noteRadius(const QString& value);
  void followUrls(const QString& value);

  SvgInspection& found_;
  SvgNesting& nesting_;
};

}  // namespace norvex::engine
