// ZyWebImageRep: an SVG document, plain or gzip-compressed.
#pragma once

#include <QColorSpace>
#include <QUrl>
#include <QVariant>

#include "metadata/svg_keys.h"
#include "picture/image_rep.h"

namespace norvex {

class ZyWebImageRep final : public NSImageRep {
  Q_OBJECT
 public:
  /// Nothing (with the reason) when the bytes are not SVG. Blocks for the document's facts.
  static Result<std::shared_ptr<ZyWebImageRep>> imageRepWithData(PictureService& service,
                                                                 const QByteArray& bytes,
                                                                 const QUrl& fileURL = {},
                                                                 const PictureLimits& limits = {},
                                                                 const CancelToken& cancel = {});
  /// The same with the bytes of a local file.
  static Result<std::shared_ptr<ZyWebImageRep>> imageRepWithContentsOfURL(PictureService& service,
                                                                          const QUrl& fileURL,
                                                                          const PictureLimits& limits = {});

  /// A gzip stream of `bytes` whose header holds neither time nor name: the same bytes give the same stream.
  /// Empty when memory is short. Thread-safe.
  [[nodiscard]] static QByteArray gzip(const QByteArray& bytes);

  /// ZyWebViewDescKey, …TitleKey and …EncodingKey give a QString, …EncodingNumberKey a qint64,
  /// …FixedRatioXKey and …YKey a bool, ZyWebViewPDFImageRepKey a std::shared_ptr<NSImageRep>, "viewBox" a
  /// QRectF, ZyWebViewFileURLKey and "fileURL" a QUrl. An invalid QVariant where there is no value, for an
  /// empty text too.
  [[nodiscard]] QVariant valueForKey(const QString& key) const;
  /// The document's own colour space; nothing: it names none.
  [[nodiscard]] std::optional<QColorSpace> colorSpace() const { return std::nullopt; }
  /// Origin (0, 0) and the size in points from width, height, their units and viewBox.
  [[nodiscard]] QRectF bounds() const { return facts_.pageBounds.value(0); }
  /// SVG's y axis points down.
  [[nodiscard]] bool isFlipped() const { return true; }
  [[nodiscard]] QSizeF size() const override { return bounds().size(); }
  [[nodiscard]] QStringList warnings() const override { return facts_.warnings; }
  [[nodiscard]] const PictureFacts& facts() const { return facts_; }

  // The representations block for the picture process; empty when it has none to give. Any thread.
  [[nodiscard]] QByteArray SVGRepresentation() const;  ///< the source; of a compressed one what it holds
  [[nodiscard]] QByteArray SVGPrettyRepresentation()
      const;  ///< indented; bytes in the document's own encoding
  [[nodiscard]] QByteArray PDFRepresentation() const;
  [[nodiscard]] QByteArray EPSRepresentation() const;
  /// The document cut to a rectangle and turned, as SVG bytes. See SvgRequest for the coordinates.
  [[nodiscard]] QByteArray xmlDocumentWithSVGInsideRect(const QRectF& rect, double rotate) const;

  /// Asks for the PDF form in the background; pdfImageRepDidLoad() tells the end. While it is on its way, and
  /// once it is there, a further call asks nothing; in the second case the signal comes again. The object's
  /// thread.
  void loadPDFImageRep();
  ~ZyWebImageRep() override;

 signals:
  /// The PDF form is there (valueForKey(ZyWebViewPDFImageRepKey) gives it) or failed with `error`.
  void pdfImageRepDidLoad(bool success, const norvex::Error& error);

 private:
  ZyWebImageRep(QByteArray bytes, std::shared_ptr<PictureProcess> process, PictureFacts facts, QUrl fileURL);
  void finishPDFImageRep(const Result<PictureBytes>& pdf);

  PictureFacts facts_;
  QUrl fileURL_;
  std::shared_ptr<NSImageRep> pdfImageRep_;
  bool pdfIsLoading_ = false;
  CancelToken cancelPDF_;
};

}  // namespace norvex
