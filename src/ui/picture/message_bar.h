// A quiet bar over the picture: one sentence, and what can be done about it.
#pragma once

#include <QFrame>
#include <QList>
#include <QString>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;

namespace norvex {

/// Hidden until a message is shown; a later message replaces the earlier one. Announced to screen readers as
/// an alert.
class MessageBar final : public QFrame {
  Q_OBJECT
 public:
  enum class Kind { Information, Warning };

  explicit MessageBar(QWidget* parent = nullptr);

  /// `action` is the title of a button (empty: none) whose press sends actionChosen() and hides the bar; so
  /// is `other` for otherChosen(). `details` are a library's own words (empty: none), which the button
  /// "Details" shows below the text.
  void showMessage(Kind kind, const QString& text, const QString& action = {}, const QString& details = {},
                   const QString& other = {});
  void clearMessage();
  [[nodiscard]] QString message() const;
  [[nodiscard]] QString details() const;

 signals:
  void actionChosen();
  void otherChosen();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Kind kind_ = Kind::Information;
  QLabel* text_;
  QLabel* details_;
  QToolButton* showDetails_;
  QPushButton* action_;
  QPushButton* other_;
  QToolButton* close_;
};

}  // namespace norvex
