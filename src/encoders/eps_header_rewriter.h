// Rewriting of the document-structuring comments (DSC 3.0) of freshly generated PostScript.
#pragma once

#include <QByteArray>
#include <QString>

#include "metadata/header_dictionary.h"

namespace norvex {

/// The text of a comment that the header dictionary has no value for.
struct EpsHeaderDefaults {
  QString creator;       ///< for "%%Creator:"
  QString creationDate;  ///< for "%%CreationDate:"
  QString userFullName;  ///< for "%%For:"
};

/// `postScript` (UTF-8) with the first line that holds "%%Title:", "%%Creator:", "%%CreationDate:" and
/// "%%For:" replaced by keyword, blank, value, LF. A keyword that is absent adds nothing, but a Copyright
/// value is inserted before the line "%%EndComments" unless the text has a "%%Copyright:" already. Values are
/// written as commentValue() makes them: none can end its line. The search is plain and not limited to the
/// comment section: generated PostScript has each keyword once, and where a body holds it again only the
/// first counts. Empty when the bytes are not valid UTF-8.
[[nodiscard]] QByteArray rewriteEpsHeader(const QByteArray& postScript, const HeaderDictionary& header,
                                          const EpsHeaderDefaults& defaults);

}  // namespace norvex
