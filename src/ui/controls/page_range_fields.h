// The first and the last of some pages, as two fields.
#pragma once

#include <QWidget>

class QSpinBox;

namespace norvex {

/// Pages are counted from 1. Whoever moves one end past the other means both. Main thread.
class PageRangeFields final : public QWidget {
  Q_OBJECT
 public:
  /// `count`: of the pages that there are, at least 1. Both ends are 1 until they are set.
  explicit PageRangeFields(int count, QWidget* parent = nullptr);

  /// Not told as a change. `first` is not beyond `last`.
  void setPages(int first, int last);
  [[nodiscard]] int first() const;
  [[nodiscard]] int last() const;

  /// Chooses the number that is still being typed, if there is one.
  void takeTyped();

 signals:
  /// A person chose other pages; told once when both ends moved.
  void changed();

 private:
  QSpinBox* addField(const QString& name, const QString& title, int count);

  QSpinBox *first_, *last_;
};

}  // namespace norvex
