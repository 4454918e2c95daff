// How pictures are told, and asked for, that are only what a program had drawn when it stopped.
#pragma once

#include <QLatin1String>
#include <QStringList>

#include <algorithm>

namespace norvex {

/// The words before an interpreter's own in the sentence on a program that stopped. A warning that begins so
/// stands in an answer that shows what had been drawn until then; no other warning does.
inline constexpr QLatin1String kProgramStopped("PostScript error: ");

/// The page of a PostScript picture that shows what its program had drawn when the last drawing was
/// cancelled, as far as that is known: asking for it runs nothing. There is none before such a cancel.
inline constexpr int begunPage = 1;

/// The first sentence of `warnings` that tells so, taken from them; empty: there is none.
[[nodiscard]] inline QString takeProgramStop(QStringList& warnings) {
  const auto told = std::find_if(warnings.begin(), warnings.end(),
                                 [](const QString& warning) { return warning.startsWith(kProgramStopped); });
  if (told == warnings.end()) return {};
  const QString sentence = *told;
  warnings.erase(told);
  return sentence;
}

}  // namespace norvex
