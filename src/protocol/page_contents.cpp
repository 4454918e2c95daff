#include "protocol/page_contents.h"

#include "protocol/limits.h"
#include "protocol/message_fields.h"

namespace norvex {

using Key = QLatin1String;

namespace {

/// Percent, pixels an inch, points: what is measured is far below.
constexpr double kMost = 1.0e9;

template <typename V, typename Value>
void measured(V& v, Key key, Value& value) {
  v.optional(key, value, [&](auto& one) { v.nested(key, one); });
}

template <typename V, typename Value>
void place(V& v, Key key, Value& value) {
  v.optional(key, value, [&](auto& rect) { v.rect(key, rect, limits::maximumPoints); });
}

}  // namespace

template <typename V>
void fields(V& v, Of<V, UsedFont>& font) {
  v.text(Key("name"), font.name, limits::maximumNameLength);
  v.text(Key("type"), font.type, limits::maximumTypeLength);
  v.boolean(Key("embedded"), font.embedded);
  v.boolean(Key("subset"), font.subset);
  v.boolean(Key("used"), font.used);
}

template <typename V>
void fields(V& v, Of<V, UsedImage>& image) {
  v.text(Key("name"), image.name, limits::maximumNameLength);
  v.integer(Key("width"), image.pixelsWide, 0, limits::maximumImageSide);
  v.integer(Key("height"), image.pixelsHigh, 0, limits::maximumImageSide);
  v.oneOf(Key("colours"), image.colours, ImageColours::LineArt, ImageColours::Colour);
  v.number(Key("dpiX"), image.dpiX, 0, kMost);
  v.number(Key("dpiY"), image.dpiY, 0, kMost);
  v.rect(Key("rect"), image.rect, limits::maximumPoints);
}

template <typename V>
void fields(V& v, Of<V, Measured>& one) {
  v.number(Key("value"), one.value, 0, kMost);
  v.rect(Key("rect"), one.rect, limits::maximumPoints);
}

template <typename V>
void documentFields(V& v, Of<V, PageContents>& page) {
  v.boolean(Key("encrypted"), page.encrypted);
  v.texts(Key("forbidden"), page.forbidden, limits::maximumNames, limits::maximumNameLength);
  v.texts(Key("claims"), page.claims, limits::maximumNames, limits::maximumNameLength);
  v.texts(Key("intents"), page.outputIntents, limits::maximumNames, limits::maximumNameLength);
  v.texts(Key("missing"), page.missingFonts, limits::maximumWarnings, limits::maximumSentenceLength);
  v.texts(Key("remarks"), page.remarks, limits::maximumWarnings, limits::maximumSentenceLength);
  v.integer(Key("references"), page.outsideReferences, 0, limits::maximumXmlElements);
  v.integer(Key("filters"), page.filters, 0, limits::maximumXmlElements);
  v.boolean(Key("runs"), page.runsSomething);
  v.boolean(Key("noUnit"), page.sizeWithoutUnit);
}

template <typename V>
void fields(V& v, Of<V, PageContents>& page) {
  version(v);
  v.extent(Key("size"), page.size, limits::maximumPoints);
  v.records(Key("fonts"), page.fonts, limits::maximumNames);
  v.records(Key("images"), page.images, limits::maximumToldImages);
  v.texts(Key("spaces"), page.colorSpaces, limits::maximumNames, limits::maximumNameLength);
  v.texts(Key("inks"), page.spotInks, limits::maximumNames, limits::maximumNameLength);
  measured(v, Key("line"), page.thinnestLine);
  measured(v, Key("text"), page.smallestText);
  measured(v, Key("ink"), page.mostInk);
  measured(v, Key("outside"), page.outside);
  place(v, Key("rgb"), page.rgb);
  place(v, Key("cmyk"), page.cmyk);
  place(v, Key("transparency"), page.transparency);
  place(v, Key("white"), page.whiteOverprint);
  place(v, Key("black"), page.blackKnocksOut);
  v.boolean(Key("complete"), page.complete);
  documentFields(v, page);
}

template <typename V>
void fields(V& v, Of<V, DrawnInk>& drawn) {
  version(v);
  place(v, Key("ink"), drawn.ink);
  place(v, Key("painted"), drawn.painted);
  v.rect(Key("area"), drawn.area, limits::maximumPoints);
  v.number(Key("accuracy"), drawn.accuracy, 0, limits::maximumPoints);
}

namespace {

/// The same facts would fit a message.
template <typename T>
Result<T> decodedFacts(const QByteArray& cbor) {
  return decoded<T>(cbor, limits::maximumMessageBytes,
                    Error{ErrorKind::Protocol,
                          QStringLiteral("what is in the page was told in a way that cannot be true")});
}

}  // namespace

QByteArray encodePageContents(const PageContents& contents) {
  return encoded(contents);
}

QByteArray encodeDrawnInk(const DrawnInk& drawn) {
  return encoded(drawn);
}

Result<PageContents> decodePageContents(const QByteArray& cbor) {
  return decodedFacts<PageContents>(cbor);
}

Result<DrawnInk> decodeDrawnInk(const QByteArray& cbor) {
  return decodedFacts<DrawnInk>(cbor);
}

}  // namespace norvex
