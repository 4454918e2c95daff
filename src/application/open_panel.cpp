#include "application/open_panel.h"

#include <QDir>
#include <QFileDialog>

#include "base/localized_string.h"
#include "document/document_types.h"
#include "types/document_kind.h"
#include "ui/panels/file_dialogs.h"
#include "ui/panels/modal_dialog.h"

namespace norvex {
namespace {

constexpr QSize kSize(780, 480);

QString filter(const char* title, const QStringList& extensions) {
  return nameFilter(localizedString(title), extensions);
}

}  // namespace

QStringList openPanelFilters() {
  return {filter("Pictures", documentFilenameExtensions()),
          filter("Encapsulated PostScript", extensionsOf(DocumentKind::Eps)),
          filter("Illustrator", extensionsOf(DocumentKind::Illustrator)),
          filter("PDF", extensionsOf(DocumentKind::Pdf)),
          filter("SVG", extensionsOf(DocumentKind::Svg)),
          localizedString("All files") + " (*)"};
}

QList<QUrl> runOpenPanel(QWidget* parent, const QString& folder) {
  ModalDialog<QFileDialog> panel(parent, localizedString("Open"),
                                 folder.isEmpty() ? QDir::homePath() : folder);
  panel->setFileMode(QFileDialog::ExistingFiles);
  panel->setNameFilters(openPanelFilters());
  panel->setSupportedSchemes({QStringLiteral("file")});
  settleFileDialog(*panel, kSize);
  return panel.isAccepted() ? panel->selectedUrls() : QList<QUrl>();
}

}  // namespace norvex
