// A few words over the picture that go by themselves.
#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;

namespace norvex {

class ZoomingScrollArea;

/// Tells that something was done, where nothing has to be answered. One for each scroll area; what is told
/// next takes its place. Lets the mouse through. Main thread.
class BriefNote final : public QFrame {
  Q_OBJECT
 public:
  static constexpr int shownMs = 2000;

  /// Shows `text` over the lower edge of the area's picture; the area owns the note.
  static void tell(ZoomingScrollArea& area, const QString& text);
  [[nodiscard]] QString text() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  explicit BriefNote(QWidget* parent);

  QLabel* label_;
  QTimer end_;
};

}  // namespace norvex
