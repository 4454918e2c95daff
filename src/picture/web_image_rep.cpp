#include "picture/web_image_rep.h"

#include <utility>

#include "base/background_work.h"
#include "picture/document_file.h"
#include "picture/gzip_stream.h"
#include "picture/pdf_image_rep.h"
#include "types/gzip_mark.h"

namespace norvex {
namespace {

QVariant textOrNothing(const QString& text) {
  return text.isEmpty() ? QVariant() : QVariant(text);
}
QVariant urlOrNothing(const QUrl& url) {
  return url.isEmpty() ? QVariant() : QVariant(url);
}

template <typename Value>
QVariant valueOrNothing(const std::optional<Value>& value) {
  return value ? QVariant::fromValue(*value) : QVariant();
}

QByteArray bytesOrNothing(const Result<PictureBytes>& result) {
  return result ? result->bytes : QByteArray();
}

}  // namespace

ZyWebImageRep::ZyWebImageRep(QByteArray bytes, std::shared_ptr<PictureProcess> process, PictureFacts facts,
                             QUrl fileURL)
    : NSImageRep(PictureKind::Svg, std::move(bytes), std::move(process)),
      facts_(std::move(facts)),
      fileURL_(std::move(fileURL)) {}

ZyWebImageRep::~ZyWebImageRep() {
  cancelPDF_.cancel();
}

Result<std::shared_ptr<ZyWebImageRep>> ZyWebImageRep::imageRepWithData(PictureService& service,
                                                                       const QByteArray& bytes,
                                                                       const QUrl& fileURL,
                                                                       const PictureLimits& limits,
                                                                       const CancelToken& cancel) {
  if (bytes.isEmpty()) return Error{ErrorKind::NotParsable, QStringLiteral("the file is empty")};
  auto process = service.open(bytes, PictureKind::Svg, limits);
  const Result<PictureFacts> facts = process->facts(cancel);
  if (!facts) return facts.error();
  if (facts->pageBounds.isEmpty() || facts->pageBounds.first().isEmpty())
    return Error{ErrorKind::NotParsable, QStringLiteral("the SVG document has no area")};
  return shared(new ZyWebImageRep(bytes, std::move(process), *facts, fileURL));
}

Result<std::shared_ptr<ZyWebImageRep>> ZyWebImageRep::imageRepWithContentsOfURL(PictureService& service,
                                                                                const QUrl& fileURL,
                                                                                const PictureLimits& limits) {
  if (!fileURL.isLocalFile())
    return Error{ErrorKind::CannotRead, QStringLiteral("only local files can be opened")};
  const Result<QByteArray> bytes = readDocumentFile(fileURL.toLocalFile());
  if (!bytes) return bytes.error();
  return imageRepWithData(service, *bytes, fileURL, limits);
}

QByteArray ZyWebImageRep::gzip(const QByteArray& bytes) {
  return gzipStream(bytes).value_or(QByteArray());
}

QVariant ZyWebImageRep::valueForKey(const QString& key) const {
  if (key == QLatin1String(ZyWebViewDescKey)) return textOrNothing(facts_.description);
  if (key == QLatin1String(ZyWebViewTitleKey)) return textOrNothing(facts_.title);
  if (key == QLatin1String(ZyWebViewEncodingKey)) return textOrNothing(facts_.encodingName);
  if (key == QLatin1String(ZyWebViewEncodingNumberKey))
    return facts_.encodingNumber == 0 ? QVariant() : QVariant(qint64(facts_.encodingNumber));
  if (key == QLatin1String(ZyWebViewFixedRatioXKey)) return valueOrNothing(facts_.fixedRatioX);
  if (key == QLatin1String(ZyWebViewFixedRatioYKey)) return valueOrNothing(facts_.fixedRatioY);
  if (key == QLatin1String("viewBox")) return valueOrNothing(facts_.viewBox);
  if (key == QLatin1String(ZyWebViewFileURLKey) || key == QLatin1String("fileURL"))
    return urlOrNothing(fileURL_);
  if (key == QLatin1String(ZyWebViewPDFImageRepKey) && pdfImageRep_) return QVariant::fromValue(pdfImageRep_);
  return {};
}

// ---- representations

QByteArray ZyWebImageRep::SVGRepresentation() const {
  if (!isGzip(sourceBytes())) return sourceBytes();
  return bytesOrNothing(process()->svg({.pretty = false, .rect = std::nullopt, .rotate = 0}));
}

QByteArray ZyWebImageRep::SVGPrettyRepresentation() const {
  return bytesOrNothing(process()->svg({.pretty = true, .rect = std::nullopt, .rotate = 0}));
}

QByteArray ZyWebImageRep::PDFRepresentation() const {
  return bytesOrNothing(process()->pdf({}));
}

QByteArray ZyWebImageRep::EPSRepresentation() const {
  const QSizeF points = size();
  ComposeRequest request;
  request.format = VectorFormat::Eps;
  request.rect = QRectF(QPointF(-points.width() / 2, -points.height() / 2), points);
  return bytesOrNothing(process()->compose(request));
}

QByteArray ZyWebImageRep::xmlDocumentWithSVGInsideRect(const QRectF& rect, double rotate) const {
  return bytesOrNothing(process()->svg({.pretty = false, .rect = rect, .rotate = rotate}));
}

// ---- the PDF form

void ZyWebImageRep::loadPDFImageRep() {
  if (pdfIsLoading_) return;
  pdfIsLoading_ = true;
  if (pdfImageRep_) {
    WayBack(this).tell([this] { finishPDFImageRep(PictureBytes{pdfImageRep_->sourceBytes(), {}}); });
    return;
  }
  workInBackground(
      this, [open = process(), cancel = cancelPDF_] { return open->pdf({}, cancel); },
      [this](const Result<PictureBytes>& pdf) { finishPDFImageRep(pdf); });
}

void ZyWebImageRep::finishPDFImageRep(const Result<PictureBytes>& pdf) {
  pdfIsLoading_ = false;
  if (pdf && !pdfImageRep_) {
    PictureFacts page;
    page.pageBounds = {QRectF(QPointF(), size())};
    pdfImageRep_ = NSPDFImageRep::imageRepWithProcess(process(), pdf->bytes, page);
  }
  emit pdfImageRepDidLoad(pdf.ok(), pdf ? Error() : pdf.error());
}

}  // namespace norvex
