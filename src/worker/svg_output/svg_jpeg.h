// The JPEG behind an image of a PDF, when an SVG may hold it as it is.
#pragma once

#include <QByteArray>

class GfxImageColorMap;
class Stream;

namespace norvex::engine {

/// The file without what it says beside the picture; empty where its colours are not what any reader shows,
/// or it is damaged.
[[nodiscard]] QByteArray originalJpeg(Stream& data, int width, int height, GfxImageColorMap& colours);

/// `jpeg` without comments, profiles, thumbnails, places and turns; empty where it is none of 8 bits with
/// `components` and this size.
[[nodiscard]] QByteArray bareJpeg(const QByteArray& jpeg, int width, int height, int components);

}  // namespace norvex::engine
