// Export…: the picture or a part of it in any format that the command line writes.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

#include "base/result.h"

namespace norvex {

class CopyCommand;
class ExportDialog;
class WindowParts;

/// Opens the dialog, makes the file that its choices mean while it is open, and writes it in the background.
/// Parts and copying are borrowed and outlive it. Main thread.
class ExportCommand final : public QObject {
  Q_OBJECT
 public:
  ExportCommand(WindowParts& parts, const CopyCommand& copying, QObject* parent);
  ~ExportCommand() override;

  /// Nothing happens without a picture, and while the dialog is open.
  void run();
  [[nodiscard]] ExportDialog* dialog() const;

 signals:
  /// A file that was chosen in the dialog is written, or it is not.
  void ended(const QString& path, bool written);

 private:
  struct Making;
  void make();
  /// Ends what is being made.
  void drop();
  void take(const std::shared_ptr<Making>& making);
  void write();
  /// Blocks; any thread.
  static Result<void> written(const QString& path, Making& making);
  /// `number`: what the window's work calls the writing.
  void end(const QString& path, int number, const Result<void>& result);
  [[nodiscard]] bool mayReplace(const QString& path);

  WindowParts& parts_;
  const CopyCommand& copying_;
  QPointer<ExportDialog> dialog_;
  std::shared_ptr<Making> making_;  ///< of the choices as they are; null without a dialog
  QTimer rest_;                     ///< runs while the choices change one after the other
};

}  // namespace norvex
