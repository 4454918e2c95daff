// Rules about an EPS file around its program: wrapping, binary header, bytes that belong to nothing.
#pragma once

#include <QByteArray>

#include "check/finding.h"

namespace norvex {

/// `file`: as it stands on disk.
[[nodiscard]] Findings epsFileFindings(const QByteArray& file);

}  // namespace norvex
