// The contents of a document window, read from a file without a window.
#pragma once

#include <QRectF>
#include <QString>
#include <QThread>
#include <QUrl>

#include <memory>
#include <optional>

#include "base/cancel_token.h"
#include "metadata/guessed_header.h"
#include "metadata/header_dictionary.h"
#include "picture/image_rep.h"
#include "picture/process/picture_process.h"
#include "picture/process/reader_choices.h"
#include "types/document_kind.h"

namespace norvex {

class StoppableProcess;

/// A Windows metafile in the place of a preview.
struct MetafilePreview {
  NSBitmapImageRep image;
  qint64 bytes = 0;  ///< of the metafile
};

/// Everything that is read from the file; controls are filled from it in one go.
struct DocumentContents {
  DocumentKind kind = DocumentKind::Other;
  std::shared_ptr<NSImageRep> imageRep;     ///< null: the file cannot be made into a picture
  HeaderDictionary header;                  ///< empty without a picture
  std::optional<MetafilePreview> metafile;  ///< of an EPS file that has no other preview
  QRectF pictureRectangle{0, 0, 0, 0};  ///< bounding box, PDF bounds or SVG bounds; zero without a picture
  std::optional<QRectF> viewBox;        ///< SVG only; nothing: the document has none
  QString sourceText;
  QString chosenEncoding;  ///< in which header and text are read; empty: in the one that was found
  std::optional<GuessedHeader> guess;         ///< of a source in no encoding
  QStringList lost;                           ///< by the reader's choices: sentences, see chosenPdf()
  std::optional<Error> error;                 ///< why there is no picture
  std::shared_ptr<StoppableProcess> process;  ///< what renders; null without a picture
};

/// Reads the file again from its place. Blocks for the picture process (until `cancel`), never throws; any
/// thread. The image rep is handed to `home`, in which it may be drawn and dies.
[[nodiscard]] DocumentContents readDocumentContents(PictureService& service, const QUrl& fileURL,
                                                    const QString& fileType, QThread* home,
                                                    const CancelToken& cancel = {},
                                                    const ReaderChoices& choices = {});

}  // namespace norvex
