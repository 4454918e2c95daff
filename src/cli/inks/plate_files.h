// Plates as files: a grey picture for each ink.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "base/result.h"
#include "protocol/page_inks.h"

namespace norvex {

/// A name for each ink's plate, `base`-INK.png, no two of them the same. Of an ink's name only what any
/// system takes as part of a file's name is left.
[[nodiscard]] QStringList plateNames(const QString& base, const PageInks& page);

/// PNG, 8-bit grey: black is all of the ink, as on film. Empty: it cannot be encoded.
[[nodiscard]] QByteArray platePng(const PageInks& page, qsizetype ink);

/// Writes every plate into `folder`, which is made where it is missing, and gives their paths. Unless
/// `force`, nothing is written when one of them exists already. Fails with CannotWrite, and takes back what
/// it wrote of the others and the folders that it made.
[[nodiscard]] Result<QStringList> writePlates(const PageInks& page, const QString& folder,
                                              const QString& base, bool force);

}  // namespace norvex
