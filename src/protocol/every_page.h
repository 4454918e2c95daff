// How a PdfRequest asks for a document with all of its pages.
#pragma once

namespace norvex {

/// As PdfRequest::page, of a PDF alone: the document as it stands, every page and whatever belongs to them,
/// but without what it does beside being drawn (scripts, actions that start programs or open files,
/// references to other files), unless that is kept. Where there is nothing of the sort the bytes are the
/// document's own. The attributes of the request mean nothing then.
inline constexpr int everyPage = -1;

}  // namespace norvex
