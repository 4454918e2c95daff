#include "application/string_tables.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace norvex {
void installStringTables(const QLocale& locale) {
  // Asked first is what was installed last: our own table before the English one, which answers for what it
  // lacks, and the texts of Qt's own dialogs at the very end.
  auto* platform = new QTranslator(qApp);
  if (platform->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(platform);
  auto* english = new QTranslator(qApp);
  if (english->load(QStringLiteral(":/strings/norvex_en.qm"))) QCoreApplication::installTranslator(english);
  auto* own = new QTranslator(qApp);
  if (own->load(locale, QStringLiteral("norvex"), QStringLiteral("_"), QStringLiteral(":/strings")))
    QCoreApplication::installTranslator(own);
}

}  // namespace norvex
