// One finding of a check, as a row of a list.
#pragma once

#include <QAbstractButton>

#include "check/finding.h"

class QLabel;
class QPushButton;

namespace norvex {

/// Pressed, it wants to be shown where it is; with a button of its own where repair mends it. As high as its
/// words need in the width that it has. Main thread.
class FindingRow final : public QAbstractButton {
  Q_OBJECT
 public:
  explicit FindingRow(const Finding& finding, QWidget* parent = nullptr);

  /// Null: repair does not mend it.
  [[nodiscard]] QPushButton* repairButton() const { return repair_; }

 signals:
  /// A key that goes through lists: by so many rows down, or up where it is negative; no further than to the
  /// end.
  void moved(int rows);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QLabel* addText(const QString& text, bool quiet);
  void showIcon();

  const Severity severity_;
  QLabel* icon_;
  QPushButton* repair_ = nullptr;
};

}  // namespace norvex
