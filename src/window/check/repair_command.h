// A mended copy of a window's picture.
#pragma once

#include <QObject>
#include <QString>

#include "base/cancel_token.h"
#include "check/finding.h"
#include "picture_check/repaired_picture.h"

class QComboBox;
class QWidget;

namespace norvex {

class WindowParts;

/// Asks where the copy goes, mends in the background, writes it whole or not at all, tells what was changed
/// and offers to open it. The document stays what it is; its own file is replaced only where the panel has
/// asked. The parts outlive it. Main thread.
class RepairCommand final : public QObject {
  Q_OBJECT
 public:
  RepairCommand(WindowParts& parts, QObject* parent);
  ~RepairCommand() override;

  /// For all of these findings. Nothing happens without a file, and while one is being mended.
  void run(const Findings& findings);
  /// True between the panel's answer and the end.
  [[nodiscard]] bool isRepairing() const { return repairing_; }

  /// What is proposed for the preview: made anew where the picture was to have one and it is of no use, or
  /// where that is all that is to be mended.
  [[nodiscard]] static PreviewUse proposedPreview(const Findings& findings);

 signals:
  void ended(const QString& path, bool written);

 private:
  void repair(const QString& path, PreviewUse preview);
  void end(const QString& path, int number, const Result<RepairedPicture>& repaired);
  void tell(const QString& path, const RepairedPicture& repaired);

  WindowParts& parts_;
  QWidget* accessory_;  ///< in the panel while that is on the screen
  QComboBox* preview_;
  bool repairing_ = false;
};

}  // namespace norvex
