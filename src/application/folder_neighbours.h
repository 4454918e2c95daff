// The pictures beside a picture.
#pragma once

#include <QUrl>

namespace norvex {

/// The picture that stands `step` places behind `url` (before it where that is negative) among the pictures
/// of its folder, by their names as people order them; whether a file is a picture its name tells. Empty:
/// there is none, or the folder cannot be read.
[[nodiscard]] QUrl neighbourOf(const QUrl& url, int step);

}  // namespace norvex
