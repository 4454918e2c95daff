#include "cli/archive/state/duration_text.h"

#include <cmath>

namespace norvex {

QString durationText(double seconds) {
  const auto whole = qint64(std::ceil(seconds));
  if (whole < 60) return QStringLiteral("%1 s").arg(whole);
  if (whole < 3600) return QStringLiteral("%1 min %2 s").arg(whole / 60).arg(whole % 60);
  return QStringLiteral("%1 h %2 min").arg(whole / 3600).arg(whole % 3600 / 60);
}

}  // namespace norvex
