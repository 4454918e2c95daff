// The fonts and inks that an EPS header says the picture uses, and its separated plates.
#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>

namespace norvex {

/// A plate of a separated picture (DCS): another file, or a part of this one.
struct EpsPlate {
  QString ink;
  QString file;        ///< its name as it stands in the comment; empty: the plate is within this file
  qint64 offset = -1;  ///< bytes from the start of the program
  qint64 length = 0;
  bool operator==(const EpsPlate&) const = default;
};

/// As the comments say it, in their order, each once. Nothing is run: a header that is silent gives nothing.
struct EpsResources {
  QStringList fonts;  ///< %%DocumentFonts, %%DocumentNeededFonts, …SuppliedFonts, and "font" of …Resources
  QStringList colors;      ///< %%DocumentProcessColors, then %%DocumentCustomColors
  QList<EpsPlate> plates;  ///< %%CyanPlate and its like (DCS 1), %%PlateFile (DCS 2)
};

/// Reads the comments of an EPS source, plain or binary, with their continuation lines: those at the start of
/// a line and before %%EndComments, and where "(atend)" stands those behind %%Trailer. Thread-safe.
[[nodiscard]] EpsResources epsResources(QByteArrayView source);

/// What draws the picture itself: the program as far as the first plate within it. Borrowed.
[[nodiscard]] QByteArrayView compositeOf(QByteArrayView program);

}  // namespace norvex
