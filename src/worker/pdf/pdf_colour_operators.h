// The colour spaces that the contents of a PDF page choose by operators of their own, without a resource.
#pragma once

#include <QByteArrayView>
#include <QStringList>

#include <qpdf/QPDFObjectHandle.hh>

#include <string>

namespace norvex::engine {

/// "DeviceGray", "DeviceRGB", "DeviceCMYK", each once, in the order of their first use. Strings, names,
/// comments and the samples of inline images are passed over. Contents that end in the middle of something
/// are fine.
[[nodiscard]] QStringList deviceColoursOf(QByteArrayView contents);

/// The first `atMost` bytes of a stream, unpacked; what is damaged ends there. Unpacking stops where they
/// end, so that a few packed bytes cannot ask for gigabytes. A stream of the file then counts as damaged for
/// qpdf. May throw.
[[nodiscard]] std::string unpacked(QPDFObjectHandle stream, qint64 atMost);

}  // namespace norvex::engine
