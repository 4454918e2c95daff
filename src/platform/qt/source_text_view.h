// A text for reading, with a bar to find things in it.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace norvex {

/// Selectable, not editable. Ctrl+F opens the find bar, F3 and Shift+F3 (or Return and Shift+Return in the bar) go to
/// the next and the previous hit, Escape closes it. Main thread.
class SourceTextView final : public QWidget {
  Q_OBJECT
 public:
  explicit SourceTextView(QWidget* parent = nullptr);

  void setString(const QString& text);
  [[nodiscard]] QString string() const;
  /// The platform's fixed-pitch font in this size instead of the window's font.
  void setFixedPitchFont(double pointSize);
  void setLineWrapping(bool wrap);
  [[nodiscard]] QPlainTextEdit* textEdit() const { return edit_; }

  /// Opens the find bar with the selected text.
  void showFindBar();
  void hideFindBar();
  /// Selects the next hit, going round at the end; false when there is none.
  bool findNext(bool backward = false);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void buildFindBar();
  /// The text itself is what assistive technology meets: it takes this widget's name.
  void nameText();

  QWidget* bar_;
  QLineEdit* needle_;
  QLabel* outcome_;
  QPlainTextEdit* edit_;
};

}  // namespace norvex
