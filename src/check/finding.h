// The findings of a check of a picture, as values.
#pragma once

#include <QList>
#include <QRectF>
#include <QString>

#include <optional>
#include <string_view>

#include "check/rule_table.h"

namespace norvex {

/// One thing that is wrong with a picture, or worth knowing of it.
struct Finding {
  const RuleRow* rule = nullptr;  ///< a row of ruleTable; never null in a list of findings
  Severity severity = Severity::Note;
  QString sentence;         ///< without the file's name, without a full stop at its end
  std::optional<int> line;  ///< of the PostScript or SVG text, from 1
  QString object;           ///< a font, an image, an ink, a comment; may be empty
  std::optional<QRectF>
      rect;      ///< picture coordinates: points, origin at the picture's lower-left corner, y up
  int page = 0;  ///< from 1; 0: the document has one page, or it is of all of them
};

using Findings = QList<Finding>;

/// A finding of the rule with its own severity: finding(rule("eps.bounding-box.missing"), …). An identifier
/// that is not in the table does not compile.
[[nodiscard]] inline Finding finding(const RuleRow& rule, const QString& sentence,
                                     const std::optional<int>& line = {}, const QString& object = {},
                                     const std::optional<QRectF>& rect = {}) {
  return {&rule, rule.severity, sentence, line, object, rect, 0};
}

/// True if one of them is of the rule.
[[nodiscard]] bool hasFinding(const Findings& findings, std::string_view identifier);

/// "error", "warning" or "note".
[[nodiscard]] QString nameOf(Severity severity);
/// Nothing for another word.
[[nodiscard]] std::optional<Severity> severityNamed(const QString& name);

}  // namespace norvex
