#include "application/string_tables.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace norvex {

void installStringTables() {
  auto* english = new QTranslator(qApp);
  if (english->load(QStringLiteral(":/strings/norvex_en.qm"))) QCoreApplication::installTranslator(english);
  auto* own = new QTranslator(qApp);  // asked before the English one, which answers for what it lacks
  if (own->load(QLocale(), QStringLiteral("norvex"), QStringLiteral("_"), QStringLiteral(":/strings")))
    QCoreApplication::installTranslator(own);
}

}  // namespace norvex
