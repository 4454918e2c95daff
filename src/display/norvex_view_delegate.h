// NorvexViewDelegate: who is told what is selected. The window controller is one.
#pragma once

#include <QString>

namespace norvex {

class NorvexView;

/// Main thread only. Not owned by the view.
class NorvexViewDelegate {
 public:
  virtual ~NorvexViewDelegate() = default;

  /// True if norvexView() is of any use; the view asks once, in setDelegate().
  [[nodiscard]] virtual bool respondsToSelectedRangeStrings() const { return true; }
  /// The turning direction of the inspector's dial ("dialKnob").
  [[nodiscard]] virtual bool dialKnobClockwise() const = 0;
  /// The selection changed or was turned. Each text is two numbers separated by one tab, in picture points,
  /// or empty: the start point, the end point and the size. All are empty when nothing is selected; end and
  /// area are empty while only the start point is placed.
  virtual void norvexView(NorvexView& view, const QString& selectedRangeStrings, const QString& end,
                          const QString& area) = 0;
};

}  // namespace norvex
