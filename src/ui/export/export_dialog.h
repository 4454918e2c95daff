// The Export dialog: what is written, how, where to, and what it will look like.
#pragma once

#include <QDialog>
#include <QImage>

#include "ui/export/export_choice.h"

class QLabel;
class QPushButton;

namespace norvex {

class ExportOptions;
class ExportTarget;
class ZyImageView;

/// A sheet of the document's window. It makes nothing itself: it asks with changed() and is told what came of
/// it. Main thread.
class ExportDialog final : public QDialog {
  Q_OBJECT
 public:
  ExportDialog(QWidget* window, const ExportOffer& offer, const ExportChoice& first);

  [[nodiscard]] ExportChoice choice() const;
  /// Chooses the number that is still being typed, if there is one.
  void takeTyped();
  /// Empty without a name.
  [[nodiscard]] QString path() const;

  /// The file for choice() is being made.
  void showMaking();
  /// It is made: how it looks, how large it is, and what there is to tell about it, a sentence each.
  void showMade(const QImage& preview, qint64 bytes, const QStringList& remarks);
  /// It cannot be made; a sentence.
  void showProblem(const QString& sentence);

 signals:
  /// choice() is another one.
  void changed();
  /// The file is to be written to path().
  void chosen();

 private:
  QWidget* makePreview();
  QWidget* makeButtons();
  void validate();

  ExportOptions* options_;
  ExportTarget* target_;
  ZyImageView* preview_;
  QLabel *expected_, *remarks_;
  QPushButton* export_;
  bool impossible_ = false;
};

}  // namespace norvex
