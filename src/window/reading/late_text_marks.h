// The marks over the text of a window's picture, made when there is something to mark.
#pragma once

#include <QObject>
#include <QPointer>

#include "ui/picture/text_marks.h"

namespace norvex {

class WindowParts;

/// The window owns the marks. The parts outlive this. Main thread.
class LateTextMarks final : public QObject {
 public:
  LateTextMarks(WindowParts& parts, QObject* parent) : QObject(parent), parts_(parts) {}

  /// Makes them at the first call.
  [[nodiscard]] TextMarks& get();
  /// Null: nothing has been marked yet.
  [[nodiscard]] TextMarks* made() const { return marks_; }

 private:
  WindowParts& parts_;
  QPointer<TextMarks> marks_;
};

}  // namespace norvex
