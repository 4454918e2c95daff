// Draws pages of a PDF with Poppler. Poppler is loaded with the first rendering; for facts only when a short
// page of an Illustrator file must be read.
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QSizeF>
#include <QString>

#include <atomic>
#include <map>
#include <memory>
#include <set>

#include "base/result.h"
#include "protocol/page_text.h"
#include "protocol/worker_protocol.h"
#include "worker/drawing/cairo_surface.h"

struct _PopplerDocument;

namespace norvex::engine {

class PdfFile;

/// Single-threaded; keeps the parsed document for the next rendering.
class PdfRenderer {
 public:
  /// What takes long is drawn as two halves; with more than one of `processors` at the same time, for which
  /// Poppler has the document twice.
  explicit PdfRenderer(QByteArray pdf, int processors = 1);
  ~PdfRenderer();

  /// Draws request.page. `shownSize` is the page's size in picture coordinates (points); pixels outside the
  /// page and pixels that the page does not paint stay transparent. Fails as paintImage() does, with
  /// NotParsable when Poppler cannot read the document and with Unsupported when there is no such page. A
  /// page whose tiles have seams is drawn without them where that leaves enough of limits.seconds, the time
  /// of this call.
  [[nodiscard]] Result<Bitmap> render(const RenderRequest& request, QSizeF shownSize,
                                      const PictureLimits& limits);
  /// Draws every page as render() does, but as vectors: a PDF of as many pages. The pages are all of the same
  /// `shownSize`; `pictureToSheet` maps picture coordinates to the new pages (`sheet` points large, origin at
  /// the upper-left corner, y down). A line of less than a point on the new page is a point wide. Fails like
  /// render().
  [[nodiscard]] Result<QByteArray> vectors(QSizeF shownSize, const AffineTransform& pictureToSheet,
                                           QSizeF sheet);
  /// The words of a page in reading order. Fails like render().
  [[nodiscard]] Result<QString> text(int page);
  /// The letters of a page, each with its place, and its links. `shownSize` as for render(), fails like it.
  [[nodiscard]] Result<PageText> letters(int page, QSizeF shownSize);

 private:
  struct Release {
    void operator()(_PopplerDocument* document) const;
  };
  using Document = std::unique_ptr<_PopplerDocument, Release>;
  [[nodiscard]] Result<void> load() { return load(document_); }
  [[nodiscard]] Result<void> load(Document& document) const;
  [[nodiscard]] bool isDrawnInHalves(int page);
  /// Paints request.page of `document`, on a thread of its own, too; `seams` becomes true where tiles have
  /// some.
  [[nodiscard]] PaintPicture painter(Document& document, const RenderRequest& request, QSizeF shownSize,
                                     std::atomic<bool>& seams);
  [[nodiscard]] Result<Bitmap> paintWithoutSeams(const RenderRequest& request, QSizeF shownSize,
                                                 const PictureLimits& limits, QDeadlineTimer until);
  QByteArray pdf_;
  int processors_;
  Document document_, second_;      ///< `second_`: the same, for the other half
  std::unique_ptr<PdfFile> file_;   ///< where halves were asked for
  std::map<int, bool> isInHalves_;  ///< pages that were looked at
  std::set<int> tiled_;             ///< pages whose tiles have seams unless they are drawn finer
  std::set<int> slow_;              ///< those for which that takes too long
};

/// letters() of a PDF of one page.
[[nodiscard]] Result<PageText> textOfOnlyPage(const QByteArray& pdf, QSizeF shownSize);

}  // namespace norvex::engine
