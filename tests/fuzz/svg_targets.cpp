// SVG documents: compressed, as text in any encoding, inspected, cut into pieces of markup, indented, and cut
// to a rectangle.
#include <QLatin1String>
#include <QString>

#include <cmath>

#include "fuzz/targets.h"
#include "types/gzip_mark.h"
#include "worker/svg/gzip_inflate.h"
#include "worker/svg/inspection/svg_inspection.h"
#include "worker/svg/inspection/svg_length.h"
#include "worker/svg/inspection/svg_stretching.h"
#include "worker/svg/svg_cut.h"
#include "worker/svg/svg_pretty.h"
#include "worker/svg/svg_text.h"
#include "worker/svg/svg_tokens.h"

namespace norvex::fuzz {
namespace {

using namespace norvex::engine;

bool gzip(const QByteArray& bytes) {
  const auto inflated = inflateGzip(bytes);
  if (!inflated) return false;
  require(isGzip(bytes), "what was inflated was gzip");
  return true;
}

bool svgTexts(const QByteArray& bytes) {
  const auto text = decodeSvgText(bytes);
  if (!text) return false;
  const QByteArray encoded = encodeSvgText(text->utf8, *text);
  require(!encoded.isEmpty() || text->utf8.isEmpty(), "only an empty text has no bytes");
  // XML has no null character; behind a mark of two bytes it would be read as one of four.
  if (text->handedOnAsUtf8 || text->utf8.contains('\0')) return true;
  const auto again = decodeSvgText(encoded);
  require(again && again->utf8 == text->utf8, "a text that was read is written and read as the same");
  return true;
}

bool inspection(const QByteArray& bytes) {
  const auto found = inspectSvg(bytes);
  if (!found) return false;
  require(found->rootName == QLatin1String("svg") || found->rootName.endsWith(QLatin1String(":svg")),
          "the root is an SVG element");
  require(std::isfinite(found->morphologyRadius), "a radius is a number");
  require(found->filters >= 0 && found->masks >= 0 && found->outsideReferences >= 0, "counts are counts");
  const SvgGeometry geometry = svgGeometry(found->rootAttributes);
  const QSizeF size = svgPixelSize(geometry, [] { return QSizeF(30, 20); });
  require(!(size.width() < 0) && !(size.height() < 0), "a picture's sides are not negative");
  return true;
}

/// Also of text that is no XML: within its bounds, each piece behind the other.
bool tokens(const QByteArray& bytes) {
  qsizetype at = 0;
  const QList<SvgToken> all = tokenizeSvg(bytes);
  for (const SvgToken& token : all) {
    require(token.start == at && token.length > 0, "each token begins where the last one ended");
    at += token.length;
    require(token.end >= 0 && token.end < all.size(), "an end tag is one of the tokens");
    if (token.kind != SvgTokenKind::StartTag && token.kind != SvgTokenKind::EmptyTag) continue;
    require(tagName(bytes, token).size() < token.length, "a name is shorter than its tag");
    for (const TagAttribute& attribute : tagAttributes(bytes, token))
      require(attribute.all.size() <= token.length && attribute.value.size() < attribute.all.size() &&
                  attribute.name.size() < attribute.all.size(),
              "an attribute is a part of its tag");
  }
  require(at == bytes.size(), "all the tokens together are the text");
  return all.size() > 2;
}

bool cutting(const QByteArray& bytes) {
  if (bytes.contains('\0')) return false;  // text of a document ends there before it comes here
  const auto whole = inspectSvg(bytes);
  if (!whole) return false;
  require(inspectSvg(prettySvg(bytes)).ok(), "an indented document is a document");
  for (const double angle : {0.0, 0.5}) {
    const QSizeF picture(30, 20);
    const SvgCut cut{picture, {1, 2, 10, 8}, turnedInItsBox(picture, angle), whole->hasStyleSheet};
    const auto inside = inspectSvg(cutSvg(bytes, cut));
    // The new root and its viewport are two levels more, and a namespace that is given to the old root's
    // prefix stays there.
    require(inside.ok() || inside.error().kind == ErrorKind::Limit, "a part of a document is a document");
    require(!inside || inside->rootName == whole->rootName, "a part has the root of the whole");
  }
  return true;
}

/// The bytes: for each line an element, "name transform", or nothing: the element is closed.
bool stretching(const QByteArray& bytes) {
  SvgStretching stretching;
  int open = 0;
  bool any = false;
  for (const QByteArray& line : bytes.split('\n')) {
    if (line.isEmpty() && open > 0) stretching.close(), --open;
    if (line.isEmpty()) continue;
    const QString text = QString::fromUtf8(line);
    const QString transform = text.section(' ', 1);
    stretching.open(text.section(' ', 0, 0), transform, transform);
    ++open;
    any = any || stretches(transform);
    QString number = transform;
    QStringView rest(number);
    while (takeSvgNumber(rest)) require(rest.size() < number.size(), "a number takes characters");
    if (const auto length = parseSvgLength(transform))
      require(std::isfinite(length->isPercentage ? length->percent : length->pixels), "a length is finite");
  }
  require(!stretching.reachesText() || any || bytes.contains(' '), "nothing is stretched by itself");
  return any;
}

QList<QByteArray> documents() {
  return filesOf("data/svg") + filesOf("fuzz/seeds/svg");
}

QList<QByteArray> gzipSeeds() {
  return filesOf("fuzz/seeds/gzip");
}

QList<QByteArray> textSeeds() {
  QList<QByteArray> seeds = documents();
  for (const char* encoding : {"UTF-8", "ISO-8859-1", "Shift_JIS", "EUC-JP", "windows-1252", "KOI8-R"})
    seeds << QByteArray("<?xml version='1.0' encoding='") + encoding + "'?>\n<svg>\xc3\xa9</svg>";
  seeds << QByteArray("\xfe\xff\xfe\xff\0<\0s\0v\0g\0/\0>", 16);  // two marks
  seeds << QByteArray("\xff\xfe<\0s\0v\0g\0/\0>\0", 14) << QByteArray("\xfe\xff\0<\0s\0v\0g\0/\0>", 14);
  return seeds;
}

QList<QByteArray> stretchingSeeds() {
  return {"text scale(2 1)\ntspan translate(3)\n\n\nuse matrix(1 0 .5 1 0 0)\n",
          "g rotate(30, 1 2) scale(-2)\ntext skewX(10deg)\n\n", "svg xMidYMid none\ntext matrix(1e3,0,0,1e3)",
          "text scale(1e999 -.5e-3)\n\ntext 12.5pt"};
}

}  // namespace

QList<Target> svgTargets() {
  return {{"gzip_inflate", gzip, gzipSeeds, 300},    {"svg_text", svgTexts, textSeeds, 100},
          {"svg_inspection", inspection, documents}, {"svg_tokens", tokens, documents},
          {"svg_cutting", cutting, documents, 100},  {"svg_stretching", stretching, stretchingSeeds}};
}

}  // namespace norvex::fuzz
