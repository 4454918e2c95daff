// Every dictionary and every array of a PDF.
#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <functional>

namespace norvex::engine {

/// Calls `visit` with every dictionary of the file, those of streams and those inside other objects included,
/// each once; whether anything refers to it does not matter. What is very deeply nested is passed over.
/// Throws as qpdf does.
void visitDictionaries(QPDF& qpdf, const std::function<void(QPDFObjectHandle dictionary)>& visit);

/// The same for every array.
void visitArrays(QPDF& qpdf, const std::function<void(QPDFObjectHandle array)>& visit);

}  // namespace norvex::engine
