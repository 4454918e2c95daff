#include "application/open_panel.h"

#include <QDir>
#include <QFileDialog>

#include "base/localized_string.h"
#include "document/document_types.h"
#include "types/document_kind.h"

namespace norvex {
namespace {

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
  return QFileDialog::getOpenFileUrls(parent, localizedString("Open"),
                                      QUrl::fromLocalFile(folder.isEmpty() ? QDir::homePath() : folder),
                                      openPanelFilters().join(";;"), nullptr, {}, {"file"});
}

}  // namespace norvex
