// ZyDialKnob: a rotary dial for an angle, linked to a field that shows the angle in degrees, minutes and
// seconds.
#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

#include <optional>

namespace norvex {

class NumberField;

/// Zero is at the top. The needle turns counter-clockwise for growing angles unless clockwise() is set. The
/// angle is kept in the packed notation of dms_angle.h, exactly as it was set: a negative one or one beyond a
/// full turn stays what it is. Turning by mouse, wheel or keys gives angles from 0 to below 360 degrees.
/// Mouse: drag (finer the farther from the middle; Shift snaps to 15°), double click for 0. Wheel and arrows:
/// 1°, with Shift 15°, with Ctrl one minute; Page Up and Down: 15°; Home: 0. Main thread.
class ZyDialKnob final : public QWidget {
  Q_OBJECT
 public:
  explicit ZyDialKnob(QWidget* parent = nullptr);

  /// Marks around the face, `width` logical pixels long. Black marks follow the palette's text colour in dark
  /// schemes; no background: the window shows through.
  void setTickMarks(const QColor& marks, const std::optional<QColor>& background, double width);
  void setBordered(bool bordered);
  /// True if the user may turn it.
  void setEditable(bool editable);
  /// The field that shows the angle from now on (not owned; may be null).
  void setDmsTextField(NumberField* field);

  [[nodiscard]] bool clockwise() const { return clockwise_; }
  void setClockwise(bool clockwise);

  /// The angle in packed degrees, minutes, seconds; the linked field follows. Sends no signal.
  void setDMSValue(double packed);
  [[nodiscard]] double DMSValue() const { return packed_; }
  /// The angle in radians, in the knob's own sense (see clockwise()).
  [[nodiscard]] double radianValue() const;
  [[nodiscard]] double degreeValue() const;

  /// As if the user had turned it to `degrees`: takes the angle (brought into one turn) and sends turned().
  void turnTo(double degrees);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {48, 48}; }

 signals:
  /// The user turned the knob.
  void turned();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  [[nodiscard]] double degreesAt(QPointF position) const;
  void followPointer(const QMouseEvent& event);
  void announce();
  void drawFace(QPainter& painter, QPointF middle, double radius) const;
  void drawMarks(QPainter& painter, QPointF middle, double radius) const;
  void drawNeedle(QPainter& painter, QPointF middle, double radius) const;

  double packed_ = 0;
  bool clockwise_ = false, bordered_ = true, editable_ = true;
  QColor marks_ = Qt::black;
  std::optional<QColor> background_;
  double markLength_ = 4;
  std::optional<double>
      grab_;  ///< while dragging: the knob's angle minus the pointer's when it was pressed, degrees
  double wheelRest_ = 0;  ///< eighths of a degree of wheel turning not yet spent
  QPointer<NumberField> field_;
};

}  // namespace norvex
