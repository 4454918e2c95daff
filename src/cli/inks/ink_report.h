// The inks of a page as text and as JSON.
#pragma once

#include <QJsonObject>
#include <QString>

#include "picture/inks/separated_page.h"

namespace norvex {

/// A line an ink, and one for all of them.
[[nodiscard]] QString inkLines(const SeparatedPage& page);

/// "inks" holds an object for each of them, in their order.
[[nodiscard]] QJsonObject inkObject(const SeparatedPage& page);

}  // namespace norvex
