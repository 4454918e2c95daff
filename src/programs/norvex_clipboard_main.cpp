// norvex-clipboard: what was copied stays on the clipboard of an X server when norvex has ended, until
// another program copies something. No window, no document is read: its input is what norvex had made.
#include <QGuiApplication>

#include <unistd.h>

#include "ui/panels/clipboard_keeper.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "xcb");
  // Neither the session's end nor input methods and assistive programs are its business.
  qunsetenv("SESSION_MANAGER");
  qputenv("QT_IM_MODULE", "none");
  qputenv("QT_ACCESSIBILITY", "0");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  QGuiApplication::setDesktopSettingsAware(false);
  QGuiApplication application(argc, argv);
  return norvex::keepClipboard(STDIN_FILENO, STDOUT_FILENO);
}
