// One job from a drawing and its settings to paper or to a file. Plain functions, any thread, blocking.
#pragma once

#include <QByteArray>

#include <functional>

#include "picture/process/picture_process.h"
#include "print/print_info.h"
#include "print/print_spooler.h"
#include "print/printable_view.h"

namespace norvex {

/// The drawing's PDF; empty when there is no picture.
[[nodiscard]] Result<QByteArray> pictureOf(const PrintPage& page, const CancelToken& cancel = {});

/// Told before each page of the document is drawn: which of how many that are printed, from 1. On the thread
/// of the job.
using PageProgress = std::function<void(int page, int pages)>;

/// The sheets of the settings' range as one PDF, vectors and text. A page of which no sheet is in the range
/// is not drawn.
[[nodiscard]] Result<QByteArray> composeJob(const PrintSource& source, const NSPrintInfo& info,
                                            PictureService& service, const CancelToken& cancel = {},
                                            const PageProgress& progress = {});

/// One sheet of it, whatever the range; `picture` is what pictureOf() gave of its page. REQUIRES
/// 0 ≤ sheet < JobPages::sheetCount().
[[nodiscard]] Result<QByteArray> composeSheet(const PrintSource& source, const NSPrintInfo& info, int sheet,
                                              const QByteArray& picture, PictureService& service,
                                              const CancelToken& cancel = {});

/// Hands the pages to the printer or writes them to the file that the settings name (whole or not at all; a
/// file that is there is replaced).
[[nodiscard]] Result<void> deliverJob(const QByteArray& pdf, const QString& title, const NSPrintInfo& info,
                                      PrintSpooler& spooler, const CancelToken& cancel = {});

/// All of it.
[[nodiscard]] Result<void> runJob(const PrintSource& source, const NSPrintInfo& info, PictureService& service,
                                  PrintSpooler& spooler, const CancelToken& cancel = {},
                                  const PageProgress& progress = {});

}  // namespace norvex
