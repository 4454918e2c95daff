#include "protocol/page_text.h"

#include "protocol/limits.h"
#include "protocol/message_fields.h"

namespace norvex {

using Key = QLatin1String;

template <typename V>
void fields(V& v, Of<V, PageLink>& link) {
  v.rect(Key("rect"), link.rect, limits::maximumPoints);
  v.text(Key("address"), link.address, limits::maximumSentenceLength);
  v.integer(Key("page"), link.page, -1, limits::maximumPages);
}

template <typename V>
void fields(V& v, Of<V, PageText>& page) {
  version(v);
  v.text(Key("text"), page.text, limits::maximumLetters);
  v.rects(Key("places"), page.places, limits::maximumLetters, limits::maximumPoints);
  v.records(Key("links"), page.links, limits::maximumResources);
  v.boolean(Key("complete"), page.complete);
  v.require(page.text.size() == page.places.size());
}

QByteArray encodePageText(const PageText& text) {
  PageText told = text;
  if (told.text.size() > limits::maximumLetters) {
    told.text.truncate(limits::maximumLetters);
    told.places.resize(limits::maximumLetters);
    told.complete = false;
  }
  return encoded(told);
}

Result<PageText> decodePageText(const QByteArray& cbor) {
  return decoded<PageText>(
      cbor, maximumPageTextBytes,
      Error{ErrorKind::Protocol,
            QStringLiteral("the text of the page was told in a way that cannot be true")});
}

}  // namespace norvex
