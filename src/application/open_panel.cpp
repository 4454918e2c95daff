#include "application/open_panel.h"

#include <QDir>
#include <QFileDialog>

#include "base/localized_string.h"
#include "document/document_types.h"
#include "types/document_kind.h"
#include "ui/panels/centred_window.h"
#include "ui/panels/file_columns.h"

namespace norvex {
namespace {

constexpr QSize kSize(780, 480);

/// "Title (*.eps *.EPS)": the panel's patterns tell letter cases apart, files from old disks are in capitals.
QString filter(const char* title, const QStringList& extensions) {
  QStringList patterns;
  for (const QString& extension : extensions) patterns << "*." + extension << "*." + extension.toUpper();
  return localizedString(title) + " (" + patterns.join(' ') + ')';
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
  QFileDialog panel(parent, localizedString("Open"), folder.isEmpty() ? QDir::homePath() : folder);
  panel.setFileMode(QFileDialog::ExistingFiles);
  panel.setNameFilters(openPanelFilters());
  panel.setSupportedSchemes({QStringLiteral("file")});
  showWholeColumns(panel);
  showWholePlaces(panel);
  nameFolders(panel);
  panel.resize(sizeForTexts(panel, kSize));
  return panel.exec() == QDialog::Accepted ? panel.selectedUrls() : QList<QUrl>();
}

}  // namespace norvex
