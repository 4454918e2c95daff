// The doings of a PDF beside being drawn: actions at opening and at clicks, scripts, files that it points to.
#pragma once

#include <QStringList>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <string>
#include <utility>
#include <vector>

namespace norvex::engine {

enum class DocumentActions { LeaveOut, Keep };

/// The actions of a document, and which of them go into the new one.
struct PageActions {
  QStringList leftOut;  ///< one sentence for each kind
  std::vector<std::pair<std::string, QPDFObjectHandle>> ofDocument, ofPage;
};

/// Looks at the catalogue and at `page`; whatever the page draws loses its references to other files and to
/// PostScript. With DocumentActions::Keep actions at opening, scripts and the page's own actions are kept for
/// putBack(); files that take the place of what is drawn never are, nor what clicks do, for what is clicked
/// becomes part of the drawing. Throws as qpdf does.
[[nodiscard]] PageActions takeActions(QPDF& qpdf, QPDFObjectHandle page, DocumentActions actions);

/// Takes them out of the whole document, every page and whatever belongs to it; what is left out, one
/// sentence for each kind. Links within the document and to the web stay, and so does what happens at opening
/// when it is but going to a page. Throws as qpdf does.
[[nodiscard]] QStringList leaveOutActions(QPDF& qpdf);

/// Into the catalogue of `qpdf` and its only page.
void putBack(const PageActions& actions, QPDF& qpdf, QPDFObjectHandle page);

}  // namespace norvex::engine
