// The text of a page and its links, as Poppler finds them. GIO has members called "signals", which Qt makes a
// macro of.
#pragma push_macro("signals")
#undef signals
#include <poppler.h>
#pragma pop_macro("signals")

#include <QStringDecoder>

#include <cmath>
#include <memory>

#include "base/affine_transform.h"
#include "protocol/limits.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_render.h"

namespace norvex::engine {
namespace {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
struct Free {
  void operator()(void* memory) const { g_free(memory); }
};

/// A rectangle that the reader of the answer takes; an empty one for any other.
QRectF usable(const QRectF& rect) {
  const auto near = [](double number) {
    return std::isfinite(number) && std::abs(number) <= limits::maximumPoints;
  };
  const bool fits = near(rect.x()) && near(rect.y()) && near(rect.width()) && near(rect.height());
  return fits ? rect.normalized() : QRectF();
}

/// Poppler tells a letter's place from the page's upper edge, one for each letter of the text.
void readLetters(PopplerPage* page, const AffineTransform& toPicture, PageText& told) {
  const std::unique_ptr<char, Free> text(poppler_page_get_text(page));
  PopplerRectangle* found = nullptr;
  guint count = 0;
  if (!text || !poppler_page_get_text_layout(page, &found, &count)) return;
  const std::unique_ptr<PopplerRectangle, Free> rectangles(found);
  // A mark of byte order in front has a place like any letter: it must not be dropped before its place is.
  QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
  const QString decoded = decoder(text.get());
  const QList<uint> letters = decoded.toUcs4();
  for (qsizetype i = 0; i < letters.size() && i < qsizetype(count); ++i) {
    const char32_t letter = letters[i];
    const QString units = QString::fromUcs4(&letter, 1);
    if (told.text.size() + units.size() > limits::maximumLetters) {
      told.complete = false;
      return;
    }
    const PopplerRectangle& place = found[i];
    const QRectF rect(QPointF(place.x1, place.y1), QPointF(place.x2, place.y2));
    const bool seen = !QChar::isSpace(letter) && !rect.normalized().isEmpty();
    told.text += units;
    for (qsizetype unit = 0; unit < units.size(); ++unit)
      told.places << (seen ? usable(toPicture.mapRect(rect.normalized())) : QRectF());
  }
}

PageLink linkOf(PopplerDocument* document, const PopplerAction& action) {
  PageLink link;
  if (action.type == POPPLER_ACTION_URI && action.uri.uri) link.address = QString::fromUtf8(action.uri.uri);
  if (action.type != POPPLER_ACTION_GOTO_DEST || !action.goto_dest.dest) return link;
  const PopplerDest& dest = *action.goto_dest.dest;
  if (dest.type != POPPLER_DEST_NAMED) {
    link.page = dest.page_num - 1;
  } else if (PopplerDest* named = poppler_document_find_dest(document, dest.named_dest)) {
    link.page = named->page_num - 1;
    poppler_dest_free(named);
  }
  return link;
}

void readLinks(PopplerDocument* document, PopplerPage* page, const AffineTransform& toPicture,
               PageText& told) {
  GList* mapping = poppler_page_get_link_mapping(page);
  const int pages = poppler_document_get_n_pages(document);
  for (GList* at = mapping; at && told.links.size() < limits::maximumResources; at = at->next) {
    const auto& one = *static_cast<PopplerLinkMapping*>(at->data);
    if (!one.action) continue;
    PageLink link = linkOf(document, *one.action);
    const QRectF rect(QPointF(one.area.x1, one.area.y1), QPointF(one.area.x2, one.area.y2));
    link.rect = usable(toPicture.mapRect(rect.normalized()));
    if (link.page >= pages || link.page >= limits::maximumPages) link.page = -1;
    const bool leads = !link.address.isEmpty() || link.page >= 0;
    // A cut address would lead elsewhere.
    if (leads && link.address.size() <= limits::maximumSentenceLength && !link.rect.isEmpty())
      told.links << link;
  }
  poppler_page_free_link_mapping(mapping);
}

}  // namespace

Result<PageText> PdfRenderer::letters(int page, QSizeF shownSize) {
  if (const Result<void> loaded = load(); !loaded) return loaded.error();
  const int count = poppler_document_get_n_pages(document_.get());
  if (page < 0 || page >= count) return noSuchPage(page, count);
  const std::unique_ptr<PopplerPage, Unref> opened(poppler_document_get_page(document_.get(), page));
  if (!opened) return Error{ErrorKind::NotParsable, QStringLiteral("page %1 cannot be read").arg(page + 1)};
  double width = 0, height = 0;
  poppler_page_get_size(opened.get(), &width, &height);
  PageText told;
  if (!(width > 0) || !(height > 0)) return told;
  const double x = shownSize.width() / width, y = shownSize.height() / height;
  readLetters(opened.get(), AffineTransform(x, 0, 0, -y, 0, shownSize.height()), told);
  readLinks(document_.get(), opened.get(), AffineTransform::fromScale(x, y), told);
  return told;
}

Result<PageText> textOfOnlyPage(const QByteArray& pdf, QSizeF shownSize) {
  return PdfRenderer(pdf).letters(0, shownSize);
}

}  // namespace norvex::engine
