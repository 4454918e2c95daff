#include "document/print_settings.h"

#include <QSettings>

#include "print/print_info_archive.h"

namespace norvex {

NSPrintInfo defaultDocumentPrintInfo() {
  NSPrintInfo info = NSPrintInfo::sharedPrintInfo();
  info.setOrientation(NSPaperOrientation::Landscape);
  info.setLeftMargin(0);
  info.setRightMargin(0);
  info.setTopMargin(0);
  info.setBottomMargin(0);
  info.setVerticallyCentered(true);
  info.setHorizontallyCentered(true);
  info.setVerticalPagination(NSPrintingPaginationMode::Automatic);
  info.setHorizontalPagination(NSPrintingPaginationMode::Automatic);
  info.setPrintsHeaderAndFooter(false);
  return info;
}

NSPrintInfo newDocumentPrintInfo(const QSettings& userDefaults) {
  const QByteArray archive = userDefaults.value(QLatin1String(printInfoDefaultsKey)).toByteArray();
  const std::optional<NSPrintInfo> remembered = unarchivedPrintInfo(archive);
  return remembered ? *remembered : defaultDocumentPrintInfo();
}

void rememberPrintInfo(QSettings& userDefaults, const NSPrintInfo& info) {
  userDefaults.setValue(QLatin1String(printInfoDefaultsKey), archivedPrintInfo(info));
}

}  // namespace norvex
