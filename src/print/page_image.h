// A page of a job as it will be printed, for previews.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include "picture/process/picture_process.h"
#include "print/print_info.h"
#include "print/printable_view.h"

namespace norvex {

/// The contents of one preview. A value.
struct PageImageRequest {
  PrintSource source;
  NSPrintInfo info;
  QByteArray picture;  ///< what pictureOf() gave of the page that the sheet shows
  int sheet = 0;       ///< of all sheets, whatever the settings' range; from 0
  QSize pixels;        ///< the sheet fills it
};

/// The same sheet that would be printed, opened again and drawn, on white. Any thread; blocks.
[[nodiscard]] Result<QImage> pageImage(const PageImageRequest& request, PictureService& service,
                                       const CancelToken& cancel = {});

}  // namespace norvex
