// The keys of a window's menus in one list.
#pragma once

class QMenuBar;
class QWidget;

namespace norvex {

/// Opens a window beside `parent` with every command of the menus, menu by menu, as they are now, where the
/// keys of each can be changed. It is not modal and destroys itself when closed; a second call brings the
/// first one to the front. Main thread.
void showShortcutPanel(QWidget& parent, const QMenuBar& menus);

}  // namespace norvex
