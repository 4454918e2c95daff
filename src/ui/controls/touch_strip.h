// TouchStrip: a row of large buttons at the lower edge of a window, for fingers.
#pragma once

#include <QHash>
#include <QIcon>
#include <QString>
#include <QWidget>

#include <functional>

class QHBoxLayout;
class QToolButton;

namespace norvex {

/// All buttons are equally wide and at least 48 logical pixels high, more than what a fingertip covers. With
/// a keyboard they are reached with Tab. Main thread; owns its buttons.
class TouchStrip final : public QWidget {
  Q_OBJECT
 public:
  static constexpr int smallestButtonHeight = 48;

  explicit TouchStrip(QWidget* parent = nullptr);

  /// Appends a button; `pressed` is called when it is tapped or clicked.
  void addButton(const QString& identifier, const QString& title, const QIcon& icon,
                 std::function<void()> pressed);
  /// Null for an identifier without a button.
  [[nodiscard]] QToolButton* button(const QString& identifier) const { return buttons_.value(identifier); }
  void setButtonEnabled(const QString& identifier, bool enabled);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QHBoxLayout* row_;
  QHash<QString, QToolButton*> buttons_;
};

}  // namespace norvex
