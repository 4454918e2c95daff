// The controls of a page: paper, orientation, scaling.
#pragma once

#include <QWidget>

#include "platform/print/print_info.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QRadioButton;

namespace norvex {

/// Part of the page-layout sheet and of the print panel. Main thread.
class PageLayoutControls final : public QWidget {
  Q_OBJECT
 public:
  /// `options`: which of the controls there are (NSPrintPanelShowsPaperSize, …Orientation, …Scaling).
  explicit PageLayoutControls(int options, QWidget* parent = nullptr);

  /// Shows these settings; changed() is not sent.
  void setPrintInfo(const NSPrintInfo& info);
  /// Writes what the controls say, and nothing else, into `info`. A factor that was not touched keeps its value.
  void applyTo(NSPrintInfo& info) const;
  [[nodiscard]] QFormLayout* form() const { return form_; }

 signals:
  /// A person chose something.
  void changed();

 private:
  void addPaper();
  void addOrientation();
  void addScaling();

  QFormLayout* form_;
  QComboBox* paper_ = nullptr;
  QRadioButton* portrait_ = nullptr;
  QRadioButton* landscape_ = nullptr;
  QDoubleSpinBox* scaling_ = nullptr;
  QCheckBox* fit_ = nullptr;
  double factor_ = 1, shownThen_ = 100;  ///< the factor that was set, and what the field showed for it
};

}  // namespace norvex
