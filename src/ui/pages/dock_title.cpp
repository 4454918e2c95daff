#include "ui/pages/dock_title.h"

#include <QDockWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "base/localized_string.h"
#include "ui/style/quiet_text.h"

namespace norvex {

DockTitle::DockTitle(QDockWidget& dock) : QWidget(&dock), title_(new QLabel(dock.windowTitle(), this)) {
  auto* close = new QToolButton(this);
  close->setObjectName(QStringLiteral("closeDockButton"));
  close->setText(QStringLiteral("\u2715"));
  close->setAutoRaise(true);
  close->setAccessibleName(localizedString("Close"));
  close->setToolTip(close->accessibleName());
  connect(close, &QToolButton::clicked, &dock, &QWidget::close);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(12, 4, 4, 4);
  row->addWidget(title_, 1);
  row->addWidget(close);
  makeQuiet(*title_);
}

void DockTitle::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) makeQuiet(*title_);
  QWidget::changeEvent(event);
}

}  // namespace norvex
