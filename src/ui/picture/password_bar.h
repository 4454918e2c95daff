// A quiet bar over the picture that asks for a document's password.
#pragma once

#include <QFrame>
#include <QString>

class QLabel;
class QLineEdit;
class QPushButton;

namespace norvex {

/// Hidden until it asks. What is typed is not shown, and is forgotten as soon as it has been told. Announced
/// to screen readers as an alert. Main thread.
class PasswordBar final : public QFrame {
  Q_OBJECT
 public:
  explicit PasswordBar(QWidget* parent = nullptr);

  /// `wrong`: a password was tried, and was not it.
  void ask(bool wrong);
  void dismiss();
  [[nodiscard]] QString question() const;
  [[nodiscard]] QLineEdit* passwordField() const { return password_; }
  [[nodiscard]] QPushButton* openButton() const { return open_; }

 signals:
  /// Never empty.
  void passwordGiven(const QString& password);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void give();

  QLabel* question_;
  QLineEdit* password_;
  QPushButton* open_;
};

}  // namespace norvex
