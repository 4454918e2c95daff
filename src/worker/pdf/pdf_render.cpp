#include "worker/pdf/pdf_render.h"

// GIO has members called "signals", which Qt makes a macro of.
#pragma push_macro("signals")
#undef signals
#include <poppler.h>
#pragma pop_macro("signals")

#include <chrono>

#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/coloured_glyphs.h"
#include "worker/drawing/fine_image.h"
#include "worker/drawing/seams/pixel_edges.h"
#include "worker/drawing/shading_steps.h"
#include "worker/drawing/two_halves.h"
#include "worker/drawing/uncollected_text.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/plain_page.h"

namespace norvex::engine {
namespace {

struct GObjectRelease {
  void operator()(void* object) const { g_object_unref(object); }
};
using PagePointer = std::unique_ptr<PopplerPage, GObjectRelease>;

/// Drawing a page finer takes longer, which nobody can tell of before: what has taken this share of the time
/// is not begun so, or is given up, and enough is left for the picture with its seams.
constexpr int kShares = 4;

Error unreadable(GError* error) {
  Error result{ErrorKind::NotParsable, QStringLiteral("the document is not a readable PDF")};
  if (error && g_error_matches(error, POPPLER_ERROR, POPPLER_ERROR_ENCRYPTED))
    result = {ErrorKind::Encrypted, QStringLiteral("the document is protected with a password")};
  g_clear_error(&error);
  return result;
}

// Poppler draws a frame around links, as a reader does in which they can be clicked. It is no part of the
// picture: what is handed out and printed has none either.
void hideLinks(PopplerPage* page) {
  GList* annotations = poppler_page_get_annot_mapping(page);
  for (GList* at = annotations; at; at = at->next) {
    PopplerAnnot* annotation = static_cast<PopplerAnnotMapping*>(at->data)->annot;
    if (poppler_annot_get_annot_type(annotation) != POPPLER_ANNOT_LINK) continue;
    const unsigned hidden = unsigned(poppler_annot_get_flags(annotation)) | POPPLER_ANNOT_FLAG_HIDDEN;
    poppler_annot_set_flags(annotation, PopplerAnnotFlag(hidden));
  }
  poppler_page_free_annot_mapping(annotations);
}

// Poppler draws into a space with its origin at the page's upper-left corner, y down, one unit of user space
// a unit; the clip keeps what lies outside the page (and in a neighbouring pixel's share of its edge)
// unpainted.
Result<void> paintPage(cairo_t* context, PopplerPage* page, QSizeF shownSize) {
  double width = 0;
  double height = 0;
  poppler_page_get_size(page, &width, &height);
  if (!(width > 0) || !(height > 0)) return {};
  cairo_rectangle(context, 0, 0, shownSize.width(), shownSize.height());
  cairo_clip_preserve(context);
  cairo_new_path(context);
  cairo_translate(context, 0, shownSize.height());
  cairo_scale(context, shownSize.width() / width, -shownSize.height() / height);
  (void)takeGlyphExcess();
  const ShadedContext shaded(context);
  const UncollectedText uncollected;
  poppler_page_render(page, context);
  switch (takeGlyphExcess()) {
    case GlyphExcess::Levels:
      return Error{ErrorKind::Limit,
                   QStringLiteral("the glyphs of the document's fonts nest more than %1 deep")
                       .arg(limits::maximumGlyphLevels)};
    case GlyphExcess::Number:
      return Error{ErrorKind::Limit,
                   QStringLiteral("the glyphs of the document's fonts show more than %1 others")
                       .arg(limits::maximumInnerGlyphs)};
    case GlyphExcess::None:
      break;
  }
  return {};
}

// The page as it is shown: all that is drawn goes through here.
Result<PagePointer> shownPage(PopplerDocument* document, int page) {
  const int count = poppler_document_get_n_pages(document);
  if (page < 0 || page >= count) return noSuchPage(page, count);
  PagePointer opened(poppler_document_get_page(document, page));
  if (!opened) return Error{ErrorKind::NotParsable, QStringLiteral("page %1 cannot be read").arg(page + 1)};
  hideLinks(opened.get());
  return opened;
}

}  // namespace

void PdfRenderer::Release::operator()(_PopplerDocument* document) const {
  g_object_unref(document);
}

PdfRenderer::PdfRenderer(QByteArray pdf, int processors) : pdf_(std::move(pdf)), processors_(processors) {}
PdfRenderer::~PdfRenderer() = default;

Result<void> PdfRenderer::load(Document& document) const {
  if (document) return {};
  GBytes* bytes = g_bytes_new_static(pdf_.constData(), gsize(pdf_.size()));
  GError* error = nullptr;
  document.reset(poppler_document_new_from_bytes(bytes, nullptr, &error));
  g_bytes_unref(bytes);
  if (!document) return unreadable(error);
  return {};
}

bool PdfRenderer::isDrawnInHalves(int page) {
  if (pdf_.size() < leastLongPdf) return false;
  if (const auto known = isInHalves_.find(page); known != isInHalves_.end()) return known->second;
  const Result<bool> found = guarded([&]() -> Result<bool> {
    if (!file_) {
      Result<std::unique_ptr<PdfFile>> opened = PdfFile::open(pdf_);
      if (!opened) return opened.error();
      file_ = std::move(*opened);
    }
    // Of a damaged file Poppler may draw something else than what is looked at here.
    return page < file_->pageCount() && file_->warnings().isEmpty() && isLongAndPlain(*file_, page);
  });
  return isInHalves_[page] = found && *found;
}

PaintPicture PdfRenderer::painter(Document& document, const RenderRequest& request, QSizeF shownSize,
                                  std::atomic<bool>& seams) {
  return [this, &document, &seams, number = request.page, shownSize](cairo_t* context) -> Result<void> {
    if (const Result<void> loaded = load(document); !loaded) return loaded;
    const Result<PagePointer> page = shownPage(document.get(), number);
    if (!page) return page.error();
    askForPixelEdges(context, shownSize.width(), shownSize.height());
    const Result<void> painted = paintPage(context, page->get(), shownSize);
    if (hasSeams(context)) seams = true;
    return painted;
  };
}

Result<Bitmap> PdfRenderer::paintWithoutSeams(const RenderRequest& request, QSizeF shownSize,
                                              const PictureLimits& limits, QDeadlineTimer until) {
  const Result<PagePointer> page = shownPage(document_.get(), request.page);
  if (!page) return page.error();
  const PaintPicture paint = [&](cairo_t* context) {
    askForHardEdges(context, until);
    return paintPage(context, page->get(), shownSize);
  };
  Result<Bitmap> image = paintFine(request, limits, paint, until);
  // It is not begun again: the time would be lost each time that the page is drawn.
  if (!image && until.hasExpired() && tiled_.erase(request.page) > 0) slow_.insert(request.page);
  return image;
}

Result<Bitmap> PdfRenderer::render(const RenderRequest& request, QSizeF shownSize,
                                   const PictureLimits& limits) {
  if (const Result<void> loaded = load(); !loaded) return loaded.error();
  const std::chrono::milliseconds share = std::chrono::seconds(limits.seconds) / kShares;
  const QDeadlineTimer early(share);
  // Where it would take too much, the picture is drawn with its seams.
  if (tiled_.contains(request.page))
    if (Result<Bitmap> image = paintWithoutSeams(request, shownSize, limits, early);
        image || image.error().kind != ErrorKind::Limit)
      return image;
  std::atomic<bool> seams = false;
  const PaintPicture paint = painter(document_, request, shownSize, seams);
  const auto other = [&] {
    return processors_ > 1 ? painter(second_, request, shownSize, seams) : PaintPicture();
  };
  Result<Bitmap> image = canPaintHalves(request, limits) && isDrawnInHalves(request.page)
                             ? paintHalves(request, limits, paint, other())
                             : paintImage(request, limits, paint);
  if (!image || !seams || early.hasExpired() || slow_.contains(request.page) ||
      !tiled_.insert(request.page).second)
    return image;
  Result<Bitmap> better = paintWithoutSeams(request, shownSize, limits, QDeadlineTimer(share));
  return better ? std::move(better) : std::move(image);
}

Result<QByteArray> PdfRenderer::vectors(QSizeF shownSize, const AffineTransform& pictureToSheet,
                                        QSizeF sheet) {
  if (const Result<void> loaded = load(); !loaded) return loaded.error();
  const int count = poppler_document_get_n_pages(document_.get());
  return paintPdf(sheet, count, [&](cairo_t* context, int number) -> Result<void> {
    const Result<PagePointer> page = shownPage(document_.get(), number);
    if (!page) return page.error();
    const cairo_matrix_t matrix = toCairo(pictureToSheet);
    cairo_set_matrix(context, &matrix);
    return paintPage(context, page->get(), shownSize);
  });
}

Result<QString> PdfRenderer::text(int page) {
  if (const Result<void> loaded = load(); !loaded) return loaded.error();
  const int count = poppler_document_get_n_pages(document_.get());
  if (page < 0 || page >= count) return noSuchPage(page, count);
  const PagePointer opened(poppler_document_get_page(document_.get(), page));
  if (!opened) return Error{ErrorKind::NotParsable, QStringLiteral("page %1 cannot be read").arg(page + 1)};
  const std::unique_ptr<char, decltype(&g_free)> words(poppler_page_get_text(opened.get()), &g_free);
  return QString::fromUtf8(words.get());
}

}  // namespace norvex::engine
