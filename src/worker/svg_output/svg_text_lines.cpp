#include "worker/svg_output/svg_text_lines.h"

#include <QChar>
#include <QString>

#include <algorithm>
#include <cmath>
#include <utility>

#include "protocol/limits.h"
#include "worker/svg_output/svg_writing.h"
#include "worker/web_fonts/shown_characters.h"

namespace norvex::engine {
namespace {

// Of the font's size.
constexpr double kWordGap = 0.15;   // a gap that is wider is a space that the document left out
constexpr double kLineGap = 2;      // and one that is wider is none: columns
constexpr double kBackwards = 0.3;  // characters that stand so far before the last one's end are others
constexpr double kBaseline = 0.01;

constexpr int kMostCharacters = 500;  // of an element; readers handle short lines faster
constexpr int kSizeDecimals = 4, kMatrixDecimals = 3;
constexpr double kPrecision = 1e5;

/// Without what two fonts of one size differ by because they count in other units.
double rounded(double value) {
  return std::round(value * kPrecision) / kPrecision;
}

AffineTransform linearOf(const AffineTransform& m, double unit) {
  return {rounded(m.m11() / unit),
          rounded(m.m12() / unit),
          rounded(m.m21() / unit),
          rounded(m.m22() / unit),
          0,
          0};
}

bool isUpright(const AffineTransform& m) {
  return m.m11() == 1 && m.m12() == 0 && m.m21() == 0 && m.m22() == 1;
}

bool isSameLinear(const AffineTransform& a, const AffineTransform& b) {
  return a.m11() == b.m11() && a.m12() == b.m12() && a.m21() == b.m21() && a.m22() == b.m22();
}

bool isSamePlace(const SvgPlace& a, const SvgPlace& b) {
  return a.clips == b.clips && a.blend == b.blend && a.mask == b.mask;
}

/// Another font, for readers that take none from a document.
QByteArray standIn(const SvgFontLook& look) {
  return look.isFixed ? "monospace" : look.hasSerifs ? "serif" : "sans-serif";
}

QByteArray fontAttributes(const QByteArray& family, const SvgFontLook& look) {
  return attribute("font-family", family + ',' + standIn(look)) +
         (look.isBold ? attribute("font-weight", "bold") : QByteArray()) +
         (look.isItalic ? attribute("font-style", "italic") : QByteArray());
}

QByteArray familyName(const QByteArray& first, size_t face) {
  return face == 0 ? first : first + '-' + QByteArray::number(qsizetype(face));
}

QByteArray faceRule(const QByteArray& family, const SvgFontLook& look, const QByteArray& font) {
  return "@font-face{font-family:" + family + (look.isBold ? ";font-weight:bold" : "") +
         (look.isItalic ? ";font-style:italic" : "") + ";src:url(" + dataAddress("font/woff", font) + ")}";
}

}  // namespace

SvgTextLines::Faces& SvgTextLines::facesOf(SvgFont& font) {
  if (Faces* const known = known_.value(&font)) return *known;
  fonts_.push_back({&font,
                    {font.unitsPerEm(), font.ascent(), font.descent()},
                    "n" + QByteArray::number(qsizetype(fonts_.size())),
                    font.mayBeEmbedded()});
  return *known_.insert(&font, &fonts_.back()).value();
}

QRectF SvgTextLines::boxOf(Faces& faces, unsigned glyph) {
  const auto known = faces.boxes.constFind(glyph);
  if (known != faces.boxes.constEnd()) return *known;
  const double em = faces.font->unitsPerEm();
  QRectF box(-em, -2 * em, 3 * em, 3 * em);
  const auto reach = [&box](const QPointF& point) {
    box.setCoords(std::min(box.left(), point.x()), std::min(box.top(), point.y()),
                  std::max(box.right(), point.x()), std::max(box.bottom(), point.y()));
  };
  // The points that a step does not take are at the origin, which is in the box.
  for (const OutlineStep& step : faces.font->outlineOf(glyph).steps)
    for (const QPointF& point : step.points) reach({point.x(), -point.y()});
  return *faces.boxes.insert(glyph, box);
}

bool SvgTextLines::goesOn(const Line& next, QPointF at) const {
  if (next.isAlone || line_->isAlone || line_->characters >= kMostCharacters) return false;
  const double gap = (at.x() - line_->end.x()) / next.fontSize;
  return isSameLinear(line_->matrix, next.matrix) && line_->fontSize == next.fontSize &&
         line_->paint == next.paint && isSamePlace(line_->place, next.place) && gap < kLineGap &&
         gap > -kBackwards && at.x() >= line_->begin.x() &&
         std::abs(at.y() - line_->end.y()) < kBaseline * next.fontSize;
}

// What is turned counts from its first character; the place is rounded as it will be written.
void SvgTextLines::begin(Line next, QPointF page) {
  flush();
  line_ = std::move(next);
  const AffineTransform& m = line_->matrix;
  const auto written = [](double value) { return std::round(value * 1000) / 1000; };
  if (!isUpright(m))
    line_->matrix = {m.m11(), m.m12(), m.m21(), m.m22(), written(page.x()), written(page.y())};
  line_->begin = line_->end = line_->matrix.inverted().map(page);
  line_->endsInSpace = true;
}

bool SvgTextLines::add(SvgFont& font, const SvgShownGlyph& glyph, const QByteArray& paint,
                       const SvgPlace& place) {
  Faces& faces = facesOf(font);
  const AffineTransform down = AffineTransform::fromScale(1, -1) * glyph.matrix;
  const double unit = std::sqrt(std::abs(down.determinant())), em = font.unitsPerEm();
  Line next{linearOf(down, unit), rounded(unit * em), paint, place};
  if (!faces.mayBeEmbedded || !(next.fontSize > 0) || !next.matrix.isInvertible()) return false;
  const QRectF bounds = down.mapRect(boxOf(faces, glyph.number));
  if (!sheet_.isSeen(bounds, place.clips)) return true;
  if (!faces.faces.knows(glyph.number) && !faces.faces.add(glyph.number, font.outlineOf(glyph.number)))
    return false;
  const bool isBlank = faces.faces.isBlank(glyph.number);
  const std::vector<char32_t> text = charactersFor(glyph.text, isBlank);
  const auto shown = faces.faces.show(glyph.number, text);
  if (!shown) return false;
  hasUnknown_ = hasUnknown_ || (text.empty() && !isBlank);
  next.isAlone = std::any_of(text.begin(), text.end(), standsAlone);

  const QPointF page(down.dx(), down.dy());
  if (!line_ || !goesOn(next, line_->matrix.inverted().map(page))) begin(std::move(next), page);
  const QPointF at = line_->matrix.inverted().map(page);
  const bool isSpace = shown->front().character == U' ';
  const bool isGap = at.x() - line_->end.x() > kWordGap * line_->fontSize;
  if (const auto space = isGap && !isSpace && !line_->endsInSpace ? faces.faces.space() : std::nullopt)
    put(faces, *space, line_->end.x());
  for (const FaceCharacter& character : *shown) put(faces, character, at.x());
  const QPointF behind = line_->matrix.inverted().map(page + glyph.advance);
  line_->begin = at;
  line_->end = {std::max(at.x(), behind.x()), at.y()};
  line_->endsInSpace = isSpace;
  line_->bounds |= bounds;
  return true;
}

void SvgTextLines::put(const Faces& faces, const FaceCharacter& shown, double x) {
  const QByteArray name = familyName(faces.name, shown.face);
  std::vector<Piece>& pieces = line_->pieces;
  if (pieces.empty() || pieces.back().family != name) pieces.push_back({name, faces.font->look(), {}, {}});
  Piece& piece = pieces.back();
  const QByteArray place = (piece.places.isEmpty() ? "" : " ") + svgNumber(x, sheet_.decimals());
  piece.text += xmlText(QString::fromUcs4(&shown.character, 1));
  piece.places += place;
  // The second half of a character counts as one of its own.
  if (QChar::requiresSurrogates(shown.character)) piece.places += ' ' + place.trimmed();
  ++line_->characters;
}

void SvgTextLines::flush() {
  std::optional<Line> line = std::exchange(line_, std::nullopt);
  if (!line || line->pieces.empty()) return;
  const Piece& first = line->pieces.front();
  QByteArray element = "<text" + (line->paint == " fill=\"#000\"" ? QByteArray() : line->paint);
  if (const QByteArray matrix = svgTransform(line->matrix, kMatrixDecimals); !matrix.isEmpty())
    element += attribute("transform", matrix);
  element += attribute("font-size", svgNumber(line->fontSize, kSizeDecimals));
  element += attribute("y", svgNumber(line->end.y(), sheet_.decimals()));
  if (line->pieces.size() == 1) {
    element += fontAttributes(first.family, first.look) + attribute("x", first.places) + '>' + first.text;
  } else {
    element += '>';
    for (const Piece& piece : line->pieces)
      element += "<tspan" + fontAttributes(piece.family, piece.look) + attribute("x", piece.places) + '>' +
                 piece.text + "</tspan>";
  }
  sheet_.add(element + "</text>", false, line->bounds, line->place);
}

std::optional<QByteArray> SvgTextLines::styles() const {
  QByteArray all;
  for (const Faces& faces : fonts_)
    for (size_t face = 0; face < faces.faces.count(); ++face) {
      const auto made = woffFont(faces.faces.font(face));
      if (!made) continue;
      const QByteArray rule = faceRule(familyName(faces.name, face), faces.font->look(), *made);
      if (rule.size() > limits::maximumSvgAttribute) return std::nullopt;
      all += "<style>" + rule + "</style>\n";
    }
  if (all.isEmpty()) return all;
  return "<style>text{white-space:pre;text-rendering:geometricPrecision}</style>\n" + all;
}

QStringList SvgTextLines::remarks() const {
  QStringList sentences;
  if (hasOutlines_)
    sentences << QStringLiteral(
        "some text stays outlines: it is a line or a clip, or its font may not or cannot be embedded");
  if (hasUnknown_)
    sentences << QStringLiteral(
        "of some characters the document does not tell the meaning: they are shown, and no search finds "
        "them");
  return sentences;
}

}  // namespace norvex::engine
