#include "worker/pages/compose_pages.h"

// A picture on sheets of paper: the picture's page becomes one form, which each sheet shows through a window.
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include "worker/pages/sheet_lines.h"
#include "worker/pdf/page_form.h"
#include "worker/pdf/pdf_attributes.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_numbers.h"
#include "worker/pdf/pdf_writing.h"

namespace norvex::engine {
namespace {

/// The objects that the sheets draw; a null handle is not drawn.
struct Drawings {
  QPDFObjectHandle picture, lines, group;
  AffineTransform userToPicture;
};

/// Source coordinates → the sheet.
AffineTransform window(const SheetPart& sheet) {
  const double x = sheet.source.width() > 0 ? sheet.target.width() / sheet.source.width() : 1;
  const double y = sheet.source.height() > 0 ? sheet.target.height() / sheet.source.height() : 1;
  return AffineTransform::fromTranslate(-sheet.source.left(), -sheet.source.top()) *
         AffineTransform::fromScale(x, y) *
         AffineTransform::fromTranslate(sheet.target.left(), sheet.target.top());
}

QByteArray contentsOf(const SheetPart& sheet, Drawings& drawings) {
  QByteArray contents;
  if (drawings.picture.isStream() && !sheet.target.isEmpty()) {
    const QRectF& box = sheet.target;
    contents += "q " + decimal(box.left()) + ' ' + decimal(box.top()) + ' ' + decimal(box.width()) + ' ' +
                decimal(box.height()) + " re W n " + matrixText(drawings.userToPicture * window(sheet)) +
                " cm /Picture Do Q\n";
  }
  if (drawings.lines.isStream()) contents += "q /Lines Do Q\n";
  return contents;
}

QPDFObjectHandle sheetPage(QPDF& qpdf, const QSizeF& paper, const SheetPart& sheet, Drawings& drawings) {
  QPDFObjectHandle page =
      pageOfForms(qpdf, paper.width(), paper.height(),
                  {{"/Picture", drawings.picture}, {"/Lines", drawings.lines}}, contentsOf(sheet, drawings));
  if (drawings.group.isDictionary()) page.replaceKey("/Group", drawings.group);
  return page;
}

/// Only the sheets are left of what `qpdf` held.
QByteArray sheetsOf(QPDF& qpdf, const PagesRequest& request, Drawings& drawings) {
  keepOnlyPage(qpdf, sheetPage(qpdf, request.paper, request.sheets.first(), drawings));
  for (const SheetPart& sheet : request.sheets.mid(1))
    QPDFPageDocumentHelper(qpdf).addPage(sheetPage(qpdf, request.paper, sheet, drawings), false);
  if (!request.title.isEmpty()) setPdfAttributes(qpdf, {{{QStringLiteral("Title"), request.title}}, {}});
  return writePdf(qpdf);
}

}  // namespace

Result<QByteArray> composePages(const QByteArray& pdf, const PagesRequest& request) {
  if (request.paper.isEmpty() || request.sheets.isEmpty())
    return Error{ErrorKind::Protocol, QStringLiteral("the pages that were asked for are not usable")};
  QByteArray lines;
  if (request.header || request.footer) {
    Result<QByteArray> drawn = sheetLines(request);
    if (!drawn) return drawn.error();
    lines = *drawn;
  }
  std::unique_ptr<PdfFile> file;
  if (request.picture) {
    Result<std::unique_ptr<PdfFile>> opened = PdfFile::open(pdf);
    if (!opened) return opened.error();
    file = std::move(*opened);
  }
  return guarded([&]() -> Result<QByteArray> {
    QPDF own, text;  // both are read from until the result is written
    if (!file) own.emptyPDF();
    QPDF& qpdf = file ? file->qpdf() : own;
    Drawings drawings;
    if (file) {
      QPDFObjectHandle page = file->page(0);
      const PageGeometry geometry = file->geometry(0);
      drawings.userToPicture = geometry.userToPicture();
      drawings.picture = pageAsForm(qpdf, page, geometry.box);
      drawings.group = page.getKey("/Group");
    }
    if (!lines.isEmpty()) {
      text.setSuppressWarnings(true);
      text.processMemoryFile("lines", lines.constData(), size_t(lines.size()));
      QPDFObjectHandle form = QPDFPageObjectHelper(text.getAllPages().at(0)).getFormXObjectForPage();
      drawings.lines = qpdf.copyForeignObject(form);
    }
    return sheetsOf(qpdf, request, drawings);
  });
}

}  // namespace norvex::engine
