// The line between the window (or the command line) and the picture process: every request and reply there
// is.
//
// Transport: a SOCK_STREAM socket pair. A message is a 4-byte little-endian length (of the CBOR that follows,
// at most limits::maximumMessageBytes) and one CBOR map. Everything large (document bytes, bitmaps, PDF and
// EPS results) travels as a sealed memfd whose descriptor is sent with the message's first byte; a message
// carries at most one. The parent treats every reply as hostile: decodeReply() and the checks in the client
// compare every size, count and string with its limit and with the descriptor's real size before use.
#pragma once

#include <QByteArray>
#include <QCborMap>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

#include "base/affine_transform.h"
#include "base/result.h"
#include "protocol/picture_needs.h"

namespace norvex {

inline constexpr int workerProtocolVersion = 9;

/// The engine that a picture needs. Illustrator files are Eps or Pdf inside.
enum class PictureKind { Eps = 1, Pdf = 2, Svg = 3 };

/// The budget of an engine for one document. The other bounds are in protocol/limits.h.
struct PictureLimits {
  int seconds = 120;        ///< wall time of one request; Default: 120
  int memoryMiB = 1024;     ///< address space of the process and its child. Default: 1024
  double megapixels = 100;  ///< largest bitmap. Default: 100
};

// ---- requests
// -------------------------------------------------------------------------------------------------------

/// A layer of a PDF (optional contents, PDF 32000-1, 8.11) that can be switched.
struct PictureLayer {
  QString name;
  bool shown = true;
};

/// First request of every document; its bytes travel as the message's memfd.
struct OpenRequest {
  PictureKind kind = PictureKind::Eps;
  PictureLimits limits;
  QString password = {};  ///< of a document that is protected by one
  QList<PictureLayer> layers =
      {};  ///< in the order of PictureFacts::layers, once or twice: see ReaderChoices
};

enum class RenderPurpose { View = 1, Preview = 2, Export = 3, Print = 4 };

/// Draws a part of a page. Picture coordinates: points, origin at the lower-left corner of the unrotated
/// page, y up.
struct RenderRequest {
  int page = 0;                     ///< from 0
  AffineTransform pictureToDevice;  ///< picture coordinates → pixels of the result (origin top-left, y down)
  QSize pixelSize;                  ///< size of the result; pixels outside the page stay transparent
  RenderPurpose purpose = RenderPurpose::View;
};

/// Entries of the document information of a PDF (PDF 32000-1, 14.3.3) that are set; the others stay as they
/// are.
struct PdfAttributes {
  QHash<QString, QString> texts;  ///< "Title", "Author", "Subject", "Creator", "Producer"
  std::optional<QDateTime> creationDate;
};

/// The whole, unrotated page as a one-page PDF.
struct PdfRequest {
  int page = 0;
  std::optional<PdfAttributes> attributes = {};  ///< of the new PDF
  bool keepActions = false;  ///< of a PDF: launching, scripts, actions, files elsewhere stay in it
};

enum class VectorFormat { Pdf = 1, Eps = 2, Svg = 3 };

/// A rectangle of the rotated picture as one page whose box is that rectangle.
/// View coordinates: origin at the picture's centre, y up, the picture turned by `rotate` about that centre.
struct ComposeRequest {
  VectorFormat format = VectorFormat::Pdf;
  int page = 0;
  QRectF rect;        ///< view coordinates, points; x and y are its lower-left corner
  double rotate = 0;  ///< radians, counter-clockwise positive
  std::optional<PdfAttributes> attributes = {};  ///< of the new PDF; an EPS has none
  bool keepActions = false;                      ///< as in PdfRequest
  bool keepText = false;  ///< of an SVG: text stays text, with the fonts that it is shown in
};

/// The document as SVG text. Only for PictureKind::Svg.
struct SvgRequest {
  /// Indented source with DOCTYPE, entities, comments and CDATA; otherwise cut and turned, or without a
  /// rectangle and an angle the source byte for byte, of a compressed document what it holds.
  bool pretty = true;
  /// For the cut: in the picture's flipped coordinates (origin top-left, y down), points. Absent: the whole
  /// picture.
  std::optional<QRectF> rect;
  double rotate = 0;  ///< radians, clockwise as seen on the screen
};

/// Names: of a PDF alone; others tell them with their facts.
enum class Examination { Contents = 1, Drawn = 2, Inks = 3, Text = 4, Names = 5 };

/// The contents of a page: answered by a BytesReply whose memfd holds one CBOR map, see the reader of each.
struct ExamineRequest {
  Examination what = Examination::Contents;
  int page = 0;
  double dpi = 72;                  ///< of the pixels that are looked at: Drawn, Inks
  bool overprint = false;           ///< Inks: overprinting is simulated
  std::optional<QRectF> part = {};  ///< Inks: this part of the page alone, in picture coordinates
};

/// A TIFF section (the message's memfd) to a bitmap. Needs no open document.
struct DecodePreviewRequest {};

/// A finished PDF, or pages of several (the message's memfd, see page_excerpts.h), with other document
/// information, answered by a BytesReply. Needs no open document. A PDF that is yet to be made takes its
/// attributes with the request that makes it.
struct AttributesRequest {
  PdfAttributes attributes;
};

/// One sheet of paper of a print job: the part of the picture's page that is drawn on it, and where. Points,
/// y up, origins at the lower-left corners of the page and of the sheet. An empty target: a blank sheet.
struct SheetPart {
  QRectF source, target;
};

/// A line of text on every sheet: up to three fields between tabs, at the left end, in the middle, at the
/// right end.
struct SheetLine {
  QString text;
  QRectF rect;  ///< on the sheet; points, y up
};

/// Sheets of paper as one PDF, answered by a BytesReply. The memfd holds the picture, a one-page PDF; it
/// becomes one form that every sheet shows through a window. Needs no open document.
struct PagesRequest {
  QSizeF paper;             ///< of every sheet, as it is read: points
  QList<SheetPart> sheets;  ///< at least one
  QString title;            ///< of the job
  std::optional<SheetLine> header, footer;
  QString fontFamily;   ///< of the lines
  double fontSize = 9;  ///< points
  bool picture = true;  ///< false: there is none, and the memfd means nothing
};

using RequestBody = std::variant<OpenRequest, RenderRequest, PdfRequest, ComposeRequest, SvgRequest,
                                 ExamineRequest, DecodePreviewRequest, AttributesRequest, PagesRequest>;

struct WorkerRequest {
  quint32 id = 0;  ///< from 1, never reused on one connection
  RequestBody body;
};

/// Told to the process that warms up: fork a child that serves the socket travelling with the message (in the
/// place of the memfd). The answer is a ForkReply whose descriptor is a pidfd of the child.
struct ForkRequest {
  PictureLimits limits;
  bool postScript = false;               ///< the child will need Ghostscript: let it be started at once
  PictureNeeds needs = allPictureNeeds;  ///< what the child will be asked for; the rest it may refuse
};

/// No answer is given to it: the cancelled request itself answers (ErrorKind::Cancelled) or was already
/// answered.
struct CancelRequest {
  quint32 id = 0;
};

// ---- replies
// --------------------------------------------------------------------------------------------------------

/// The facts of an opened document.
struct PictureFacts {
  QList<QRectF> pageBounds;  ///< as shown: crop box with the page's own rotation applied, points; one for
                             ///< each page read
  int pageCount = 1;
  QHash<QString, QString>
      attributes;  ///< PDF document information: "Title", "Author", "Subject", "Creator", "Producer"
  std::optional<QDateTime> creationDate;
  // Of a PDF they are examined: Examination::Names.
  QStringList fonts;        ///< SVG: families that its texts name
  QStringList colorSpaces;  ///< SVG: "sRGB"
  // SVG only
  std::optional<QRectF> viewBox;
  QString title, description, encodingName;
  int encodingNumber = 0;
  std::optional<bool> fixedRatioX,
      fixedRatioY;             ///< true: an absolute length, false: a percentage, absent: no attribute
  QStringList warnings;        ///< one plain sentence each
  QList<PictureLayer> layers;  ///< in the document's order, as they are shown now
  QString stoppedBy;  ///< PostScript: why the program ended before its end, one plain sentence; the picture
                      ///< is what it had drawn. Empty: it ran to its end
};

/// Reply with bytes in the message's memfd.
struct BytesReply {
  int regionsRasterised = 0;       ///< parts of the page that the target format could only hold as images
  double rasterisedAreaShare = 0;  ///< 0 … 1 of the page
  double rasterisedDpi = 0;        ///< of the coarsest of these images; 0: there is none, or it is not known
  QStringList warnings;
};

/// Reply with pixels in the message's memfd: premultiplied ARGB32 in native byte order, rows top to bottom.
struct BitmapReply {
  QSize pixelSize;
  int bytesPerRow = 0;
  QStringList warnings;  ///< of the drawing: fonts that others stand in for
};

/// Reply to DecodePreviewRequest; samples in the memfd. The fields are those of NSBitmapImageRep.
struct PreviewReply {
  int pixelsWide = 0, pixelsHigh = 0, bitsPerSample = 8, samplesPerPixel = 1, bytesPerRow = 0;
  bool hasAlpha = false;
  QString colorSpaceName;
  double pointsWide = 0, pointsHigh = 0;
};

struct ForkReply {
  qint64 pid = 0;
};

using ReplyBody = std::variant<PictureFacts, BytesReply, BitmapReply, PreviewReply, ForkReply, Error>;

struct WorkerReply {
  quint32 id = 0;
  ReplyBody body;
};

// ---- CBOR
// -----------------------------------------------------------------------------------------------------------
// encode… never fails. decode… fails (ErrorKind::Protocol) on a wrong type, a missing field, a number out of
// range, a string or list over its limit, or another protocol version.

using WorkerMessage = std::variant<WorkerRequest, ForkRequest, CancelRequest>;

[[nodiscard]] QByteArray encodeMessage(const WorkerMessage& message);
[[nodiscard]] Result<WorkerMessage> decodeMessage(const QByteArray& cbor);
[[nodiscard]] QByteArray encodeReply(const WorkerReply& reply);
[[nodiscard]] Result<WorkerReply> decodeReply(const QByteArray& cbor);

}  // namespace norvex
