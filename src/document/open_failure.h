// Files that could not be opened, and how they are told.
#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QUrl>

#include "desktop/alert.h"

namespace norvex {

/// A file that could not be opened.
struct OpenFailure {
  QUrl url;
  QString sentence;  ///< what is wrong, a plain sentence with its full stop, in the user's language
  QString detail;    ///< the reason of an exception, for the log, or empty
};

/// One message for all of them: the sentence of a single one; of several, name and sentence of each, of many
/// the first ones, and all of them as details.
[[nodiscard]] Alert alertAbout(const QList<OpenFailure>& failures);

}  // namespace norvex

Q_DECLARE_METATYPE(norvex::OpenFailure)
