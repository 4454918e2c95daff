// A save panel without a person.
#pragma once

#include <utility>

#include "desktop/save_panel.h"

namespace norvex {

/// Keeps what it was asked to show until answer() is called.
class MemorySavePanel final : public NSSavePanel {
 public:
  void beginSheetModalForWindow(QWidget* window, const SavePanelSettings& shown, Completion then) override {
    parent = window;
    settings = shown;
    completion_ = std::move(then);
    ++shownCount;
  }
  [[nodiscard]] bool isOpen() const { return completion_ != nullptr; }
  void answer(const SavePanelAnswer& given) {
    if (const Completion then = std::exchange(completion_, nullptr)) then(given);
  }

  QWidget* parent = nullptr;
  SavePanelSettings settings;
  int shownCount = 0;

 private:
  Completion completion_;
};

}  // namespace norvex
