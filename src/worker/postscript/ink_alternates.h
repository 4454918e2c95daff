// The colours that stand in for inks, as a document tells them.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include "protocol/page_inks.h"

namespace norvex::engine {

/// All of an ink alone, by its name, for every spot ink that a colour space of `pdf` names: what the space's
/// own conversion gives for it. A space of one ink is believed before one of several. Empty for a damaged
/// document.
[[nodiscard]] QHash<QString, ProcessInks> inkAlternates(const QByteArray& pdf);

/// True if one of the spot inks has no stand-in yet: Ghostscript tells those of inks that have a colour space
/// to themselves.
[[nodiscard]] bool lacksAlternates(const PageInks& page);
/// Gives inks without one theirs.
void addAlternates(PageInks& page, const QHash<QString, ProcessInks>& alternates);

}  // namespace norvex::engine
