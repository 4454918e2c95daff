// The controls of a page: paper, orientation, scaling.
#pragma once

#include <QObject>

#include "print/print_info.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QRadioButton;

namespace norvex {

/// Part of the page-layout sheet and of the print panel. Main thread.
class PageLayoutControls final : public QObject {
  Q_OBJECT
 public:
  /// Adds its controls as rows to `form`, which outlives this. `options`: which of them there are
  /// (NSPrintPanelShowsPaperSize, …Orientation, …Scaling).
  PageLayoutControls(int options, QFormLayout* form, QObject* parent = nullptr);

  /// Shows these settings; changed() is not sent.
  void setPrintInfo(const NSPrintInfo& info);
  /// Writes what the controls say, and nothing else, into `info`. A factor that was not touched keeps its
  /// value.
  void applyTo(NSPrintInfo& info) const;

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
