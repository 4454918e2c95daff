// PictureEncoder: the shown picture as the bytes of each format. The window's commands and the command line
// share it.
#pragma once

#include <QByteArray>
#include <QStringList>

#include <memory>
#include <optional>

#include "encoders/doc_raster_image.h"
#include "encoders/encoder_surroundings.h"
#include "encoders/raster_codecs.h"
#include "metadata/header_dictionary.h"
#include "picture/image_rep.h"
#include "types/picture_format.h"

namespace norvex {

/// The remarks of a production besides its bytes.
struct EncodingReport {
  int regionsRasterised = 0;       ///< parts that the target could only hold as images
  double rasterisedAreaShare = 0;  ///< 0 … 1 of the picture
  double rasterisedDpi = 0;        ///< of the coarsest of them; 0: there is none, or it is not known
  QStringList warnings;            ///< one plain sentence each
  QString shortcoming;             ///< the warning that a part of the source is not in the bytes; empty: none
  std::optional<Error> error;      ///< why there are no bytes
};

/// Where an SVG document is cut: counted from the upper left corner of the turned picture, y down, points.
struct SvgCut {
  QRectF rect;
  double angle = 0;  ///< radians, clockwise
};

/// Each producer blocks for the picture process and returns the bytes, or none: the report then says why. One
/// object serves one picture; its calls come one after the other, on any thread.
class PictureEncoder {
 public:
  PictureEncoder(std::shared_ptr<NSImageRep> imageRep, EncoderSurroundings surroundings,
                 CancelToken cancel = {});

  /// EPS. An EPS source is handed on as it is; anything else gets its comments from the header dictionary.
  [[nodiscard]] QByteArray postScriptData();
  /// `postScript` (UTF-8) with its comments rewritten from the header dictionary.
  [[nodiscard]] QByteArray addEPSHeader(const QByteArray& postScript);
  /// Binary EPS with an uncompressed TIFF preview. Where there is no PostScript its section is empty, and the
  /// report tells of the shortcoming.
  [[nodiscard]] QByteArray postScriptDataWithPreview();
  /// EPS with an interchange preview.
  [[nodiscard]] QByteArray epsiData();
  /// PDF. A PDF source is handed on as it is; anything else gets document attributes.
  [[nodiscard]] QByteArray pdfData();
  /// `pdf` with its document attributes set from the header dictionary; none for none.
  [[nodiscard]] QByteArray addPDFHeader(const QByteArray& pdf);

  /// The pixels of any picture in a raster format of the table.
  [[nodiscard]] QByteArray rasterData(PictureFormat format, const std::shared_ptr<NSImageRep>& imageRep);
  [[nodiscard]] QByteArray tiffData(const std::shared_ptr<NSImageRep>& imageRep);
  [[nodiscard]] QByteArray pngData(const std::shared_ptr<NSImageRep>& imageRep);
  [[nodiscard]] QByteArray jpgData(const std::shared_ptr<NSImageRep>& imageRep);
  [[nodiscard]] QByteArray gifData(const std::shared_ptr<NSImageRep>& imageRep);
  /// SVG: indented of an SVG picture, drawn of any other.
  [[nodiscard]] QByteArray svgData();
  /// A part of an SVG picture as a document of its own, cut out of its source; none of other pictures.
  [[nodiscard]] QByteArray svgInside(const SvgCut& cut);

  [[nodiscard]] const std::shared_ptr<NSImageRep>& imageRep() const { return imageRep_; }
  [[nodiscard]] const EncodingReport& report() const { return report_; }
  /// The picture's header dictionary; its source is read at the first call.
  [[nodiscard]] const HeaderDictionary& header();

 private:
  [[nodiscard]] bool handsOnSource() const { return !surroundings_.region && !surroundings_.onePage; }
  [[nodiscard]] QByteArray composed(VectorFormat format, const std::optional<PdfAttributes>& attributes = {});
  /// Nothing, and the reason in the report: they cannot be stored.
  [[nodiscard]] std::optional<PdfAttributes> attributesFrom(const HeaderDictionary& facts);
  [[nodiscard]] QByteArray take(Result<PictureBytes> result);
  void retire() const;
  [[nodiscard]] QByteArray fail(const Error& error);
  [[nodiscard]] std::optional<NSBitmapImageRep> bitmapOf(const std::shared_ptr<NSImageRep>& imageRep,
                                                         const RasterSettings& settings);
  [[nodiscard]] std::optional<NSBitmapImageRep> rasterOf(const std::shared_ptr<NSImageRep>& imageRep);
  [[nodiscard]] QByteArray programOfEps();
  void noteDepth(int bitsPerPixel) const;
  void addWarnings(const QStringList& warnings);
  [[nodiscard]] RasterProperties rasterProperties() const;

  std::shared_ptr<NSImageRep> imageRep_;
  EncoderSurroundings surroundings_;
  CancelToken cancel_;
  EncodingReport report_;
  std::optional<HeaderDictionary> header_;
};

}  // namespace norvex
