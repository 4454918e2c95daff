#include "ui/panels/alert_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "base/localized_string.h"
#include "ui/panels/modal_dialog.h"

namespace norvex {
namespace {

QMessageBox::Icon iconOf(AlertStyle style) {
  switch (style) {
    case AlertStyle::Informational:
      return QMessageBox::Information;
    case AlertStyle::Critical:
      return QMessageBox::Critical;
    case AlertStyle::Warning:
      break;
  }
  return QMessageBox::Warning;
}

}  // namespace

int QtAlertPresenter::runModal(const Alert& alert) {
  ModalDialog<QMessageBox> box(QApplication::activeWindow());
  box->setIcon(iconOf(alert.style));
  box->setTextFormat(Qt::PlainText);  // a file's name is no markup
  box->setText(alert.messageText);
  box->setInformativeText(alert.informativeText);
  box->setDetailedText(alert.details);
  const QStringList leaving{localizedString("Cancel"), localizedString("Close")};
  // Questions without those have one that changes nothing: Escape and the window's own button stand for it.
  const QStringList refusing{localizedString("Do Not Open"), localizedString("Keep Open")};
  QList<QAbstractButton*> buttons;
  for (const QString& title : alert.buttons.isEmpty() ? QStringList{localizedString("OK")} : alert.buttons) {
    QPushButton* button =
        box->addButton(title, leaving.contains(title) ? QMessageBox::RejectRole : QMessageBox::AcceptRole);
    if (buttons.isEmpty()) box->setDefaultButton(button);
    if (leaving.contains(title) || refusing.contains(title)) box->setEscapeButton(button);
    buttons << button;
  }
  if (buttons.size() == 1) box->setEscapeButton(buttons.first());
  if (alert.willShow)
    alert.willShow([shown = QPointer(&*box)] {
      if (shown) shown->reject();
    });
  if (!box.isAnswered()) return -1;
  return int(buttons.indexOf(box->clickedButton()));
}

}  // namespace norvex
