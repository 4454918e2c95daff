// The print panel.
#pragma once

#include <QDialog>

#include <functional>
#include <optional>

#include "base/cancel_token.h"
#include "print/job_pages.h"
#include "print/print_info.h"
#include "print/print_operation.h"
#include "print/print_spooler.h"
#include "print/printable_view.h"

class QCheckBox;
class QFormLayout;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace norvex {

class DocumentPageControls;
class PageLayoutControls;
class PrinterChoice;
class SheetPreview;

/// The operation's settings and its pages as they will be printed. What is chosen is written into the
/// operation when the panel is accepted. The printers and the previews are fetched on other threads. Main
/// thread.
class PrintPanel final : public QDialog {
  Q_OBJECT
 public:
  /// Both are borrowed and outlive the panel.
  PrintPanel(NSPrintOperation& operation, PrintSpooler& spooler, QWidget* window);
  ~PrintPanel() override;

  /// The settings as they are chosen now.
  [[nodiscard]] const NSPrintInfo& printInfo() const { return info_; }
  /// Number of sheets that the settings make; 0 where they make none.
  [[nodiscard]] int sheetCount() const { return pages_ ? pages_->sheetCount() : 0; }
  /// Asks for the file in which the pages are saved; a test may put its own answer.
  std::function<QString(const QString& suggestion)> askForFile;
  /// Asks whether that file, which nobody named like this, may be replaced; a test may put its own answer.
  std::function<bool(const QString& path)> mayReplace;

  void accept() override;

 private:
  void addCopies(QFormLayout* form);
  void addPages(QFormLayout* form);
  void takeChoices();
  void takePrinter();
  void showButton();

  NSPrintOperation& operation_;
  NSPrintInfo info_;
  PrintSource source_;
  std::optional<JobPages> pages_;
  CancelToken ending_;

  PrinterChoice* printer_ = nullptr;
  QSpinBox* copies_ = nullptr;
  QRadioButton* allPages_ = nullptr;
  QRadioButton* somePages_ = nullptr;
  QSpinBox* firstPage_ = nullptr;
  QSpinBox* lastPage_ = nullptr;
  DocumentPageControls* documentPages_ = nullptr;  ///< null: there is one page
  PageLayoutControls* layout_;
  QCheckBox* headerAndFooter_;
  SheetPreview* preview_ = nullptr;
  QPushButton* print_ = nullptr;
};

}  // namespace norvex
