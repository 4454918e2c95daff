#include "ui/style/window_style.h"

namespace norvex {

QString windowStyleSheet() {
  return QStringLiteral(
      "QToolBar { border: none; padding: 4px 8px; spacing: 2px; background: palette(window); }"
      "QToolBar QToolButton { padding: 4px 7px; border: 1px solid transparent; border-radius: 6px; }"
      "QToolBar QToolBarExtension { padding: 0; border: none; }"
      "QToolBar QToolButton:hover:enabled { background: palette(midlight); }"
      "QToolBar QToolButton:checked { background: palette(midlight); border-color: palette(mid); }"
      "QToolBar QToolButton:pressed { background: palette(mid); }"
      "QToolBar QToolButton:focus { border-color: palette(highlight); }"
      "QMainWindow::separator { width: 5px; height: 5px; background: palette(window); }"
      "QMainWindow::separator:hover { background: palette(midlight); }"
      "QToolBar::separator { width: 1px; margin: 6px 6px; background: palette(mid); }"
      "QMenuBar { background: palette(window); border: none; padding: 1px 4px; }"
      "QTabWidget::pane { border: none; border-top: 1px solid palette(mid); top: -1px; }"
      "QTabBar { qproperty-drawBase: 0; }"
      "QTabBar::tab { padding: 9px 14px 7px 14px; border: none; border-bottom: 2px solid transparent; }"
      "QTabBar::tab:selected { border-bottom: 2px solid palette(highlight); }"
      "QTabBar::tab:!selected { color: palette(placeholder-text); }"
      "QGroupBox { border: none; margin-top: 1.7em; padding: 0; }"
      "QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; padding: 0; left: -2px; }"
      "#descriptionView QPlainTextEdit { border: 1px solid palette(mid); border-radius: 6px; background: "
      "palette(base); }"
      "QTabBar::tab:selected:focus { background: palette(midlight); }"
      "#startPoint:focus, #endPoint:focus { background: palette(highlight); color: "
      "palette(highlighted-text); }"
      "#pointerReadout { border: 1px solid transparent; border-radius: 4px; padding: 1px 3px; }"
      "#pointerReadout:hover { background: palette(midlight); }"
      "#pointerReadout:focus { border-color: palette(highlight); }"
      "Line { color: palette(mid); }");
}

}  // namespace norvex
