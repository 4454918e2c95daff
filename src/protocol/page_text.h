// The text of a page, letter by letter: the answer to Examination::Text, as a value and as CBOR. As what is
// told in page_contents.h it is believed by nobody unseen.
#pragma once

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QString>

#include "base/result.h"
#include "protocol/limits.h"

namespace norvex {

// Every rectangle is in picture coordinates: points, origin at the picture's lower-left corner, y up.

/// A place of the page that leads elsewhere.
struct PageLink {
  QRectF rect;
  QString address;  ///< as the document says it, which may be anything; empty: a page of the document
  int page = -1;    ///< from 0; -1: none
};

struct PageText {
  QString text;           ///< in the order of reading; a line feed behind each line
  QList<QRectF> places;   ///< one for each UTF-16 unit of the text; empty where nothing is seen, as of blanks
  QList<PageLink> links;  ///< what lies above stands later
  bool complete = true;   ///< false: there is more than is told
};

/// Letters and places as our encoder writes them, and the links with their addresses; more is not looked at.
inline constexpr qsizetype maximumPageTextBytes =
    limits::maximumLetters * 64 + qsizetype(limits::maximumResources) * limits::maximumSentenceLength * 4;

/// Clips the text to limits::maximumLetters.
[[nodiscard]] QByteArray encodePageText(const PageText& text);
/// Fails with Protocol, as decodeReply().
[[nodiscard]] Result<PageText> decodePageText(const QByteArray& cbor);

}  // namespace norvex
