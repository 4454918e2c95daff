// The completeness of an EPS source: a transfer that broke off leaves a file that still opens and draws a
// part.
#pragma once

#include <QByteArray>
#include <QStringList>

namespace norvex {

/// One plain sentence for each thing that is missing at the end of an EPS source; empty for a whole one.
/// Found from the bytes alone, nothing is run: sections of a binary header, and plates, that reach past the
/// file's end, and a program without an end mark that stops where none does. Judged so that complete files of
/// careless writers (no %%EOF, no showpage) pass; a cut that looks like a proper end is not noticed.
/// Thread-safe.
[[nodiscard]] QStringList epsMissingParts(const QByteArray& source);

}  // namespace norvex
