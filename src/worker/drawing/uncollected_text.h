// Poppler collects the text of each page that it draws on a screen, and sorts it, for whoever selects some
// afterwards. Our text comes from a page of its own that nobody draws (worker/pdf/pdf_render_text.h), and a
// page of tens of thousands of glyphs at one place takes minutes to collect, and a second to draw.
#pragma once

#include <utility>

namespace norvex::engine {

/// While one lives, what this thread draws is collected by nobody: src/programs/text_calls.cpp stands in for
/// what collects.
class UncollectedText {
 public:
  UncollectedText() : before_(std::exchange(isActive_, true)) {}
  ~UncollectedText() { isActive_ = before_; }
  UncollectedText(const UncollectedText&) = delete;
  UncollectedText& operator=(const UncollectedText&) = delete;

  [[nodiscard]] static bool isActive() { return isActive_; }

 private:
  static inline thread_local bool isActive_ = false;
  const bool before_;
};

}  // namespace norvex::engine
