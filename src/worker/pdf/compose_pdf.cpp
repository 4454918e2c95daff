#include "worker/pdf/compose_pdf.h"

// A rectangle of a turned page as a page of its own: nothing is drawn again, the page becomes a form that is
// placed.
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <cmath>

#include "protocol/limits.h"
#include "worker/pdf/annotation_drawings.h"
#include "worker/pdf/page_form.h"
#include "worker/pdf/pdf_attributes.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_numbers.h"
#include "worker/pdf/pdf_writing.h"

namespace norvex::engine {
namespace {

bool isUsable(const ComposeRequest& request) {
  const QRectF& rect = request.rect;
  const auto fits = [](double value) {
    return std::isfinite(value) && std::abs(value) <= limits::maximumPoints;
  };
  return fits(rect.x()) && fits(rect.y()) && fits(rect.width()) && fits(rect.height()) && rect.width() > 0 &&
         rect.height() > 0 && std::isfinite(request.rotate);
}

// Sine and cosine that are exact at quarter turns, so that an upright page stays upright to the last digit.
AffineTransform turn(double radians) {
  const auto snapped = [](double value) {
    const double whole = std::round(value);
    return std::abs(value - whole) < 1e-12 ? whole : value;
  };
  const double c = snapped(std::cos(radians));
  const double s = snapped(std::sin(radians));
  return AffineTransform(c, s, -s, c, 0, 0);
}

// The page's user space → the new page, whose origin is the rectangle's lower-left corner.
AffineTransform placement(const PageGeometry& geometry, const ComposeRequest& request) {
  const QSizeF size = geometry.shownSize();
  return geometry.userToPicture() * AffineTransform::fromTranslate(-size.width() / 2, -size.height() / 2) *
         turn(request.rotate) * AffineTransform::fromTranslate(-request.rect.x(), -request.rect.y());
}

// Annotations and form fields become part of the page's contents, as they are shown on the screen.
Result<void> flattenAnnotations(QPDF& qpdf, QPDFObjectHandle page, const PageGeometry& geometry,
                                QPDFObjectHandle interactiveForm) {
  if (const Result<void> complete = completeAnnotations(qpdf, page, geometry, interactiveForm); !complete)
    return complete;
  if (interactiveForm.isDictionary()) qpdf.getRoot().replaceKey("/AcroForm", interactiveForm);
  QPDFAcroFormDocumentHelper(qpdf).setNeedAppearances(false);
  QPDFPageDocumentHelper(qpdf).flattenAnnotations(0, an_hidden | an_no_view);
  return {};
}

QPDFObjectHandle placedPage(QPDF& qpdf, QPDFObjectHandle source, QPDFObjectHandle form,
                            const ComposeRequest& request, const AffineTransform& matrix) {
  const double width = request.rect.width();
  const double height = request.rect.height();
  const QByteArray contents = "q 0 0 " + decimal(width) + ' ' + decimal(height) + " re W n " +
                              matrixText(matrix) + " cm /Picture Do Q\n";
  QPDFObjectHandle page = pageOfForms(qpdf, width, height, {{"/Picture", form}}, contents);
  if (source.getKey("/Group").isDictionary()) page.replaceKey("/Group", source.getKey("/Group"));
  return page;
}

}  // namespace

Result<QByteArray> composePdf(const QByteArray& pdf, const ComposeRequest& request, DocumentActions actions,
                              QStringList* leftOut) {
  if (!isUsable(request))
    return Error{ErrorKind::Protocol, QStringLiteral("the rectangle that was asked for is not usable")};
  Result<std::unique_ptr<PdfFile>> opened = PdfFile::open(pdf);
  if (!opened) return opened.error();
  PdfFile& file = **opened;
  if (request.page < 0 || request.page >= file.pageCount()) return noSuchPage(request.page, file.pageCount());
  return guarded([&]() -> Result<QByteArray> {
    const PageGeometry geometry = file.geometry(request.page);
    QPDFObjectHandle source = file.page(request.page);
    QPDFObjectHandle interactiveForm = file.qpdf().getRoot().getKey("/AcroForm");
    const PageActions found = takeActions(file.qpdf(), source, actions);
    if (leftOut) *leftOut = found.leftOut;
    keepOnlyPage(file.qpdf(), source);
    if (source.hasKey("/Annots")) {
      const Result<void> flat = flattenAnnotations(file.qpdf(), source, geometry, interactiveForm);
      if (!flat) return flat.error();
    }
    const QPDFObjectHandle form = pageAsForm(file.qpdf(), source, geometry.box);
    QPDFObjectHandle page = placedPage(file.qpdf(), source, form, request, placement(geometry, request));
    keepOnlyPage(file.qpdf(), page);
    putBack(found, file.qpdf(), page);
    if (request.format != VectorFormat::Pdf) return writePdfToDraw(file.qpdf());
    if (request.attributes) setPdfAttributes(file.qpdf(), *request.attributes);
    return writePdf(file.qpdf());
  });
}

}  // namespace norvex::engine
