#include "window/reading/late_text_marks.h"

#include "window/commands/window_parts.h"

namespace norvex {

TextMarks& LateTextMarks::get() {
  if (!marks_) marks_ = new TextMarks(*parts_.viewWidget());
  return *marks_;
}

}  // namespace norvex
