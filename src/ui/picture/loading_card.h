// A small card that tells that work is under way and lets the user stop it.
#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;
class QProgressBar;
class QPushButton;

namespace norvex {

/// Shows itself only when the work takes longer than 300 ms; short work never flickers. Main thread.
class LoadingCard final : public QFrame {
  Q_OBJECT
 public:
  static constexpr int patienceMs = 300;

  explicit LoadingCard(QWidget* parent = nullptr);

  /// Work has begun (again): what it is, in a few words. Calls while the same work goes on do not start the
  /// wait anew.
  void begin(const QString& what);
  /// Work has ended: hides the card.
  void end();
  [[nodiscard]] bool isUnderWay() const { return underWay_; }
  /// Where it is too narrow for the words beside the rest, they take several lines.
  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;

 signals:
  void cancelled();
  void visibilityChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// For the words in a card of that width.
  [[nodiscard]] int roomFor(int width) const;
  void fit();

  QLabel* what_;
  QProgressBar* bar_;
  QPushButton* cancel_;
  QTimer patience_;
  bool underWay_ = false;
};

}  // namespace norvex
