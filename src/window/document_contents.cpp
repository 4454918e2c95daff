#include "window/document_contents.h"

#include <QVariant>

#include "metadata/dos_eps_header.h"
#include "metadata/source_text.h"
#include "picture/bitmap_image.h"
#include "picture/chosen_document.h"
#include "picture/document_file.h"
#include "picture/eps_image_rep.h"
#include "picture/first_image.h"
#include "picture/open_picture.h"
#include "picture/pdf_image_rep.h"
#include "picture/picture_header.h"
#include "picture/process/stoppable_process.h"
#include "picture/web_image_rep.h"
#include "window/inspector/chosen_encodings.h"
#include "window/inspector/source_reading.h"

namespace norvex {

namespace {

/// One reading: what the steps share.
struct Reader {
  StoppableService service;
  QUrl fileURL;
  QByteArray bytes;
  CancelToken cancel;
  DocumentContents contents;

  /// False: they cannot be made.
  bool choose(const QString& typeIdentifier, const ReaderChoices& choices) {
    const auto chosen =
        documentAsChosen(service, {bytes, typeIdentifier, fileURL, 0, true}, choices, {}, cancel);
    if (chosen) {
      bytes = chosen->bytes;
      contents.lost = chosen->report.warnings;
    } else {
      contents.error = chosen.error();
    }
    return chosen.ok();
  }

  void take(const QString& typeIdentifier) {
    const auto opened = openPicture(service, {bytes, typeIdentifier, fileURL, 0, true});
    if (!opened) {
      if (contents.kind != DocumentKind::Other) contents.error = opened.error();
      return;
    }
    contents.imageRep = *opened;
    takeRectangles(contents.imageRep.get());
    contents.header = pictureHeader(contents.imageRep.get(),
                                    [this](const QByteArray& tiff) -> std::optional<NSBitmapImageRep> {
                                      const auto preview = service.decodePreview(tiff, cancel);
                                      if (!preview) return std::nullopt;
                                      return *preview;
                                    });
    takeMetafile();
    showPreviewFirst();
  }

  /// While a program is drawn, which may take long, its preview is seen.
  void showPreviewFirst() {
    const QVariant preview = contents.header.value(header::Preview);
    if (preview.canConvert<NSBitmapImageRep>())
      showFirst(*contents.imageRep, toImage(preview.value<NSBitmapImageRep>()));
    else if (contents.metafile)
      showFirst(*contents.imageRep, toImage(contents.metafile->image));
  }

  /// One that cannot be drawn is none: the picture is shown in its place.
  void takeMetafile() {
    if (contents.imageRep->pictureKind() != PictureKind::Eps || contents.header.contains(header::Preview))
      return;
    const QByteArrayView metafile = metafileOf(bytes);
    if (metafile.isEmpty()) return;
    if (const auto drawn = service.decodePreview(metafile.toByteArray(), cancel))
      contents.metafile = MetafilePreview{*drawn, metafile.size()};
  }

  void takeRectangles(const NSImageRep* rep) {
    if (const auto* eps = qobject_cast<const NSEPSImageRep*>(rep))
      contents.pictureRectangle = eps->boundingBox();
    if (const auto* pdf = qobject_cast<const NSPDFImageRep*>(rep)) contents.pictureRectangle = pdf->bounds();
    const auto* svg = qobject_cast<const ZyWebImageRep*>(rep);
    if (!svg) return;
    contents.pictureRectangle = svg->bounds();
    const QVariant viewBox = svg->valueForKey(QStringLiteral("viewBox"));
    if (viewBox.isValid()) contents.viewBox = viewBox.toRectF();
  }

  void readSourceText() {
    const qint64 number = contents.header.value(header::EncodingNumber, 0).toLongLong();
    std::optional<PictureKind> kind;
    QByteArray text;
    if (const NSImageRep* rep = contents.imageRep.get()) {
      kind = rep->pictureKind();
      const auto* svg = qobject_cast<const ZyWebImageRep*>(rep);
      text = svg ? svg->SVGPrettyRepresentation() : rep->sourceBytes();
    }
    contents.sourceText = sourceText(kind, text, number);
    if (kind == PictureKind::Eps) readAsChosen(text);
  }

  void readAsChosen(const QByteArray& source) {
    const QString chosen = chosenEncoding(fileURL.toLocalFile());
    if (!chosen.isEmpty()) {
      const SourceReading reading = readSource(source, chosen, contents.header);
      if (reading.isValid) {
        contents.chosenEncoding = chosen;
        contents.header = reading.header;
        contents.sourceText = reading.text;
        return;
      }
    }
    contents.guess = guessedHeader(source, contents.header);
  }
};

}  // namespace

DocumentContents readDocumentContents(PictureService& service, const QUrl& fileURL, const QString& fileType,
                                      QThread* home, const CancelToken& cancel,
                                      const ReaderChoices& choices) {
  Reader reader{StoppableService(service, cancel), fileURL, {}, cancel, {}};
  reader.contents.kind = documentKind(fileType);
  const Result<QByteArray> file = readDocumentFile(fileURL.toLocalFile());
  if (!file) {
    reader.contents.error = file.error();
    reader.readSourceText();
    return reader.contents;
  }
  reader.bytes = *file;
  if (reader.choose(fileType, choices)) reader.take(fileType);
  reader.readSourceText();
  if (reader.contents.imageRep) {
    reader.contents.imageRep->moveToThread(home);
    reader.contents.process =
        std::dynamic_pointer_cast<StoppableProcess>(reader.contents.imageRep->process());
  }
  return reader.contents;
}

}  // namespace norvex
