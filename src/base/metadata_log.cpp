#include "base/metadata_log.h"

namespace norvex {

Q_LOGGING_CATEGORY(metadataLog, "norvex.metadata")

}  // namespace norvex
