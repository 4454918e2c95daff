// The print settings of a new document, and the page layout that is remembered from one document to the next.
#pragma once

#include "print/print_info.h"

class QSettings;

namespace norvex {

/// Where the remembered layout stands in the user defaults; one entry serves all documents.
inline constexpr char printInfoDefaultsKey[] = "PrintInfo";

/// The shared settings with what documents have of their own: landscape, no margins, centred, as many pages
/// as it takes, no header and footer.
[[nodiscard]] NSPrintInfo defaultDocumentPrintInfo();

/// The remembered layout; the defaults while there is none or it cannot be read. The entry itself is left
/// alone.
[[nodiscard]] NSPrintInfo newDocumentPrintInfo(const QSettings& userDefaults);

/// Remembers a confirmed layout in the place of the one before.
void rememberPrintInfo(QSettings& userDefaults, const NSPrintInfo& info);

}  // namespace norvex
