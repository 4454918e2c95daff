#include "ui/pages/dock_title.h"

#include <QDockWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "base/localized_string.h"
#include "ui/style/quiet_text.h"

namespace norvex {

DockTitle::DockTitle(QDockWidget& dock) : QWidget(&dock) {
  auto* title = new QLabel(dock.windowTitle(), this);
  auto* close = new QToolButton(this);
  close->setText(QStringLiteral("\u2715"));
  close->setAutoRaise(true);
  close->setAccessibleName(localizedString("Close"));
  close->setToolTip(close->accessibleName());
  connect(close, &QToolButton::clicked, &dock, &QWidget::close);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(12, 4, 4, 4);
  row->addWidget(title, 1);
  row->addWidget(close);
  makeQuiet(*title);
}

}  // namespace norvex
