// ZyPageLayoutAccessory: what the page-layout sheet offers besides paper, orientation and scaling.
#pragma once

#include <QWidget>

#include "print/print_info.h"

class QCheckBox;
class QDoubleSpinBox;
class QGridLayout;

namespace norvex {

/// Margins, centring, header and footer. Lengths are shown in millimetres or, where the locale measures so,
/// in inches. Main thread.
class ZyPageLayoutAccessory final : public QWidget {
  Q_OBJECT
 public:
  explicit ZyPageLayoutAccessory(QWidget* parent = nullptr);

  /// Shows these settings; changed() is not sent.
  void setPrintInfo(const NSPrintInfo& info);
  /// Writes what the controls say, and nothing else, into `info`. A margin that was not touched keeps its
  /// value to the last digit.
  void applyTo(NSPrintInfo& info) const;

 signals:
  /// A person chose something.
  void changed();

 private:
  struct Margin {
    const char* key;
    QDoubleSpinBox* field;
    double points;     ///< as it was set
    double shownThen;  ///< what the field showed for it
  };
  void addMargins(QGridLayout* grid);

  QList<Margin> margins_;
  QCheckBox* horizontally_;
  QCheckBox* vertically_;
  QCheckBox* headerAndFooter_;
  double pointsPerUnit_;
};

}  // namespace norvex
