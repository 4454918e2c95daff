#include "check/finding.h"

#include <algorithm>

namespace norvex {

bool hasFinding(const Findings& findings, std::string_view identifier) {
  return std::any_of(findings.begin(), findings.end(),
                     [&](const Finding& one) { return one.rule->identifier == identifier; });
}

QString nameOf(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return QStringLiteral("error");
    case Severity::Warning:
      return QStringLiteral("warning");
    case Severity::Note:
      break;
  }
  return QStringLiteral("note");
}

std::optional<Severity> severityNamed(const QString& name) {
  for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note})
    if (nameOf(severity) == name) return severity;
  return std::nullopt;
}

}  // namespace norvex
