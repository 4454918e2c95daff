// The fonts and inks that an EPS header says the picture uses.
#pragma once

#include <QByteArrayView>
#include <QStringList>

namespace norvex {

/// As the comments say it, in their order, each once. Nothing is run: a header that is silent gives nothing.
struct EpsResources {
  QStringList fonts;  ///< %%DocumentFonts, %%DocumentNeededFonts, …SuppliedFonts, and "font" of …Resources
  QStringList colors;  ///< %%DocumentProcessColors, then %%DocumentCustomColors
};

/// Reads the comments of an EPS source, plain or binary, with their continuation lines: those at the start of
/// a line and before %%EndComments, and where "(atend)" stands those behind %%Trailer. Thread-safe.
[[nodiscard]] EpsResources epsResources(QByteArrayView source);

}  // namespace norvex
