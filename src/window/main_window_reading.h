// One reading of a document on another thread.
#pragma once

#include <QSemaphore>

#include <mutex>

#include "base/cancel_token.h"
#include "window/document_contents.h"
#include "window/main_window_controller.h"

namespace norvex {

/// Shared by the controller and the reading thread; what is left when the controller has lost interest.
struct MainWindowController::Reading {
  CancelToken cancel;
  bool again = false;         ///< there is a picture already, which stays unless this one draws
  int number = 0;             ///< what the window's work calls it
  QSemaphore done;            ///< released once contents are there
  DocumentContents contents;  ///< belongs to the reader until then, to the main thread afterwards
};

}  // namespace norvex
