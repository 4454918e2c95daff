// A PDF read with qpdf: its pages, their boxes, what qpdf had to repair. qpdf throws; nothing gets past this
// file's guarded().
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <exception>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/affine_transform.h"
#include "base/result.h"

namespace norvex::engine {

/// The boxes of a page resolved: what is shown, how it is turned and how large a unit is.
struct PageGeometry {
  QRectF box;           ///< crop box ∩ media box in the page's own user space, before /Rotate and /UserUnit
  int rotation = 0;     ///< 0, 90, 180 or 270 degrees clockwise
  double userUnit = 1;  ///< points per unit of user space
  bool isCut =
      false;  ///< the crop box reaches beyond the media box: who draws the page may show something else

  /// Size of the page as it is shown, points.
  [[nodiscard]] QSizeF shownSize() const;
  /// The page as it is shown: the box's lower-left corner and the shown size, points.
  [[nodiscard]] QRectF shownBounds() const;
  /// The page's user space → picture coordinates (points, origin at the shown page's lower-left corner, y
  /// up).
  [[nodiscard]] AffineTransform userToPicture() const;
};

/// The meaning of an exception of qpdf; without `caught` being one of its kinds, NotParsable with a general
/// sentence.
[[nodiscard]] Error pdfError(const std::exception& caught);

/// Runs `work`, which returns a Result, and turns every exception into an Error.
template <typename Work>
auto guarded(Work&& work) -> decltype(work()) {
  try {
    return std::forward<Work>(work)();
  } catch (const std::exception& caught) {
    return pdfError(caught);
  }
}

/// An opened PDF with at least one page. Single-threaded. Members may throw; call them inside guarded().
class PdfFile {
 public:
  /// `password`: empty where none is known. Fails with Encrypted (it is wrong, or one is needed for what is
  /// drawn, not only for files that are attached), NotParsable or Limit (more than limits::maximumPages
  /// pages).
  [[nodiscard]] static Result<std::unique_ptr<PdfFile>> open(const QByteArray& bytes,
                                                             const QString& password = {});

  [[nodiscard]] QPDF& qpdf() { return *qpdf_; }
  [[nodiscard]] int pageCount() const { return int(pages_.size()); }
  /// The page's dictionary, with the attributes that it inherits. REQUIRES 0 ≤ number < pageCount().
  [[nodiscard]] QPDFObjectHandle page(int number) const { return pages_[size_t(number)]; }
  [[nodiscard]] PageGeometry geometry(int number) const;
  /// One plain sentence when the file is damaged and was repaired.
  [[nodiscard]] QStringList warnings() const;

 private:
  void read(const QString& password);
  void readWith(const std::string& password);
  explicit PdfFile(QByteArray bytes) : bytes_(std::move(bytes)), qpdf_(std::make_unique<QPDF>()) {}
  QByteArray bytes_;  ///< qpdf reads from it as long as it lives
  std::unique_ptr<QPDF> qpdf_;
  std::vector<QPDFObjectHandle> pages_;
  bool treeIsDamaged_ = false;
};

/// The sentence for a page that is not there.
[[nodiscard]] Error noSuchPage(int page, int pageCount);

}  // namespace norvex::engine
