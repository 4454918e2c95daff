#include "window/about_box.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>

#include <chrono>
#include <memory>
#include <utility>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "ui/panels/modal_dialog.h"

namespace norvex {
namespace {

constexpr std::chrono::milliseconds kGrace(500);

ConfinementWords& confinementWords() {
  static ConfinementWords words;
  return words;
}

QString description() {
  return localizedString(
             "Opens EPS, Illustrator, PDF and SVG pictures and hands any part of them on as vectors.") +
         QStringLiteral("\n\n") +
         localizedString(
             "Free software under the GNU General Public License, version 3 or later. The interpreter "
             "of PostScript is under the GNU Affero General Public License, version 3 or later.");
}

void tell(QMessageBox& box, QString confinement) {
  confinement.replace(QChar('\n'), QStringLiteral("\n\n"));  // each line is a paragraph
  box.setInformativeText(description() + QStringLiteral("\n\n") +
                         localizedString("How the documents that it opens are confined:") +
                         QStringLiteral("\n\n") + confinement);
}

/// Asks on another thread: a program is started for it. A box that grows would jump, so it waits a moment.
void addConfinement(QMessageBox& box) {
  if (!confinementWords()) return;
  const auto answer = std::make_shared<QString>();  // of the thread, until it is done
  const auto show = [&box, answer] {
    if (!answer->isEmpty()) tell(box, *answer);
  };
  const BackgroundWork asking = workInBackground(
      &box, [answer, words = confinementWords()] { *answer = words().trimmed(); }, show);
  if (asking.waitFor(kGrace)) show();
}

}  // namespace

void setConfinementWords(ConfinementWords words) {
  confinementWords() = std::move(words);
}

void showAboutBox(QWidget& parent) {
  ModalDialog<QMessageBox> about(&parent);
  about->setWindowTitle(localizedString("About Norvex"));
  about->setTextFormat(Qt::PlainText);
  about->setText(QStringLiteral("Norvex %1").arg(QStringLiteral(NORVEX_VERSION)));
  about->setIconPixmap(QApplication::windowIcon().pixmap(QSize(64, 64), parent.devicePixelRatioF()));
  about->setInformativeText(description());
  addConfinement(*about);
  (void)about.isAnswered();
}

}  // namespace norvex
