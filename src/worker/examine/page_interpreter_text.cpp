#include <algorithm>
#include <cmath>

#include "worker/examine/font_list.h"
#include "worker/examine/operands.h"
#include "worker/examine/page_interpreter.h"

// Text of a page. Widths of glyphs are not read: where a text begins is exact, where it ends is a guess.
namespace norvex::engine {
namespace {

constexpr double kUsualWidth = 0.5;  // of a glyph, in sizes
constexpr int kInvisible = 3;

/// How many codes are shown, of one byte each.
size_t codesOf(const std::vector<QPDFObjectHandle>& operands) {
  size_t count = 0;
  for (QPDFObjectHandle operand : operands) {
    if (operand.isString()) count += operand.getStringValue().size();
    if (!operand.isArray()) continue;
    for (QPDFObjectHandle part : operand.getArrayAsVector())
      if (part.isString()) count += part.getStringValue().size();
  }
  return count;
}

// The glyphs of a Type 3 font are as large as its matrix and box make them (PDF 1.7, 9.6.5).
double unitSizeOf(QPDFObjectHandle font) {
  if (!font.isDictionary() || !font.getKey("/Subtype").isNameAndEquals("/Type3")) return 1;
  const auto box = rectOf(font.getKey("/FontBBox"));
  const AffineTransform matrix = matrixOf(font.getKey("/FontMatrix"));
  return box && box->height() > 0 ? std::abs(box->height() * matrix.m22()) : 0;
}

}  // namespace

void PageInterpreter::beginText(const Operands&) {
  state_.text.matrix = state_.text.line = {};
}

void PageInterpreter::setFont(const Operands& operands) {
  if (operands.size() < 2 || !QPDFObjectHandle(operands[1]).isNumber()) return;
  useFont(resource("/Font", operands[0]), QPDFObjectHandle(operands[1]).getNumericValue());
}

void PageInterpreter::useFont(QPDFObjectHandle font, double size) {
  state_.text.size = size;
  state_.text.unitSize = unitSizeOf(font);
  state_.text.font = fontName(font);
}

void PageInterpreter::setLeading(const Operands& operands) {
  if (const auto n = numbersOf(operands); !n.empty()) state_.text.leading = n[0];
}

void PageInterpreter::setTextScale(const Operands& operands) {
  if (const auto n = numbersOf(operands); !n.empty()) state_.text.scale = n[0] / 100;
}

void PageInterpreter::setTextMode(const Operands& operands) {
  if (const auto n = numbersOf(operands); !n.empty()) state_.text.mode = int(std::clamp(n[0], 0.0, 7.0));
}

void PageInterpreter::moveText(const Operands& operands) {
  const auto n = numbersOf(operands);
  if (n.size() < 2) return;
  state_.text.line = AffineTransform::fromTranslate(n[0], n[1]) * state_.text.line;
  state_.text.matrix = state_.text.line;
}

void PageInterpreter::moveTextSettingLeading(const Operands& operands) {
  if (const auto n = numbersOf(operands); n.size() >= 2) state_.text.leading = -n[1];
  moveText(operands);
}

void PageInterpreter::setTextMatrix(const Operands& operands) {
  const auto n = numbersOf(operands);
  if (n.size() < 6) return;
  state_.text.line = state_.text.matrix = AffineTransform(n[0], n[1], n[2], n[3], n[4], n[5]);
}

void PageInterpreter::nextLine(const Operands&) {
  state_.text.line = AffineTransform::fromTranslate(0, -state_.text.leading) * state_.text.line;
  state_.text.matrix = state_.text.line;
}

void PageInterpreter::showTextOnNextLine(const Operands& operands) {
  nextLine(operands);
  showText(operands);
}

void PageInterpreter::showText(const Operands& operands) {
  TextState& text = state_.text;
  const size_t codes = codesOf(operands);
  if (codes == 0) return;
  findings_.font(text.font);
  const double unit = text.unitSize > 0 ? text.unitSize : 1;
  const double height = text.size * unit, width = height * text.scale * kUsualWidth * double(codes);
  const AffineTransform toPicture = text.matrix * state_.toPicture;
  const QRectF rect = toPicture.mapRect(QRectF(QPointF(0, 0), QPointF(width, height)).normalized());
  const double size = std::abs(height) * std::hypot(toPicture.m21(), toPicture.m22());
  text.matrix = AffineTransform::fromTranslate(width, 0) * text.matrix;
  if (text.mode % 4 == kInvisible) return;
  const bool fills = text.mode % 4 != 1;
  if (text.unitSize > 0) findings_.text(state_, size, rect);
  if (fills && state_.fill.space.isPattern) return paintPattern(fillPattern_, rect);
  findings_.paint(PaintKind::Text, state_, fills ? state_.fill : state_.stroke, rect);
}

}  // namespace norvex::engine
