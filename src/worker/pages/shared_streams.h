// Streams of a PDF that are there more than once.
#pragma once

#include <qpdf/QPDF.hh>

namespace norvex::engine {

/// Has everything refer to the first of the streams whose dictionaries and stored bytes are equal: fonts and
/// images that several pages brought with them. The others are not written when nothing else refers to them.
void shareEqualStreams(QPDF& qpdf);

}  // namespace norvex::engine
