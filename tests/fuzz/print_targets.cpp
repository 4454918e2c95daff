// Print settings as the user defaults hold them.
#include <cmath>

#include "fuzz/targets.h"
#include "print/print_info_archive.h"

namespace norvex::fuzz {
namespace {

bool printSettings(const QByteArray& bytes) {
  const auto info = unarchivedPrintInfo(bytes);
  if (!info) return false;
  require(std::isfinite(info->scalingFactor()) && info->scalingFactor() > 0, "a scaling factor is a factor");
  require(info->paperSize().isValid(), "paper has a size");
  const QMarginsF margins = info->margins();
  for (const double margin : {margins.left(), margins.right(), margins.top(), margins.bottom()})
    require(margin >= 0 && margin <= NSPrintInfo::largestMargin, "margins are lengths on paper");
  const QByteArray again = archivedPrintInfo(*info);
  const auto same = unarchivedPrintInfo(again);
  require(same && archivedPrintInfo(*same) == again, "what was read can be written and read again");
  return true;
}

QList<QByteArray> seeds() {
  NSPrintInfo changed;
  changed.setOrientation(NSPaperOrientation::Landscape);
  changed.setScalingFactor(0.5);
  changed.setLeftMargin(12);
  changed.setVerticallyCentered(false);
  changed.setHorizontalPagination(NSPrintingPaginationMode::Fit);
  changed.setPrinterName(QStringLiteral("office"));
  return {archivedPrintInfo({}), archivedPrintInfo(changed), archivedPrintInfo(changed).chopped(1),
          "no archive"};
}

}  // namespace

QList<Target> printTargets() {
  return {{"print_settings", printSettings, seeds, 1000}};
}

}  // namespace norvex::fuzz
