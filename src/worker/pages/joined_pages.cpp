#include "worker/pages/joined_pages.h"

#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <memory>
#include <set>
#include <utility>
#include <vector>

#include "worker/pages/shared_streams.h"
#include "worker/pdf/pdf_attributes.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_writing.h"

namespace norvex::engine {
namespace {

using Pages = std::vector<QPDFObjectHandle>;

Result<Pages> pagesOf(const PdfFile& file, const PageExcerpt& excerpt) {
  const int last = excerpt.last < 0 ? file.pageCount() - 1 : excerpt.last;
  if (last >= file.pageCount()) return noSuchPage(last, file.pageCount());
  if (excerpt.first > last) return noSuchPage(excerpt.first, file.pageCount());
  Pages pages;
  for (int number = excerpt.first; number <= last; ++number) pages.push_back(file.page(number));
  return pages;
}

/// True if that is an explicit destination on a page that stays behind.
bool leadsElsewhere(QPDFObjectHandle destination, const std::set<QPDFObjGen>& kept) {
  if (!destination.isArray() || destination.getArrayNItems() == 0) return false;
  QPDFObjectHandle page = destination.getArrayItem(0);
  return page.isDictionary() && !kept.count(page.getObjGen());
}

/// Takes from the pages what leads to others.
void forgetOtherPages(Pages& pages, const std::set<QPDFObjGen>& kept) {
  for (QPDFObjectHandle& page : pages) {
    page.removeKey("/B");  // the beads of an article lie on other pages
    QPDFObjectHandle notes = page.getKey("/Annots");
    for (int i = 0; notes.isArray() && i < notes.getArrayNItems(); ++i) {
      QPDFObjectHandle note = notes.getArrayItem(i);
      if (!note.isDictionary()) continue;
      if (leadsElsewhere(note.getKey("/Dest"), kept)) note.removeKey("/Dest");
      QPDFObjectHandle action = note.getKey("/A");
      if (action.isDictionary() && leadsElsewhere(action.getKey("/D"), kept)) note.removeKey("/A");
      note.removeKey("/Parent");  // of a field, which has places on other pages
      if (QPDFObjectHandle own = note.getKey("/P"); own.isDictionary() && !kept.count(own.getObjGen()))
        note.removeKey("/P");
    }
  }
}

/// Leaves the file with these pages. The others become null wherever something still leads to them: there are
/// more ways than can be listed.
void leaveOnlyPages(PdfFile& file, Pages& pages) {
  std::set<QPDFObjGen> kept;
  for (const QPDFObjectHandle& page : pages) kept.insert(page.getObjGen());
  forgetOtherPages(pages, kept);
  std::vector<QPDFObjGen> leftOut;
  for (int number = 0; number < file.pageCount(); ++number)
    if (const QPDFObjGen page = file.page(number).getObjGen(); !kept.count(page)) leftOut.push_back(page);
  keepOnlyPages(file.qpdf(), pages);
  for (const QPDFObjGen& page : leftOut) file.qpdf().replaceObject(page, QPDFObjectHandle::newNull());
}

/// Appends the pages of another file, which loses their notes. What leads to a page is copied as null until
/// the page is there: the notes come last, so that links forwards arrive as those backwards do.
void appendPages(QPDF& target, QPDF& source, Pages& pages) {
  std::vector<QPDFObjectHandle> notes;
  for (QPDFObjectHandle& page : pages) {
    notes.push_back(page.getKey("/Annots"));
    page.removeKey("/Annots");
    QPDFPageDocumentHelper(target).addPage(page, false);
  }
  const std::vector<QPDFObjectHandle>& all = target.getAllPages();
  for (size_t i = 0; i < pages.size(); ++i) {
    if (!notes[i].isArray()) continue;
    QPDFObjectHandle page = all[all.size() - pages.size() + i];
    const QPDFObjectHandle own = notes[i].isIndirect() ? notes[i] : source.makeIndirectObject(notes[i]);
    page.replaceKey("/Annots", target.copyForeignObject(own));
  }
}

}  // namespace

Result<QByteArray> joinedPages(const QList<PageExcerpt>& excerpts) {
  std::vector<std::unique_ptr<PdfFile>> files;  // all are read from until the result is written
  for (const PageExcerpt& excerpt : excerpts) {
    Result<std::unique_ptr<PdfFile>> file = PdfFile::open(excerpt.pdf);
    if (!file) return file.error();
    files.push_back(std::move(*file));
  }
  if (files.empty()) return Error{ErrorKind::Protocol, QStringLiteral("there are no pages")};
  return guarded([&]() -> Result<QByteArray> {
    QPDF& first = files.front()->qpdf();
    QPDFObjectHandle information = first.getTrailer().getKey("/Info");
    for (size_t i = 0; i < files.size(); ++i) {
      Result<Pages> pages = pagesOf(*files[i], excerpts.at(qsizetype(i)));
      if (!pages) return pages.error();
      leaveOnlyPages(*files[i], *pages);
      if (i > 0) appendPages(first, files[i]->qpdf(), *pages);
    }
    if (information.isDictionary()) first.getTrailer().replaceKey("/Info", information);
    if (files.size() > 1) shareEqualStreams(first);
    return writePdf(first);
  });
}

Result<QByteArray> joinedWithAttributes(const QByteArray& bytes, const PdfAttributes& attributes) {
  if (!holdPageExcerpts(bytes)) return withPdfAttributes(bytes, attributes);
  const Result<QList<PageExcerpt>> excerpts = decodePageExcerpts(bytes);
  if (!excerpts) return excerpts.error();
  const Result<QByteArray> joined = joinedPages(*excerpts);
  const bool asItIs = attributes.texts.isEmpty() && !attributes.creationDate;
  return !joined || asItIs ? joined : withPdfAttributes(*joined, attributes);
}

}  // namespace norvex::engine
