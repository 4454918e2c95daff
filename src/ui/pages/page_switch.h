// "2 of 59": which page is shown, and a way to another.
#pragma once

#include <QWidget>

class QLabel;
class QSpinBox;
class QToolButton;

namespace norvex {

/// Back, the page's number to read or to type, how many there are, on. Pages count from 0 here and from 1 on
/// the screen. Escape puts back the number that was shown. Hides itself where there is one page. Main thread.
class PageSwitch final : public QWidget {
  Q_OBJECT
 public:
  explicit PageSwitch(QWidget* parent = nullptr);

  /// Sends no signal.
  void setPages(int shown, int count);
  /// Marks the number, to be typed over.
  void editNumber();
  [[nodiscard]] QSpinBox* numberField() const { return number_; }

 signals:
  void pageChosen(int page);
  /// Return or Escape ended the typing of a number.
  void leftNumber();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolButton* addButton(const QString& arrow, const QString& name, int step);

  QToolButton* back_;
  QSpinBox* number_;
  QLabel* count_;
  QToolButton* on_;
};

}  // namespace norvex
