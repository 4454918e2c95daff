// Fields that show a value: copying it without selecting it first.
#pragma once

class QLineEdit;

namespace norvex {

/// Gives a read-only field a small button that copies its whole value (while the pointer or the keyboard is
/// in it and there is a value), the same in its context menu, and lets Copy mean the whole value while
/// nothing is selected, whatever commands of the window have the same keys. Main thread; once a field.
void makeValueCopyable(QLineEdit& field);

}  // namespace norvex
