// What the modules of engines have in common.
#pragma once

#include <fontconfig/fontconfig.h>

#include "worker/engine_modules.h"

namespace norvex {

/// Reading the fonts' caches costs every document with text some milliseconds (many with many fonts), and a
/// missing cache can only be written here: a document's process may not write there.
inline void warmUpFonts() {
  FcInit();
}

inline Error notOfThisModule() {
  return {ErrorKind::Unsupported,
          QStringLiteral("this picture process was made for another kind of picture")};
}

}  // namespace norvex
