#include "window/about_box.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QPointer>
#include <QSemaphore>
#include <QThreadPool>

#include <memory>
#include <utility>

#include "base/localized_string.h"
#include "base/waiting_threads.h"

namespace norvex {
namespace {

constexpr int kGraceMs = 500;

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

struct Answer {
  QSemaphore there;
  QString told;
};

/// Asks on another thread: a program is started for it. A box that grows would jump, so it waits a moment.
void addConfinement(QMessageBox& box) {
  if (!confinementWords()) return;
  const auto answer = std::make_shared<Answer>();
  waitingThreads().start([answer, words = confinementWords(), application = QPointer<QCoreApplication>(qApp),
                          about = QPointer<QMessageBox>(&box)] {
    const QString told = words().trimmed();
    answer->told = told;
    answer->there.release();
    if (!application || told.isEmpty()) return;
    QMetaObject::invokeMethod(application.data(), [about, told] {
      if (about) tell(*about, told);
    });
  });
  if (answer->there.tryAcquire(1, kGraceMs) && !answer->told.isEmpty()) tell(box, answer->told);
}

}  // namespace

void setConfinementWords(ConfinementWords words) {
  confinementWords() = std::move(words);
}

void showAboutBox(QWidget& parent) {
  QMessageBox about(&parent);
  about.setWindowTitle(localizedString("About Norvex"));
  about.setTextFormat(Qt::PlainText);
  about.setText(QStringLiteral("Norvex %1").arg(QStringLiteral(NORVEX_VERSION)));
  about.setIconPixmap(QApplication::windowIcon().pixmap(QSize(64, 64), parent.devicePixelRatioF()));
  about.setInformativeText(description());
  addConfinement(about);
  about.exec();
}

}  // namespace norvex
