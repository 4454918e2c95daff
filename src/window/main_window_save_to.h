// What a Save To sheet holds until its file is written.
#pragma once

#include <QUrl>

#include "window/main_window_controller.h"
#include "window/picture_formats.h"

namespace norvex {

/// Shared by the sheet and what is made for it in the background. Main thread.
struct MainWindowController::SaveToSheet {
  PictureFormats formats;  ///< the rows of the pop-up list, in its order
  bool open = true;        ///< the sheet is on the screen
  ~SaveToSheet() { formats.cancel.cancel(); }
};

/// `url` with `extension` in the place of its own one, or after it where it has none.
[[nodiscard]] QUrl urlWithExtension(const QUrl& url, const QString& extension);

}  // namespace norvex
