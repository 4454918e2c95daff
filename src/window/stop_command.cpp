#include "window/stop_command.h"

#include "window/main_window_controller.h"
#include "window/reading/layers_command.h"
#include "window/viewing/live_file.h"

namespace norvex {

/// False: nothing was being read.
bool StopCommand::stopReading() {
  if (!commands_.loading.stop()) return false;
  if (controller_.validateUserInterfaceItem()) {
    controller_.findChild<LiveFile*>()->documentDidStay();
    controller_.findChild<LayersCommand*>()->documentDidStay();
  }
  commands_.messages.openingWasStopped();
  return true;
}

void StopCommand::stop() {
  if (stopReading()) return;
  if (commands_.copying.stop() || controller_.work().cancelNewest()) return;
  commands_.messages.stopDrawing();
}

void StopCommand::stopExamined() {
  if (stopReading() || controller_.work().cancelNewest(WindowWork::Kind::Examining)) return;
  commands_.messages.stopDrawing();
}

}  // namespace norvex
