// The save panel on the screen.
#pragma once

#include "desktop/save_panel.h"

namespace norvex {

/// A file dialog as a sheet of the window, with the message, the accessory view or a list of types, and a box
/// that hides the extension below it. Asks before a file is replaced.
class QtSavePanel final : public NSSavePanel {
 public:
  void beginSheetModalForWindow(QWidget* window, const SavePanelSettings& settings,
                                Completion completion) override;
};

}  // namespace norvex
