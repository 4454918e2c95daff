// SourceFindBar: what is looked for in a text, how often it is there, and the way from one place to the next.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace norvex {

/// Return goes to the next place, Shift+Return to the previous one. What is found is its owner's business.
/// Main thread.
class SourceFindBar final : public QWidget {
  Q_OBJECT
 public:
  explicit SourceFindBar(QWidget* parent = nullptr);

  [[nodiscard]] QString needle() const;
  void setNeedle(const QString& text);
  /// Takes the keyboard, all of the text selected.
  void begin();
  /// "3 of 27"; with no match, that nothing was found; nothing at all while nothing is looked for.
  void showOutcome(qsizetype index, qsizetype count);
  [[nodiscard]] QString outcome() const;
  /// `on`: there are places to look at beyond those that are counted, and the way to them stays open without
  /// a match here. From the next outcome on.
  void setGoesOn(bool on) { goesOn_ = on; }
  /// Not in what the way goes on to either.
  void showFoundNowhere();

 signals:
  void needleChanged(const QString& text);
  void wanted(bool backward);
  void closed();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLineEdit* needle_;
  QLabel* outcome_;
  QToolButton* previous_;
  QToolButton* next_;
  bool goesOn_ = false;
};

}  // namespace norvex
