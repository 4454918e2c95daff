// A text for reading, with a bar to find things in it.
#pragma once

#include <QWidget>

#include "ui/source/source_matches.h"

namespace norvex {

class SourceFindBar;
class SourceTextEdit;

/// Selectable, not editable. Ctrl+F opens the find bar, F3 and Shift+F3 (or Return and Shift+Return in the
/// bar) go to the next and the previous hit, Escape closes it. Finding is instant and looks at the text
/// itself, so that a hit across the pieces of a very long line is one. Main thread.
class SourceTextView final : public QWidget {
  Q_OBJECT
 public:
  explicit SourceTextView(QWidget* parent = nullptr);

  /// Closes the find bar.
  void setString(const QString& text);
  [[nodiscard]] QString string() const;
  /// The platform's fixed-pitch font in this size instead of the window's font.
  void setFixedPitchFont(double pointSize);
  /// Wrapped text is prose; text that is not wrapped is source code, with line numbers and colours.
  void setLineWrapping(bool wrap);
  [[nodiscard]] SourceTextEdit* textEdit() const { return edit_; }
  [[nodiscard]] SourceFindBar* findBar() const { return bar_; }

  /// Selects a line, counted from 1, and shows it; the last one where there are fewer.
  void showLine(int line);

  /// Opens the find bar with the selected text.
  void showFindBar();
  void hideFindBar();
  /// Selects the next hit, going round at the end; false when there is none. Opens the bar when nothing is
  /// looked for.
  bool findNext(bool backward = false);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void lookFor(const QString& needle);
  void select(qsizetype index);
  void tellNothingFound();
  [[nodiscard]] bool isOurs(const QKeyEvent& event) const;
  /// The text itself is what assistive technology meets: it takes this widget's name.
  void nameText();

  SourceFindBar* bar_;
  SourceTextEdit* edit_;
  SourceMatches matches_;
};

}  // namespace norvex
