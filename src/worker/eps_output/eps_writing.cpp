#include "worker/eps_output/eps_writing.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "worker/pdf/pdf_numbers.h"

namespace norvex::engine {
namespace {

// Of the images: beyond this zlib spends more time on photographs than the last hundredths of the size are
// worth.
constexpr int kImageCompression = 1;

// The page leaves operands behind now and then. Whoever places the file on a page finds the stacks as they
// were.
const QByteArray kOpening =
    "3 dict begin /NorvexDictionaries countdictstack def count /NorvexOperands exch def /NorvexState save "
    "def\n";
const QByteArray kClosing =
    "countdictstack NorvexDictionaries sub { end } repeat count NorvexOperands sub { pop } repeat\n"
    "NorvexState end restore\n";

QByteArray creationDate() {
  bool fixed = false;
  const qint64 epoch = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&fixed);
  const QDateTime date =
      fixed ? QDateTime::fromSecsSinceEpoch(epoch, Qt::UTC) : QDateTime::currentDateTimeUtc();
  return date.toString(Qt::ISODate).toLatin1();
}

QByteArray header(QSizeF size) {
  const QByteArray wide = QByteArray::number(int(std::ceil(size.width() - 1e-6)));
  const QByteArray high = QByteArray::number(int(std::ceil(size.height() - 1e-6)));
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 " + wide + ' ' + high + "\n%%HiResBoundingBox: 0 0 " +
         decimal(size.width()) + ' ' + decimal(size.height()) +
         "\n%%Title: Untitled\n%%Creator: Norvex " NORVEX_VERSION "\n%%CreationDate: " + creationDate() +
         "\n%%For: \n%%LanguageLevel: 3\n%%DocumentData: Clean7Bit\n%%Pages: 1\n%%EndComments\n";
}

QByteArray rectangle(const QRectF& rect) {
  return decimal(rect.x()) + ' ' + decimal(rect.y()) + ' ' + decimal(rect.width()) + ' ' +
         decimal(rect.height());
}

// The rest, as an image. The image reaches a little over the edge of the hole, so that no seam shows; but
// nothing joins it at the edge of the page.
QRectF holeFor(const EpsImage& image, QSizeF size) {
  const QRectF& rect = image.rect;
  const double inset = 0.5 * rect.width() / std::max(1, image.image.width());
  QRectF hole = rect.adjusted(inset, inset, -inset, -inset);
  if (rect.left() <= 0) hole.setLeft(-1);
  if (rect.top() <= 0) hole.setTop(-1);
  if (rect.right() >= size.width()) hole.setRight(size.width() + 1);
  if (rect.bottom() >= size.height()) hole.setBottom(size.height() + 1);
  return hole;
}

// Everything but the images' places.
QByteArray clipAround(QSizeF size, const QList<EpsImage>& images) {
  const auto corners = [](const QRectF& r) {
    const QByteArray w = decimal(r.width());
    return decimal(r.x()) + ' ' + decimal(r.y()) + " moveto " + w + " 0 rlineto 0 " + decimal(r.height()) +
           " rlineto -" + w + " 0 rlineto closepath\n";
  };
  QByteArray path = "newpath\n" + corners(QRectF(-1, -1, size.width() + 2, size.height() + 2));
  for (const EpsImage& image : images) {
    const QRectF hole = holeFor(image, size);
    if (hole.width() > 0 && hole.height() > 0) path += corners(hole);
  }
  return path + "eoclip newpath\n";
}

constexpr char kUp = 2;  // of the filters of PNG: differences from the row above

struct Samples {
  /// For each row kUp and then for each pixel mask (0: painted), red, green, blue; without masks red, green,
  /// blue. Photographs, which most transparent parts are, take less space as differences and less time to
  /// compress.
  QByteArray bytes;
  bool masked = false;
};

bool hasClearPixel(const Bitmap& image) {
  for (int y = 0; y < image.height(); ++y) {
    const Argb32* row = image.row(y);
    if (std::any_of(row, row + image.width(), [](Argb32 pixel) { return alpha(pixel) == 0; })) return true;
  }
  return false;
}

Samples samplesOf(const Bitmap& image) {
  Samples result;
  result.masked = hasClearPixel(image);
  const size_t first = result.masked ? 0 : 1;
  std::vector<std::array<quint8, 4>> above(size_t(image.width()));
  result.bytes.resize((image.width() * qsizetype(4 - first) + 1) * image.height());
  char* to = result.bytes.data();
  for (int y = 0; y < image.height(); ++y) {
    const Argb32* row = image.row(y);
    *to++ = kUp;
    for (int x = 0; x < image.width(); ++x) {
      const int white = 255 - alpha(row[x]);
      const std::array<quint8, 4> pixel{quint8(white == 255 ? 255 : 0), quint8(red(row[x]) + white),
                                        quint8(green(row[x]) + white), quint8(blue(row[x]) + white)};
      for (size_t i = first; i < pixel.size(); ++i) *to++ = char(pixel[i] - above[size_t(x)][i]);
      above[size_t(x)] = pixel;
    }
  }
  return result;
}

// In a procedure, because the interpreter must have read everything up to the data before it begins to draw.
QByteArray imageText(const EpsImage& part) {
  const Samples samples = samplesOf(part.image);
  const QByteArray w = QByteArray::number(part.image.width());
  const QByteArray h = QByteArray::number(part.image.height());
  const QByteArray common = "/ImageType 1 /Width " + w + " /Height " + h +
                            " /BitsPerComponent 8 /ImageMatrix [" + w + " 0 0 -" + h + " 0 " + h + "]";
  const QByteArray colours = "<< " + common +
                             " /Decode [0 1 0 1 0 1] /DataSource D << /Predictor 15 /Columns " + w +
                             " /Colors " + (samples.masked ? "4" : "3") + " >> /FlateDecode filter >>";
  const QByteArray dictionary = samples.masked ? "<< /ImageType 3 /InterleaveType 1 /DataDict " + colours +
                                                     " /MaskDict << " + common + " /Decode [0 1] >> >>"
                                               : colours;
  return "gsave\n" + decimal(part.rect.x()) + ' ' + decimal(part.rect.y()) + " translate " +
         decimal(part.rect.width()) + ' ' + decimal(part.rect.height()) +
         " scale\n{ 1 dict begin /D currentfile /ASCII85Decode filter def /DeviceRGB setcolorspace\n" +
         dictionary + " image D flushfile end } exec\n" +
         ascii85(qCompress(samples.bytes, kImageCompression).mid(4)) + "\ngrestore\n";
}

}  // namespace

QByteArray ascii85(const QByteArray& bytes) {
  constexpr int lineLength = 76;
  // Every four bytes become at most five digits, every line ends with a break.
  QByteArray text((bytes.size() / 4 + 1) * 5 * (lineLength + 1) / lineLength + 8, Qt::Uninitialized);
  char* to = text.data();
  int column = 0;
  const auto put = [&](char c) {
    *to++ = c;
    if (++column == lineLength) *to++ = '\n', column = 0;
  };
  for (qsizetype i = 0; i < bytes.size(); i += 4) {
    const int count = int(std::min<qsizetype>(4, bytes.size() - i));
    quint32 group = 0;
    for (int k = 0; k < 4; ++k) group = (group << 8) | (k < count ? quint8(bytes[i + k]) : 0u);
    if (group == 0 && count == 4) {
      put('z');
      continue;
    }
    char digits[5];
    for (int k = 4; k >= 0; --k, group /= 85) digits[k] = char('!' + group % 85);
    for (int k = 0; k <= count; ++k) put(digits[k]);
  }
  text.truncate(to - text.constData());
  return text + "~>";
}

QByteArray writeEps(QSizeF size, const PagePostScript& page, const QList<EpsImage>& images) {
  QByteArray eps = header(size);
  eps += "%%BeginProlog\n" + page.procedures + "%%EndProlog\n%%Page: 1 1\n" + kOpening +
         rectangle(QRectF(QPointF(0, 0), size)) + " rectclip\n";
  if (!images.isEmpty()) eps += "gsave\n" + clipAround(size, images);
  eps.reserve(eps.size() + page.setup.size() + page.page.size() + 1000);
  eps += page.setup;
  eps += page.page;
  if (!images.isEmpty()) eps += "grestore\n";
  for (const EpsImage& image : images) eps += imageText(image);
  eps += kClosing;
  eps += "showpage\n%%Trailer\n%%EOF\n";
  return eps;
}

}  // namespace norvex::engine
