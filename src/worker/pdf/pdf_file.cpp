#include "worker/pdf/pdf_file.h"

#include <qpdf/QPDFExc.hh>

#include <algorithm>
#include <cmath>
#include <new>
#include <optional>

#include "protocol/limits.h"
#include "worker/pdf/pdf_page_tree.h"

namespace norvex::engine {
namespace {

const QRectF kLetter(0, 0, 612, 792);  // what a page without a usable box is taken for

std::optional<QRectF> rectangle(QPDFObjectHandle array) {
  if (!array.isArray() || array.getArrayNItems() < 4) return std::nullopt;
  double edge[4];
  for (int i = 0; i < 4; ++i) {
    QPDFObjectHandle item = array.getArrayItem(i);
    if (!item.isNumber()) return std::nullopt;
    edge[i] = item.getNumericValue();
    if (!std::isfinite(edge[i]) || std::abs(edge[i]) > limits::maximumPoints) return std::nullopt;
  }
  const QRectF rect = QRectF(QPointF(edge[0], edge[1]), QPointF(edge[2], edge[3])).normalized();
  return rect.isEmpty() ? std::nullopt : std::optional(rect);
}

int rotationOf(QPDFObjectHandle value) {
  if (!value.isNumber()) return 0;
  const double degrees = std::fmod(value.getNumericValue(), 360.0);
  const double positive = degrees < 0 ? degrees + 360 : degrees;
  return positive == 90 || positive == 180 || positive == 270 ? int(positive) : 0;
}

double userUnitOf(QPDFObjectHandle value) {
  if (!value.isNumber()) return 1;
  const double unit = value.getNumericValue();
  return std::isfinite(unit) && unit > 0 && unit < 1.0e4 ? unit : 1;
}

}  // namespace

QSizeF PageGeometry::shownSize() const {
  const QSizeF size = box.size() * userUnit;
  return rotation % 180 == 0 ? size : size.transposed();
}

QRectF PageGeometry::shownBounds() const {
  return QRectF(box.topLeft() * userUnit, shownSize());
}

AffineTransform PageGeometry::userToPicture() const {
  const double u = userUnit;
  const double w = box.width();
  const double h = box.height();
  const AffineTransform toCorner = AffineTransform::fromTranslate(-box.x(), -box.y());
  switch (rotation) {
    case 90:
      return toCorner * AffineTransform(0, -u, u, 0, 0, w * u);
    case 180:
      return toCorner * AffineTransform(-u, 0, 0, -u, w * u, h * u);
    case 270:
      return toCorner * AffineTransform(0, u, -u, 0, h * u, 0);
    default:
      return toCorner * AffineTransform::fromScale(u, u);
  }
}

Error pdfError(const std::exception& caught) {
  if (const auto* known = dynamic_cast<const QPDFExc*>(&caught)) {
    if (known->getErrorCode() == qpdf_e_password)
      return {ErrorKind::Encrypted, QStringLiteral("the document is protected with a password")};
    if (known->getErrorCode() == qpdf_e_unsupported)
      return {ErrorKind::Unsupported,
              QStringLiteral("the document uses an encryption that is not supported")};
    return {ErrorKind::NotParsable, QStringLiteral("the document is not a readable PDF (%1)")
                                        .arg(QString::fromStdString(known->getMessageDetail()).simplified())};
  }
  if (dynamic_cast<const std::bad_alloc*>(&caught))
    return {ErrorKind::Limit, QStringLiteral("there is not enough memory for the document")};
  return {ErrorKind::NotParsable, QStringLiteral("the document is not a readable PDF (%1)")
                                      .arg(QString::fromUtf8(caught.what()).simplified())};
}

Error noSuchPage(int page, int pageCount) {
  return {ErrorKind::Unsupported,
          QStringLiteral("there is no page %1; the document has %2").arg(page + 1).arg(pageCount)};
}

Result<std::unique_ptr<PdfFile>> PdfFile::open(const QByteArray& bytes) {
  return guarded([&]() -> Result<std::unique_ptr<PdfFile>> {
    std::unique_ptr<PdfFile> file(new PdfFile(bytes));
    file->qpdf_->setSuppressWarnings(true);
    file->qpdf_->processMemoryFile("document", file->bytes_.constData(), size_t(file->bytes_.size()));
    Result<PageTree> tree = pageTree(*file->qpdf_);
    if (!tree) return tree.error();
    file->pages_ = std::move(tree->pages);
    file->treeIsDamaged_ = tree->isDamaged;
    if (file->pages_.empty())
      return Error{ErrorKind::NotParsable, QStringLiteral("the document has no pages")};
    return file;
  });
}

PageGeometry PdfFile::geometry(int number) const {
  PageGeometry geometry;
  QPDFObjectHandle page = this->page(number);
  const QRectF media = rectangle(page.getKey("/MediaBox")).value_or(kLetter);
  const QRectF crop = rectangle(page.getKey("/CropBox")).value_or(media).intersected(media);
  geometry.box = crop.isEmpty() ? media : crop;
  geometry.rotation = rotationOf(page.getKey("/Rotate"));
  geometry.userUnit = userUnitOf(page.getKey("/UserUnit"));
  return geometry;
}

QStringList PdfFile::warnings() const {
  if (!treeIsDamaged_ && !qpdf_->anyWarnings()) return {};
  return {QStringLiteral("the file is damaged; it was repaired as far as possible")};
}

}  // namespace norvex::engine
