// Which printer takes the sheets, or a file.
#pragma once

#include <QList>
#include <QObject>
#include <QTimer>

#include "base/background_work.h"
#include "base/cancel_token.h"
#include "print/print_spooler.h"

class QComboBox;
class QDialog;
class QFormLayout;
class QLabel;

namespace norvex {

/// Part of the print panel: the printers, asked for again and again on another thread, and a sentence about
/// the one that is chosen. Main thread.
class PrinterChoice final : public QObject {
  Q_OBJECT
 public:
  /// Adds its rows to `form`. `spooler` and `panel`, its owner, outlive this; `wanted`: the name of the
  /// printer that the settings have; `ending` ends what is asked.
  PrinterChoice(PrintSpooler& spooler, QString wanted, const CancelToken& ending, QFormLayout* form,
                QDialog* panel);
  ~PrinterChoice() override;

  /// Asks for the printers again.
  void fetchPrinters();
  /// The pages become a file.
  [[nodiscard]] bool savesToFile() const;
  /// Empty: the pages become a file.
  [[nodiscard]] QString printerName() const;
  /// Nobody has chosen yet, and the printers are not known: it may become a printer or a file.
  [[nodiscard]] bool isOpen() const { return !areKnown_ && !isChosen_; }
  /// A file, or a printer that is there and takes jobs.
  [[nodiscard]] bool isUsable() const;

 signals:
  /// Another printer, or the same one in another state.
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void takePrinters(const Result<QList<Printer>>& printers);
  void listPrinters();
  /// The settings' printer, where it is gone the default one, without that the first.
  [[nodiscard]] QString firstChoice() const;
  /// Null: it is a file, or no longer there.
  [[nodiscard]] const Printer* chosenPrinter() const;
  [[nodiscard]] QString sentence() const;
  void showState();
  void showWholeState();

  PrintSpooler& spooler_;
  QString wanted_;
  CancelToken ending_;
  QDialog* panel_;
  QComboBox* printer_;
  QLabel* state_;
  QList<Printer> printers_;
  bool areKnown_ = false, isChosen_ = false, isAsking_ = false;
  QString problem_;
  BackgroundWork asking_;
  QTimer refresh_;
};

}  // namespace norvex
