// A look at produced bytes before they take the place of anything.
#pragma once

#include <QByteArray>

#include "base/result.h"

namespace norvex {

/// True if this program would open `bytes` as what they claim to be, as far as a look at the header, the
/// sections and the end tells: no picture process is asked. EPS has to begin with PostScript that states a
/// box, and a binary one has to hold all of its sections; a PDF has to end as one. Other bytes pass. Fails
/// with a sentence. Thread-safe.
Result<void> checkOutput(const QByteArray& bytes);

}  // namespace norvex
