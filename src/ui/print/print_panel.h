// The print panel.
#pragma once

#include <QByteArray>
#include <QDialog>
#include <QImage>
#include <QList>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

#include "base/background_work.h"
#include "base/cancel_token.h"
#include "print/job_pages.h"
#include "print/print_info.h"
#include "print/print_operation.h"
#include "print/print_spooler.h"
#include "print/printable_view.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QToolButton;

namespace norvex {

class DocumentPageControls;
class PageLayoutControls;
class PageLayoutPreview;

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
  [[nodiscard]] int pageCount() const { return pages_ ? pages_->sheetCount() : 0; }
  /// Asks for the file in which the pages are saved; a test may put its own answer.
  std::function<QString(const QString& suggestion)> askForFile;
  /// Asks whether that file, which nobody named like this, may be replaced; a test may put its own answer.
  std::function<bool(const QString& path)> mayReplace;

  /// Asks for the printers again, on another thread.
  void fetchPrinters();

  void accept() override;

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Drawn {
    QByteArray picture;
    int number = -1;  ///< of its page, as JobPage::number
    QImage image;
    QString problem;
  };
  void addPrinter(QFormLayout* form);
  void addCopies(QFormLayout* form);
  void addPages(QFormLayout* form);
  QWidget* previewColumn();
  void showPrinters(const Result<QList<Printer>>& printers);
  void showState();
  void showWholeState();
  /// The settings' printer, where it is gone the default one, without that the first.
  [[nodiscard]] QString firstChoice() const;
  [[nodiscard]] bool savesToFile() const;
  void takeChoices();
  void showPage(int page);
  void drawPage();
  void takeDrawing(const Drawn& drawn);

  NSPrintOperation& operation_;
  PrintSpooler& spooler_;
  NSPrintInfo info_;
  PrintSource source_;
  std::optional<JobPages> pages_;
  int page_ = 1;

  QComboBox* printer_ = nullptr;
  QLabel* state_ = nullptr;
  QSpinBox* copies_ = nullptr;
  QRadioButton* allPages_ = nullptr;
  QRadioButton* somePages_ = nullptr;
  QSpinBox* firstPage_ = nullptr;
  QSpinBox* lastPage_ = nullptr;
  DocumentPageControls* documentPages_ = nullptr;  ///< null: there is one page
  PageLayoutControls* layout_;
  QCheckBox* headerAndFooter_;
  PageLayoutPreview* preview_ = nullptr;
  QLabel* pageLabel_ = nullptr;
  QToolButton* previous_ = nullptr;
  QToolButton* next_ = nullptr;
  QPushButton* print_ = nullptr;

  QList<Printer> printers_;
  bool printersKnown_ = false, chosen_ = false;
  QString printersProblem_;
  BackgroundWork asking_, drawing_;
  bool isAsking_ = false, isDrawing_ = false;
  CancelToken ending_;
  QByteArray picture_;      ///< of the page that was drawn last
  int pictureNumber_ = -1;  ///< of that page, as JobPage::number
  bool drawAgain_ = false;
  QTimer settle_, refresh_;
};

}  // namespace norvex
