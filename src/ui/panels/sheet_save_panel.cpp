#include "ui/panels/sheet_save_panel.h"

#include <QPointer>

#include <utility>

#include "ui/panels/save_sheet.h"

namespace norvex {

void QtSavePanel::beginSheetModalForWindow(QWidget* window, const SavePanelSettings& settings,
                                           Completion completion) {
  auto* sheet = new SaveSheet(window, settings);
  sheet->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(sheet, &QDialog::finished, window, [sheet, then = std::move(completion)](int result) {
    SavePanelAnswer answer = sheet->answer();
    answer.ok = result == QDialog::Accepted;
    then(answer);
  });
  sheet->open();
}

}  // namespace norvex
