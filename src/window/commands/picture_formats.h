// The formats in which the selected part of a picture is handed on, and their bytes.
#pragma once

#include <QList>
#include <QRectF>
#include <QStringList>

#include <memory>

#include "base/cancel_token.h"
#include "base/promised_value.h"
#include "display/view_compose.h"
#include "encoders/encoder_surroundings.h"
#include "encoders/picture_encoder.h"
#include "picture/image_rep.h"
#include "picture/pdf_image_rep.h"
#include "types/uniform_type.h"

class QThread;

namespace norvex {

/// Bytes of one format. Asking for them blocks for the picture process; empty: they could not be made. Any
/// thread.
using PromisedData = PromisedValue<QByteArray>;

/// A copy of the picture as the window showed it at one moment. Later changes of the view change
/// nothing in it. A value; any thread.
struct PictureSnapshot {
  std::shared_ptr<NSImageRep> imageRep;  ///< null: no picture
  PicturePlacement placement;        ///< how the view placed it; the angle is the view's, radians 0 … 2π
  QRectF rect;                       ///< what is handed on; view coordinates (y up), points
  QRectF frame;                      ///< the view's
  bool clockwise = false;            ///< of the dial
  bool flippedCoordinate = false;    ///< of the view
  EncoderSurroundings surroundings;  ///< of every encoder; the service in it outlives every use
  QThread* home = nullptr;           ///< where the pictures that are made of it live; the main thread
};

/// The snapshot's rectangle as the encoders count it: about the centre of its representation.
[[nodiscard]] PictureRegion regionOf(const PictureSnapshot& snapshot);
/// The snapshot's rectangle and angle as the cut of an SVG document counts them.
[[nodiscard]] SvgCut svgCutOf(const PictureSnapshot& snapshot);

/// A growable list of formats: the elements of the same index of the three lists belong together.
struct PictureFormats {
  QStringList Types;   ///< pasteboard types
  QList<UTType> UTIs;  ///< types of the bytes as files
  QList<std::shared_ptr<PromisedData>> DataObjects;
  /// The picture of the PDF format, made from its bytes and living in the main thread; null without a PDF
  /// format, its value null when there are no bytes. Any thread may ask.
  std::shared_ptr<PromisedValue<std::shared_ptr<NSPDFImageRep>>> pdfImageRep;
  /// Ends what is being made for this list.
  CancelToken cancel;

  void append(const QString& pasteboardType, const UTType& type, std::function<QByteArray()> make);
  void removeAt(qsizetype index);
  [[nodiscard]] qsizetype count() const { return UTIs.count(); }
  /// Place of the first format of that type; -1: none.
  [[nodiscard]] qsizetype indexOf(const UTType& type) const { return UTIs.indexOf(type); }
};

/// The formats of the snapshot's rectangle, best first: EPS, PDF, TIFF of an EPS picture; PDF, EPS, TIFF of a
/// PDF; SVG, PDF, EPS, TIFF of an SVG; none of others. Makes no bytes yet; leaves out at once what is known
/// to have none.
[[nodiscard]] PictureFormats selectionFormats(const PictureSnapshot& snapshot);

/// The formats of the whole, unturned picture that its representation has by itself: SVG, PDF, EPS, TIFF of
/// an SVG; EPS of an EPS; PDF of a PDF.
[[nodiscard]] PictureFormats wholePictureFormats(const PictureSnapshot& snapshot);

/// Adds PNG, JPEG and GIF of the list's PDF format; nothing without one.
void appendRasterFormats(PictureFormats& formats, const PictureSnapshot& snapshot);

/// The same part of the picture for programs that take none of the `offered` formats: SVG, PDF, EPS and PNG,
/// those of them that are not offered; nothing where nothing is. Cancelled with `offered`.
[[nodiscard]] PictureFormats translatedFormats(const PictureFormats& offered,
                                               const PictureSnapshot& snapshot);

/// The snapshot with the whole, unturned picture in the place of its rectangle.
[[nodiscard]] PictureSnapshot wholeOf(PictureSnapshot snapshot);

}  // namespace norvex
