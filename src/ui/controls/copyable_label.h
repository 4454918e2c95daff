// Labels whose text can be selected and copied, with the mouse and with keys alone.
#pragma once

class QLabel;

namespace norvex {

/// Makes the text selectable and reachable with Tab. Select All and Copy then mean the text while the label
/// has the keyboard, whatever commands of the window have the same keys. Main thread; once a label.
void makeCopyable(QLabel& label);

}  // namespace norvex
