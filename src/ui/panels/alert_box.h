// Alerts on the screen.
#pragma once

#include "desktop/alert.h"

namespace norvex {

/// Shows an alert as a message box over the active window. The first button is the default one; Esc presses
/// the button titled "Cancel", or the only button.
class QtAlertPresenter final : public AlertPresenter {
 public:
  int runModal(const Alert& alert) override;
};

}  // namespace norvex
