#include "window/document_contents.h"

#include "metadata/eps_header.h"
#include "metadata/pdf_header.h"
#include "metadata/source_text.h"
#include "picture/document_file.h"
#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/stoppable_process.h"
#include "picture/svg_header.h"
#include "picture/web_image_rep.h"

namespace norvex {

namespace {

/// One reading: what the steps share.
struct Reader {
  StoppableService service;
  QUrl fileURL;
  QByteArray bytes;
  CancelToken cancel;
  DocumentContents contents;

  bool takeEps() {
    const auto made = NSEPSImageRep::imageRepWithData(service, bytes);
    if (!made) return fail(made.error());
    contents.imageRep = *made;
    contents.pictureRectangle = (*made)->boundingBox();
    contents.header = epsHeader(bytes, [this](const QByteArray& tiff) -> std::optional<NSBitmapImageRep> {
      const auto preview = service.decodePreview(tiff, cancel);
      if (!preview) return std::nullopt;
      return *preview;
    });
    return true;
  }

  bool takePdf() {
    const auto made = NSPDFImageRep::imageRepWithData(service, bytes);
    if (!made) return fail(made.error());
    contents.imageRep = *made;
    contents.pictureRectangle = (*made)->bounds();
    contents.header = pdfHeader(Result<PictureFacts>((*made)->facts()));
    return true;
  }

  bool takeSvg() {
    const auto made = ZyWebImageRep::imageRepWithData(service, bytes, fileURL);
    if (!made) return fail(made.error());
    const std::shared_ptr<ZyWebImageRep>& rep = *made;
    contents.imageRep = rep;
    contents.pictureRectangle = rep->bounds();
    const QVariant viewBox = rep->valueForKey(QStringLiteral("viewBox"));
    if (viewBox.isValid()) contents.viewBox = viewBox.toRectF();
    contents.header = svgHeader(Result<PictureFacts>(rep->facts()), rep->colorSpace());
    return true;
  }

  bool fail(const Error& error) {
    contents.error = error;
    return false;
  }

  void take() {
    bool made = false;
    switch (contents.kind) {
      case DocumentKind::Svg:
        made = takeSvg();
        break;
      case DocumentKind::Eps:
        made = takeEps();
        break;
      // Illustrator writes PostScript or PDF; only trying tells.
      case DocumentKind::Illustrator:
        made = takeEps() || takePdf();
        break;
      case DocumentKind::Pdf:
        made = takePdf();
        break;
      case DocumentKind::Other:
        break;
    }
    if (made) contents.error.reset();
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
  }
};

}  // namespace

DocumentContents readDocumentContents(PictureService& service, const QUrl& fileURL, const QString& fileType,
                                      QThread* home, const CancelToken& cancel) {
  Reader reader{StoppableService(service, cancel), fileURL, {}, cancel, {}};
  reader.contents.kind = documentKind(fileType);
  const Result<QByteArray> file = readDocumentFile(fileURL.toLocalFile());
  if (!file) {
    reader.contents.error = file.error();
    reader.readSourceText();
    return reader.contents;
  }
  reader.bytes = *file;
  reader.take();
  reader.readSourceText();
  if (reader.contents.imageRep) {
    reader.contents.imageRep->moveToThread(home);
    reader.contents.process =
        std::dynamic_pointer_cast<StoppableProcess>(reader.contents.imageRep->process());
  }
  return reader.contents;
}

}  // namespace norvex
