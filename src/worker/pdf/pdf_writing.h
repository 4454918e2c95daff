// Writing a PDF with qpdf: the catalogue cut down to what drawing needs, reproducible bytes.
#pragma once

#include <QByteArray>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <vector>

namespace norvex::engine {

/// Makes `page` the only page and drops from the catalogue and the trailer whatever drawing does not need
/// (outlines, forms, names, metadata, document information); layers and output intents stay. The dropped
/// objects are not written.
void keepOnlyPage(QPDF& qpdf, QPDFObjectHandle page);
/// The same for several, in that order; each has the attributes that it inherits.
void keepOnlyPages(QPDF& qpdf, const std::vector<QPDFObjectHandle>& kept);

/// Streams that are compressed already are copied as they are. The file's identifier depends on its contents
/// alone.
[[nodiscard]] QByteArray writePdf(QPDF& qpdf);

/// For a file that is drawn at once and handed to nobody: nothing is compressed that was not, and it has no
/// identifier of its own.
[[nodiscard]] QByteArray writePdfToDraw(QPDF& qpdf);

/// [0 0 width height], for page boxes, in points.
[[nodiscard]] QPDFObjectHandle boxAtOrigin(double width, double height);

/// The document information's Producer of everything that is written here.
[[nodiscard]] QPDFObjectHandle producerText();

}  // namespace norvex::engine
