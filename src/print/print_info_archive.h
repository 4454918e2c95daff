// The form in which print settings stay in the user defaults.
#pragma once

#include <QByteArray>

#include <optional>

#include "print/print_info.h"

namespace norvex {

/// One CBOR map: "version" and "settings". What belongs to one job (copies, pages, where to) is left out.
[[nodiscard]] QByteArray archivedPrintInfo(const NSPrintInfo& info);
/// Nothing when the bytes are damaged, of another version or hold what no settings can. Entries that are not
/// known are passed over.
[[nodiscard]] std::optional<NSPrintInfo> unarchivedPrintInfo(const QByteArray& archive);

}  // namespace norvex
