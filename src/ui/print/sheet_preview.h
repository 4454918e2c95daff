// The sheets of a job as they will be printed, to be leafed through.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include <optional>

#include "base/background_work.h"
#include "base/cancel_token.h"
#include "picture/process/picture_process.h"
#include "print/job_pages.h"
#include "print/print_info.h"
#include "print/printable_view.h"

class QLabel;
class QToolButton;

namespace norvex {

class PageLayoutPreview;

/// Part of the print panel: one sheet, drawn on another thread, with its number between two arrows. Main
/// thread.
class SheetPreview final : public QWidget {
  Q_OBJECT
 public:
  /// `pictures` outlives this; `panel`: where it will be shown; `ending` ends what is drawn.
  SheetPreview(const PrintSource& source, PictureService& pictures, const CancelToken& ending,
               const QWidget& panel);
  ~SheetPreview() override;

  /// The sheet that is shown stays, or the last one where there are fewer now.
  void setPages(const JobPages& pages, const NSPrintInfo& info);
  /// A sentence in the place of sheets that cannot be made.
  void setProblem(const QString& sentence);

 private:
  struct Drawn {
    QByteArray picture;
    int number = -1;  ///< of its page, as JobPage::number
    QImage image;
    QString problem;
  };
  /// `sheet` from 1.
  void showSheet(int sheet);
  void draw();
  void takeDrawing(const Drawn& drawn);

  PrintSource source_;
  PictureService& pictures_;
  CancelToken ending_;
  NSPrintInfo info_;
  std::optional<JobPages> pages_;
  int sheet_ = 1;
  PageLayoutPreview* preview_;
  QLabel* label_;
  QToolButton *previous_, *next_;
  BackgroundWork drawing_;
  bool isDrawing_ = false, drawAgain_ = false;
  QByteArray picture_;      ///< of the page that was drawn last
  int pictureNumber_ = -1;  ///< of that page, as JobPage::number
  QTimer settle_;
};

}  // namespace norvex
