// What is shown of a picture until something of it is drawn: the preview that its file carries.
#pragma once

#include <QImage>

namespace norvex {

class NSImageRep;

/// `image` fills the whole picture until the first bitmap of it is there, or it cannot be drawn. Call before
/// its first draw(), in the thread of `rep`.
void showFirst(NSImageRep& rep, const QImage& image);

/// Null: none.
[[nodiscard]] QImage firstImageOf(const NSImageRep& rep);

}  // namespace norvex
