// The inks of a page as text and as JSON.
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "picture/inks/separated_page.h"

namespace norvex {

/// A line an ink, and one for all of them.
[[nodiscard]] QString inkLines(const SeparatedPage& page);

/// `plates`: the files of the inks' plates in their order; empty: none were written.
[[nodiscard]] QJsonObject inkObject(const SeparatedPage& page, const QStringList& plates);

}  // namespace norvex
