// The page-layout sheet.
#pragma once

#include <QDialog>

#include "print/print_info.h"

class QBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace norvex {

class PageLayoutControls;
class PageLayoutPreview;
class PanelBody;
class ZyPageLayoutAccessory;

/// Paper, orientation and scaling, what its accessories add, and a drawn page. Main thread.
class PageLayoutSheet final : public QDialog {
  Q_OBJECT
 public:
  PageLayoutSheet(const NSPrintInfo& info, QWidget* window);

  /// Adds controls below the sheet's own; taken over.
  void addAccessoryController(ZyPageLayoutAccessory* accessory);
  /// The settings that the sheet was given, with everything that was chosen.
  [[nodiscard]] const NSPrintInfo& printInfo() const { return info_; }

 private:
  void takeChoices();
  void showPage();

  NSPrintInfo info_;
  PageLayoutControls* controls_;
  PageLayoutPreview* preview_;
  QBoxLayout* halves_;
  QVBoxLayout* column_;
  PanelBody* body_ = nullptr;
  QPushButton* ok_ = nullptr;
  QList<ZyPageLayoutAccessory*> accessories_;
};

}  // namespace norvex
