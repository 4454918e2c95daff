// Where the extractors write their diagnostics: the system log, never the user.
#pragma once

#include <QLoggingCategory>

namespace norvex {

Q_DECLARE_LOGGING_CATEGORY(metadataLog)

}  // namespace norvex
