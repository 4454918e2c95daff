// One job from a drawing and its settings to paper or to a file. Plain functions, any thread, blocking.
#pragma once

#include <QByteArray>

#include "picture/process/picture_process.h"
#include "print/pagination.h"
#include "print/print_info.h"
#include "print/print_spooler.h"
#include "print/printable_view.h"

namespace norvex {

/// Where the job's pages are, header and footer included when the settings ask for them and the drawing has
/// them.
[[nodiscard]] Result<Pagination> paginationOf(const PrintSource& source, const NSPrintInfo& info);

/// The drawing's PDF; empty when there is no picture.
[[nodiscard]] Result<QByteArray> pictureOf(const PrintSource& source, const CancelToken& cancel = {});

/// The pages of the settings' range as one PDF, vectors and text. `picture` is what pictureOf() gave.
[[nodiscard]] Result<QByteArray> composeJob(const PrintSource& source, const NSPrintInfo& info,
                                            PictureService& service, const QByteArray& picture,
                                            const CancelToken& cancel = {});

/// Hands the pages to the printer or writes them to the file that the settings name (whole or not at all; a
/// file that is there is replaced).
[[nodiscard]] Result<void> deliverJob(const QByteArray& pdf, const QString& title, const NSPrintInfo& info,
                                      PrintSpooler& spooler, const CancelToken& cancel = {});

/// All of it.
[[nodiscard]] Result<void> runJob(const PrintSource& source, const NSPrintInfo& info, PictureService& service,
                                  PrintSpooler& spooler, const CancelToken& cancel = {});

}  // namespace norvex
