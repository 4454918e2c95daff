#include "document/open_failure.h"

#include <QFileInfo>
#include <QStringList>

#include "base/localized_string.h"

namespace norvex {
namespace {

/// What still can be read at a glance, and fits every screen.
constexpr qsizetype kShown = 6;

QString nameOf(const OpenFailure& failure) {
  return failure.url.isLocalFile() ? QFileInfo(failure.url.toLocalFile()).fileName()
                                   : failure.url.toDisplayString();
}

}  // namespace

Alert alertAbout(const QList<OpenFailure>& failures) {
  Alert alert;
  if (failures.size() == 1) {
    alert.messageText = localizedString("“%1” could not be opened.").arg(nameOf(failures.constFirst()));
    alert.informativeText = failures.constFirst().sentence;
    return alert;
  }
  QStringList lines;
  for (const OpenFailure& failure : failures)
    lines << QStringLiteral("%1: %2").arg(nameOf(failure), failure.sentence);
  alert.messageText = localizedString("%1 files could not be opened.").arg(failures.size());
  alert.informativeText = lines.mid(0, kShown).join(u'\n');
  if (lines.size() > kShown) {
    alert.informativeText += QStringLiteral("\n…");
    alert.details = lines.join(u'\n');
  }
  return alert;
}

}  // namespace norvex
