// Text: every outline is a definition, used wherever it is shown; or it stays text.
#include <GfxFont.h>
#include <GfxState.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "protocol/limits.h"
#include "worker/svg_output/svg_device.h"
#include "worker/svg_output/svg_device_state.h"
#include "worker/svg_output/svg_path.h"
#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

constexpr double kPlaceError = 0.02;  // points, twice what a glyph may be misplaced by
constexpr int kMatrixDecimals = 3;

enum RenderBits { kFill = 1, kStroke = 2, kClip = 4 };

// PDF 32000-1, table 106.
int renderBits(int mode) {
  constexpr int bits[] = {kFill, kStroke, kFill | kStroke, 0};
  return mode < 0 || mode > 7 ? kFill : bits[mode & 3] | (mode & 4 ? kClip : 0);
}

AffineTransform linearOf(const AffineTransform& m) {
  return {m.m11(), m.m12(), m.m21(), m.m22(), 0, 0};
}

bool isSamePlace(const SvgPlace& a, const SvgPlace& b) {
  return a.clips == b.clips && a.blend == b.blend && a.mask == b.mask;
}

QByteArray useText(const QByteArray& name, const QByteArray& attributes) {
  return "<use" + attribute("xlink:href", '#' + name) + attributes + "/>";
}

}  // namespace

const SvgDevice::Glyph* SvgDevice::glyph(SvgFont& font, unsigned number) {
  auto at = fontNumbers_.constFind(&font);
  if (at == fontNumbers_.constEnd()) at = fontNumbers_.insert(&font, quint32(fontNumbers_.size()));
  const quint64 key = quint64(*at) << 32 | number;
  if (const auto known = glyphs_.constFind(key); known != glyphs_.constEnd()) return &*known;
  if (glyphs_.size() >= mostGlyphs_) {
    leftOutGlyphs_ = true;
    return nullptr;
  }
  SvgPathWriter writer(0);
  Glyph made;
  if (font.outline(number, AffineTransform::fromScale(1, -1), writer)) {
    const SvgPath path = writer.take();
    made.bounds = path.bounds;
    if (!path.data.isEmpty()) made.name = sheet_.define("<path" + attribute("d", path.data) + "/>");
  }
  return &*glyphs_.insert(key, made);
}

// `matrix`: the outline's units, y up → page.
void SvgDevice::drawGlyph(GfxState* state, SvgFont& font, unsigned number, const AffineTransform& matrix) {
  const Glyph* const shown = glyph(font, number);
  if (!shown || shown->name.isEmpty()) return;
  const AffineTransform down = AffineTransform::fromScale(1, -1) * matrix;
  const QRectF bounds = down.mapRect(shown->bounds);
  const QByteArray paint = fillPaint(state);
  const SvgPlace where = place(state);
  if (!sheet_.isSeen(bounds, where.clips)) return;
  if (run_ &&
      (linearOf(run_->matrix) != linearOf(down) || run_->paint != paint || !isSamePlace(run_->place, where)))
    flushText();
  if (!run_) {
    run_ = TextRun{down, paint, where, {}, bounds, 0, shown->name};
    // The place is rounded as it will be written: what follows counts from there.
    const auto rounded = [](double value) { return std::round(value * 1000) / 1000; };
    run_->matrix = AffineTransform(down.m11(), down.m12(), down.m21(), down.m22(), rounded(down.dx()),
                                   rounded(down.dy()));
  }
  const QPointF at = run_->matrix.inverted().map({down.dx(), down.dy()});
  const double unit = std::sqrt(std::abs(down.determinant()));
  const int decimals = std::clamp(int(std::ceil(std::log10(unit / kPlaceError))), 0, 4);
  const QByteArray x = svgNumber(at.x(), decimals), y = svgNumber(at.y(), decimals);
  QByteArray attributes;
  if (x != "0") attributes += attribute("x", x);
  if (y != "0") attributes += attribute("y", y);
  run_->uses += useText(shown->name, attributes);
  run_->bounds |= bounds;
  ++run_->glyphs;
}

// What is not seen is searched all the same: the text that lies above a scanned page.
bool SvgDevice::writeGlyph(GfxState* state, SvgFont& font, const SvgShownGlyph& glyph, bool isSeen) {
  if (run_) flushText();
  return lines_->add(font, glyph, isSeen ? fillPaint(state) : attribute("fill", "none"), place(state));
}

void SvgDevice::flushText() {
  if (lines_) lines_->flush();
  const std::optional<TextRun> run = std::exchange(run_, std::nullopt);
  if (!run || run->glyphs == 0) return;
  const QByteArray attributes = (run->paint == " fill=\"#000\"" ? QByteArray() : run->paint) +
                                attribute("transform", svgTransform(run->matrix, kMatrixDecimals));
  sheet_.add(run->glyphs == 1 ? useText(run->only, attributes) : "<g" + attributes + '>' + run->uses + "</g>",
             false, run->bounds, run->place);
}

// Stroked text, and text that clips: its lines are as wide as the page's, whatever the font's size.
void SvgDevice::outlineGlyph(GfxState* state, SvgFont& font, unsigned number, const AffineTransform& matrix,
                             int bits) {
  flushText();
  SvgPathWriter writer(sheet_.decimals() + 1);
  if (!font.outline(number, matrix, writer)) return;
  const SvgPath path = writer.take();
  if (bits & kFill) sheet_.addPath(path.data, fillPaint(state), {}, false, path.bounds, place(state));
  if (bits & kStroke) {
    const double even = evenScale(pageMatrix(state));
    const double scale = even > 0 ? even : std::sqrt(std::abs(pageMatrix(state).determinant()));
    sheet_.addPath(path.data, {}, strokePaint(state) + lineAttributes(state, scale), false,
                   grown(path.bounds, lineReach(state, scale)), place(state));
  }
  if (!(bits & kClip)) return;
  if (!textClip_) textClip_.emplace(sheet_.decimals() + 1);
  if (textClip_->size() < limits::maximumSvgAttribute) font.outline(number, matrix, *textClip_);
}

void SvgDevice::drawChar(GfxState* state, double x, double y, double dx, double dy, double originX,
                         double originY, CharCode code, int, const Unicode* text, int length) {
  const int bits = renderBits(state->getRender());
  const std::shared_ptr<GfxFont>& used = state->getFont();
  if ((bits == 0 && !lines_) || !used || mustStop()) return;
  SvgFont* const font = fonts_.font(*used, objects_);
  if (!font || !font->isOpen()) return;
  const double* m = state->getTextMat();
  const double size = state->getFontSize() / font->unitsPerEm();
  const double across = size * state->getHorizScaling() * font->narrowing();
  const AffineTransform matrix =
      AffineTransform(m[0] * across, m[1] * across, m[2] * size, m[3] * size, x - originX, y - originY) *
      pageMatrix(state);
  if (!matrix.isFinite() || !matrix.isInvertible()) return;
  const unsigned number = font->glyphOf(code);
  if (lines_) {
    const AffineTransform toPage = linearOf(pageMatrix(state));
    SvgShownGlyph shown{number, matrix, toPage.map({dx, dy}), {}};
    if (text && length > 0) shown.text.assign(text, text + length);
    if ((bits == kFill || bits == 0) && writeGlyph(state, *font, shown, bits == kFill)) return;
    if (bits != 0) lines_->noteOutline();
    lines_->flush();
  }
  if (bits == 0) return;
  if (bits == kFill)
    drawGlyph(state, *font, number, matrix);
  else
    outlineGlyph(state, *font, number, matrix, bits);
}

void SvgDevice::endTextObject(GfxState*) {
  if (!textClip_) return;
  flushText();
  const SvgPath path = std::exchange(textClip_, std::nullopt)->take();
  states_.back().clips << std::make_shared<const SvgClip>(
      SvgClip{path.data, false, path.data.isEmpty() ? QRectF(-1e9, -1e9, 0, 0) : path.bounds, false, {}});
}

// ---- fonts whose glyphs are drawings ------------------------------------------------------------------

bool SvgDevice::beginType3Char(GfxState* state, double, double, double, double, CharCode code, const Unicode*,
                               int) {
  flushText();
  if (lines_) lines_->noteOutline();
  const std::shared_ptr<GfxFont>& font = state->getFont();
  if (!font || mustStop()) return true;
  const AffineTransform matrix = pageMatrix(state);
  const QPointF origin(matrix.dx(), matrix.dy());
  QByteArray key = QByteArray::number(font->getID()->num) + ' ' + QByteArray::number(font->getID()->gen) +
                   ' ' + QByteArray::number(code) + fillPaint(state);
  for (const double entry : {matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22()})
    key += ' ' + QByteArray::number(entry, 'g', 6);
  if (const auto known = type3_.constFind(key); known != type3_.constEnd()) {
    useType3(*known, origin, place(state));
    return true;
  }
  type3Uses_.push_back({key, origin, place(state), states_.size()});
  states_.push_back(states_.back());
  states_.back().mask.clear();
  state->setBlendMode(gfxBlendNormal);  // until the state is restored, behind the glyph
  sheet_.beginLayer(states_.back().clips.size(), true);
  return false;
}

// A glyph without colours of its own has that of the text, for its lines too.
void SvgDevice::type3D1(GfxState* state, double, double, double, double, double, double) {
  state->setStrokeColorSpace(state->getFillColorSpace()->copy());
  state->setStrokePattern(state->getFillPattern() ? state->getFillPattern()->copy() : nullptr);
  state->setStrokeColor(state->getFillColor());
  state->setStrokeOpacity(state->getFillOpacity());
}

void SvgDevice::endType3Char(GfxState*) {
  if (type3Uses_.empty()) return;
  flushText();
  const Type3Use use = std::move(type3Uses_.back());
  type3Uses_.pop_back();
  const SvgLayer layer = sheet_.endLayer();
  states_.resize(std::min(states_.size(), use.states));
  Type3Glyph made{{}, layer.bounds, use.origin};
  if (layer.elements > 0) made.name = sheet_.define("<g>\n" + layer.body + "</g>");
  if (type3_.size() < mostGlyphs_) type3_.insert(use.key, made);
  useType3(made, use.origin, use.place);
}

void SvgDevice::useType3(const Type3Glyph& glyph, QPointF origin, const SvgPlace& place) {
  if (glyph.name.isEmpty()) return;
  const QPointF by = origin - glyph.origin;
  const QByteArray x = svgNumber(by.x(), kMatrixDecimals), y = svgNumber(by.y(), kMatrixDecimals);
  QByteArray attributes;
  if (x != "0") attributes += attribute("x", x);
  if (y != "0") attributes += attribute("y", y);
  sheet_.add(useText(glyph.name, attributes), false, glyph.bounds.translated(by), place);
}

}  // namespace norvex::engine
