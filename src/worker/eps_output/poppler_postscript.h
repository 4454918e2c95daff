// A page as PostScript by Poppler's generator, taken apart: its document structure is thrown away, its
// procedures, fonts and page description are kept.
#pragma once

#include <QByteArray>
#include <QSize>

#include "base/result.h"

namespace norvex::engine {

/// Level 3 PostScript in 7-bit text, free of comments that describe another document. The three pieces run in
/// this order. `setup` leaves a dictionary on the dictionary stack, which `page` takes away again.
struct PagePostScript {
  QByteArray procedures;
  QByteArray setup;  ///< fonts and forms
  QByteArray page;   ///< default user space, the page's lower-left corner at the origin; no showpage
  bool leftOutPrograms = false;  ///< the page holds PostScript of its own, which is not in it
};

/// The first page of `pdf`, whose box is [0 0 width height] in whole points. Transparency that is left in it
/// makes Poppler turn the page into an image.
[[nodiscard]] Result<PagePostScript> postScriptOfPage(const QByteArray& pdf, QSize pageSize);

/// Takes Poppler's output apart; fails with Unsupported when it is not built as expected.
[[nodiscard]] Result<PagePostScript> takeApart(const QByteArray& postScript);

}  // namespace norvex::engine
