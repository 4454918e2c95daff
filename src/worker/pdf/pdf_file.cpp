#include "worker/pdf/pdf_file.h"

#include <qpdf/QPDFExc.hh>

#include <algorithm>
#include <cmath>
#include <new>
#include <optional>

#include "protocol/limits.h"
#include "protocol/shared_errors.h"
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

// The drawing is not encrypted where the filters of streams and of strings are that of the identity: then
// the password is for attached files alone. qpdf has read everything else when it finds none.
bool drawsWithoutPassword(QPDF& qpdf) {
  QPDFObjectHandle trailer = qpdf.getTrailer();
  QPDFObjectHandle encryption =
      trailer.isDictionary() ? trailer.getKey("/Encrypt") : QPDFObjectHandle::newNull();
  if (!encryption.isDictionary()) return false;
  QPDFObjectHandle version = encryption.getKey("/V");
  if (!version.isInteger() || version.getIntValue() < 4) return false;
  for (const char* key : {"/StmF", "/StrF"})
    if (QPDFObjectHandle filter = encryption.getKey(key);
        !filter.isNull() && !filter.isNameAndEquals("/Identity"))
      return false;
  return true;
}

// The objects are all there, and only what says which of them is the catalogue is missing or damaged.
std::optional<QByteArray> withTrailer(const QByteArray& bytes, QPDF& qpdf) {
  QByteArray catalogue;
  size_t count = 0;
  for (QPDFObjectHandle object : qpdf.getAllObjects()) {
    count = std::max(count, size_t(object.getObjectID()) + 1);
    if (object.isDictionaryOfType("/Catalog") && object.getKey("/Pages").isDictionary())
      catalogue = QByteArray::fromStdString(object.unparse());
  }
  if (catalogue.isEmpty()) return std::nullopt;
  QByteArray mended = bytes;
  for (qsizetype at = 0; (at = mended.indexOf("\ntrailer", at)) >= 0; ++at)
    mended.replace(at + 1, 7, "       ");
  for (qsizetype at = 0; (at = mended.indexOf("\nstartxref", at)) >= 0; ++at)
    mended.replace(at + 1, 9, "         ");
  return mended + "\ntrailer\n<< /Size " + QByteArray::number(qsizetype(count)) + " /Root " + catalogue +
         " >>\nstartxref\n0\n%%EOF\n";
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

Result<std::unique_ptr<PdfFile>> PdfFile::open(const QByteArray& bytes, const QString& password) {
  Result<std::unique_ptr<PdfFile>> opened = guarded([&]() -> Result<std::unique_ptr<PdfFile>> {
    std::unique_ptr<PdfFile> file(new PdfFile(bytes));
    file->read(password);
    Result<PageTree> tree = pageTree(*file->qpdf_);
    if (!tree) return tree.error();
    file->pages_ = std::move(tree->pages);
    file->treeIsDamaged_ = tree->isDamaged;
    if (file->pages_.empty())
      return Error{ErrorKind::NotParsable, QStringLiteral("the document has no pages")};
    return file;
  });
  if (!opened && opened.error().kind == ErrorKind::Encrypted && !password.isEmpty())
    return Error{ErrorKind::Encrypted, QStringLiteral("the password is wrong")};
  return opened;
}

void PdfFile::read(const QString& password) {
  // Documents of before PDF 2.0 write it in a byte a letter.
  const std::string now = password.toStdString(), then = password.toLatin1().toStdString();
  try {
    return readWith(now);
  } catch (const QPDFExc& caught) {
    if (caught.getErrorCode() != qpdf_e_password || then == now) throw;
  }
  qpdf_ = std::make_unique<QPDF>();
  readWith(then);
}

void PdfFile::readWith(const std::string& password) {
  const auto process = [this, &password] {
    qpdf_->setSuppressWarnings(true);
    qpdf_->processMemoryFile("document", bytes_.constData(), size_t(bytes_.size()), password.c_str());
  };
  try {
    process();
  } catch (const QPDFExc& caught) {
    if (caught.getErrorCode() == qpdf_e_password && drawsWithoutPassword(*qpdf_)) return;
    if (caught.getErrorCode() != qpdf_e_damaged_pdf || qpdf_->getTrailer().isDictionary()) throw;
    const std::optional<QByteArray> mended = withTrailer(bytes_, *qpdf_);
    if (!mended) throw;
    qpdf_ = std::make_unique<QPDF>();
    bytes_ = *mended;
    process();
  }
}

PageGeometry PdfFile::geometry(int number) const {
  PageGeometry geometry;
  QPDFObjectHandle page = this->page(number);
  const QRectF media = rectangle(page.getKey("/MediaBox")).value_or(kLetter);
  const QRectF asked = rectangle(page.getKey("/CropBox")).value_or(media);
  const QRectF crop = asked.intersected(media);
  geometry.box = crop.isEmpty() ? media : crop;
  geometry.isCut = asked != crop;
  geometry.rotation = rotationOf(page.getKey("/Rotate"));
  geometry.userUnit = userUnitOf(page.getKey("/UserUnit"));
  return geometry;
}

QStringList PdfFile::warnings() const {
  if (!treeIsDamaged_ && !qpdf_->anyWarnings()) return {};
  return {damagedFile()};
}

}  // namespace norvex::engine
