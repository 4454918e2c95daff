// What all windows show or leave away, as the user chose.
#pragma once

#include <QObject>
#include <QString>

#include "display/length_text.h"

class QAction;
class QWidget;

namespace norvex {

/// Kept from one start of the program to the next, and followed by every window at once. Main thread.
class ViewChoices final : public QObject {
  Q_OBJECT
 public:
  enum Choice {
    WindowFitsPicture,  ///< the size rule holds
    ReloadByItself,     ///< a changed file is shown again without a question
    DimOutside,         ///< the picture fades outside of the selection
    Checkerboard,       ///< new windows show what is not painted, instead of the background colour
  };

  static ViewChoices& shared();

  [[nodiscard]] bool isOn(Choice choice) const;
  void set(Choice choice, bool on);
  /// What lengths are shown in.
  [[nodiscard]] LengthUnit unit() const;
  void setUnit(LengthUnit unit);

  /// The choice as a menu item of `window`; `title` is a key of the string table.
  [[nodiscard]] QAction* makeAction(Choice choice, const char* title, const char* name, QWidget* window);

 signals:
  void changed(norvex::ViewChoices::Choice choice, bool on);
  void unitChanged(norvex::LengthUnit unit);

 private:
  ViewChoices() = default;
};

}  // namespace norvex
