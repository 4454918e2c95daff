// ZyWebImageRep: an SVG document, plain or gzip-compressed.
#pragma once

#include <QColorSpace>
#include <QUrl>
#include <QVariant>

#include "platform/picture/image_rep.h"

namespace norvex {

inline constexpr char ZyWebViewDescKey[] = "ZyWebViewDesc";
inline constexpr char ZyWebViewTitleKey[] = "ZyWebViewTitle";
inline constexpr char ZyWebViewEncodingKey[] = "ZyWebViewEncoding";
inline constexpr char ZyWebViewEncodingNumberKey[] = "ZyWebViewEncodingNumber";
inline constexpr char ZyWebViewFixedRatioXKey[] = "ZyWebViewFixedRatioX";
inline constexpr char ZyWebViewFixedRatioYKey[] = "ZyWebViewFixedRatioY";
inline constexpr char ZyWebViewPDFImageRepKey[] = "ZyWebViewPDFImageRep";
inline constexpr char ZyWebViewFileURLKey[] = "ZyWebViewFileURL";
inline constexpr char PDFImageRepDidLoadResultKey[] = "PDFImageRepDidLoadResult";
inline constexpr char PDFImageRepDidLoadErrorKey[] = "PDFImageRepDidLoadError";
inline constexpr char ZyWebViewSVGZExtension[] = "svgz";
inline constexpr char ZySVGPboardType[] = "public.svg-image";
inline constexpr char ZySVGDocumentTypeName[] = "public.svg-image";

class ZyWebImageRep final : public NSImageRep {
  Q_OBJECT
 public:
  /// Nothing (with the reason) when the bytes are not SVG. Blocks for the document's facts.
  static Result<std::shared_ptr<ZyWebImageRep>> imageRepWithData(PictureService& service, const QByteArray& bytes,
                                                                 const QUrl& fileURL = {}, const PictureLimits& limits = {});
  static Result<std::shared_ptr<ZyWebImageRep>> imageRepWithContentsOfURL(PictureService& service, const QUrl& fileURL,
                                                                          const PictureLimits& limits = {});

  /// The keys above, "viewBox" (QRectF) and "fileURL" (QUrl); an invalid QVariant where there is no value.
  [[nodiscard]] QVariant valueForKey(const QString& key) const;
  /// The document's own colour space; nothing: it names none.
  [[nodiscard]] std::optional<QColorSpace> colorSpace() const { return std::nullopt; }
  /// Origin (0, 0) and the size in points from width, height, their units and viewBox.
  [[nodiscard]] QRectF bounds() const { return facts_.pageBounds.value(0); }
  /// SVG's y axis points down.
  [[nodiscard]] bool isFlipped() const { return true; }
  [[nodiscard]] QSizeF size() const override { return bounds().size(); }
  [[nodiscard]] const PictureFacts& facts() const { return facts_; }

  // The representations block for the picture process; empty when it has none to give. Any thread.
  [[nodiscard]] QByteArray SVGRepresentation() const;        ///< the source, inflated
  [[nodiscard]] QByteArray SVGPrettyRepresentation() const;  ///< indented; bytes in the document's own encoding
  [[nodiscard]] QByteArray PDFRepresentation() const;
  [[nodiscard]] QByteArray EPSRepresentation() const;
  /// The document cut to a rectangle and turned, as SVG bytes. See SvgRequest for the coordinates.
  [[nodiscard]] QByteArray xmlDocumentWithSVGInsideRect(const QRectF& rect, double rotate) const;

  /// Asks for the PDF form in the background; pdfImageRepDidLoad() tells the end. Main thread.
  void loadPDFImageRep();

 signals:
  /// The PDF form is there (valueForKey(ZyWebViewPDFImageRepKey) gives it) or failed with `error`.
  void pdfImageRepDidLoad(bool success, const norvex::Error& error);

 private:
  ZyWebImageRep(QByteArray bytes, std::shared_ptr<PictureProcess> process, PictureFacts facts, QUrl fileURL);
  PictureFacts facts_;
  QUrl fileURL_;
  std::shared_ptr<NSImageRep> pdfImageRep_;
};

}  // namespace norvex
