#include "worker/metafile/metafile_drawing.h"

#include <QRectF>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "worker/drawing/cairo_surface.h"
#include "worker/metafile/brush_tile.h"
#include "worker/metafile/device_bitmap.h"
#include "worker/metafile/metafile_functions.h"

namespace norvex::engine {
namespace {

void setColour(cairo_t* context, Argb32 colour) {
  cairo_set_source_rgb(context, red(colour) / 255.0, green(colour) / 255.0, blue(colour) / 255.0);
}

}  // namespace

MetafileDrawing::MetafileDrawing(cairo_t* context, const Metafile& metafile, QSize pixels)
    : context_(context), frame_(metafile.frame), pixels_(pixels) {
  state_.origin = frame_.topLeft();
  state_.extent = frame_.isEmpty() ? pixels : frame_.size();
  applyMatrix();
}

void MetafileDrawing::carryOut(const MetafileRecord& record) {
  for (const auto step :
       {&MetafileDrawing::setState, &MetafileDrawing::makeObject, &MetafileDrawing::drawLines,
        &MetafileDrawing::drawShape, &MetafileDrawing::drawText, &MetafileDrawing::drawBitmap}) {
    Words words(record.parameters);
    if ((this->*step)(record.function, words)) return;
  }
}

// The extent is as large as the pixels; a clip made before keeps its place.
void MetafileDrawing::applyMatrix() {
  cairo_matrix_t matrix;
  cairo_matrix_init_scale(&matrix, double(pixels_.width()) / state_.extent.width(),
                          double(pixels_.height()) / state_.extent.height());
  cairo_matrix_translate(&matrix, -state_.origin.x(), -state_.origin.y());
  cairo_set_matrix(context_, &matrix);
}

double MetafileDrawing::pixelsPerUnit() const {
  return std::abs(double(pixels_.width()) / state_.extent.width());
}

void MetafileDrawing::stroke() {
  const MetafilePen& pen = state_.pen;
  if (pen.style == 5) {
    cairo_new_path(context_);
    return;
  }
  setColour(context_, pen.colour);
  const double width = std::max<double>(pen.width, 1 / pixelsPerUnit());
  cairo_set_line_width(context_, width);
  cairo_set_line_cap(context_, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(context_, CAIRO_LINE_JOIN_ROUND);
  const double dash = 6 * width, dot = 2 * width;
  const std::array<double, 2> dashes{dash, dot}, dots{dot, dot};
  if (pen.style == 1 || pen.style == 3 || pen.style == 4) cairo_set_dash(context_, dashes.data(), 2, 0);
  if (pen.style == 2) cairo_set_dash(context_, dots.data(), 2, 0);
  cairo_stroke(context_);
  cairo_set_dash(context_, nullptr, 0, 0);
}

// The path stays.
void MetafileDrawing::fill() {
  const MetafileBrush& brush = state_.brush;
  if (!brush.paints) return;
  cairo_set_fill_rule(context_, state_.fillsByWinding ? CAIRO_FILL_RULE_WINDING : CAIRO_FILL_RULE_EVEN_ODD);
  const bool isTiled = !brush.tile.isEmpty();
  if (!isTiled || state_.hasBackground) {
    setColour(context_, isTiled ? state_.background : brush.colour);
    cairo_fill_preserve(context_);
  }
  if (isTiled) fillWithTile(context_, brush.tile);
}

void MetafileDrawing::fillAndStroke() {
  fill();
  stroke();
}

void MetafileDrawing::points(Words& words, int count, bool close) {
  for (int i = 0; i < count && !words.isShort(); ++i) {
    const int x = words.signedWord(), y = words.signedWord();
    if (words.isShort()) break;
    if (i == 0)
      cairo_move_to(context_, x, y);
    else
      cairo_line_to(context_, x, y);
  }
  if (close) cairo_close_path(context_);
}

bool MetafileDrawing::drawLines(quint16 function, Words& words) {
  if (function == MoveTo || function == LineTo) {
    const int y = words.signedWord(), x = words.signedWord();
    if (function == LineTo) {
      cairo_move_to(context_, state_.at.x(), state_.at.y());
      cairo_line_to(context_, x, y);
      stroke();
    }
    state_.at = {x, y};
    return true;
  }
  if (function != Polyline && function != Polygon && function != PolyPolygon) return false;
  const int count = words.unsignedWord();
  if (function == PolyPolygon) {
    QList<int> counts;
    for (int i = 0; i < count && !words.isShort(); ++i) counts << words.unsignedWord();
    for (const int corners : counts) points(words, corners, true);
  } else {
    points(words, count, function == Polygon);
  }
  function == Polyline ? stroke() : fillAndStroke();
  return true;
}

// Angles in degrees, clockwise where y points down; a box without area draws nothing.
void MetafileDrawing::ellipse(const QRectF& box, double from, double to) {
  if (box.isEmpty()) return;
  cairo_save(context_);
  cairo_translate(context_, box.center().x(), box.center().y());
  cairo_scale(context_, box.width() / 2, box.height() / 2);
  if (to <= from) to += 2 * std::numbers::pi;
  cairo_arc(context_, 0, 0, 1, from, to);
  cairo_restore(context_);
}

bool MetafileDrawing::drawShape(quint16 function, Words& words) {
  if (function == Rectangle || function == Ellipse) {
    const QRectF box = boxOf(words);
    if (function == Rectangle)
      cairo_rectangle(context_, box.x(), box.y(), box.width(), box.height());
    else
      ellipse(box, 0, 2 * std::numbers::pi);
    fillAndStroke();
    return true;
  }
  if (function == RoundRect) {
    const double high = std::abs(words.signedWord()) / 2.0, wide = std::abs(words.signedWord()) / 2.0;
    const QRectF box = boxOf(words);
    const double rx = std::min(wide, box.width() / 2), ry = std::min(high, box.height() / 2);
    const double quarter = std::numbers::pi / 2;
    const std::array<QPointF, 4> centres{
        QPointF(box.right() - rx, box.bottom() - ry), QPointF(box.left() + rx, box.bottom() - ry),
        QPointF(box.left() + rx, box.top() + ry), QPointF(box.right() - rx, box.top() + ry)};
    for (size_t i = 0; i < 4; ++i)
      ellipse(QRectF(centres[i].x() - rx, centres[i].y() - ry, 2 * rx, 2 * ry), double(i) * quarter,
              double(i + 1) * quarter);
    if (rx <= 0 || ry <= 0) cairo_rectangle(context_, box.x(), box.y(), box.width(), box.height());
    cairo_close_path(context_);
    fillAndStroke();
    return true;
  }
  if (function == Arc || function == Pie || function == Chord) {
    const int endY = words.signedWord(), endX = words.signedWord();
    const int startY = words.signedWord(), startX = words.signedWord();
    const QRectF box = boxOf(words);
    const auto angle = [&](int x, int y) {
      return std::atan2((y - box.center().y()) * box.width(), (x - box.center().x()) * box.height());
    };
    // Drawn against the clock from start to end, which is with it from end to start.
    if (function == Pie) cairo_move_to(context_, box.center().x(), box.center().y());
    ellipse(box, angle(endX, endY), angle(startX, startY));
    if (function != Arc) cairo_close_path(context_);
    function == Arc ? stroke() : fillAndStroke();
    return true;
  }
  return false;
}

bool MetafileDrawing::drawText(quint16 function, Words& words) {
  if (function == TextOut) {
    const int length = words.signedWord();
    const QByteArrayView text = words.text(length);
    const int y = words.signedWord(), x = words.signedWord();
    showText(text, {x, y});
    return true;
  }
  if (function != ExtTextOut) return false;
  const int y = words.signedWord(), x = words.signedWord();
  const int length = words.signedWord();
  if ((words.unsignedWord() & 6) != 0)  // with a rectangle to fill or to clip to
    for (int i = 0; i < 4; ++i) words.signedWord();
  showText(words.text(length), {x, y});
  return true;
}

void MetafileDrawing::showText(QByteArrayView text, QPoint at) {
  const MetafileFont& font = state_.font;
  cairo_select_font_face(context_, font.face.isEmpty() ? "sans-serif" : font.face.constData(),
                         font.isItalic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                         font.isBold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
  const double size = font.height == 0 ? 12 / pixelsPerUnit() : std::abs(font.height);
  cairo_save(context_);
  cairo_translate(context_, at.x(), at.y());
  cairo_rotate(context_, -qDegreesToRadians(font.angle));
  if (state_.extent.height() < 0) cairo_scale(context_, 1, -1);
  cairo_set_font_size(context_, size);
  cairo_font_extents_t line;
  cairo_font_extents(context_, &line);
  if (font.height > 0 && line.height > 0) {  // told is the height of a line
    cairo_set_font_size(context_, size * size / line.height);
    cairo_font_extents(context_, &line);
  }
  const QByteArray utf8 = QString::fromLatin1(text).toUtf8();
  cairo_text_extents_t extents;
  cairo_text_extents(context_, utf8.constData(), &extents);
  const int across = state_.textAlign & 6, down = state_.textAlign & 24;
  cairo_move_to(context_,
                across == 6   ? -extents.x_advance / 2
                : across == 2 ? -extents.x_advance
                              : 0,
                down == 24  ? 0
                : down == 8 ? -line.descent
                            : line.ascent);
  setColour(context_, state_.textColour);
  cairo_show_text(context_, utf8.constData());
  cairo_new_path(context_);
  cairo_restore(context_);
}

// A target of negative width or height mirrors.
void MetafileDrawing::paint(const Bitmap& whole, const QRect& source, const QRect& target) {
  Result<Bitmap> part = whole.copy(source);
  if (!part) return;
  const CairoSurface image(cairo_image_surface_create_for_data(reinterpret_cast<uchar*>(part->row(0)),
                                                               CAIRO_FORMAT_ARGB32, part->width(),
                                                               part->height(), part->bytesPerRow()));
  cairo_save(context_);
  cairo_translate(context_, target.x(), target.y());
  cairo_scale(context_, double(target.width()) / part->width(), double(target.height()) / part->height());
  cairo_rectangle(context_, 0, 0, part->width(), part->height());
  cairo_clip(context_);
  cairo_set_source_surface(context_, image.get(), 0, 0);
  cairo_pattern_set_extend(cairo_get_source(context_), CAIRO_EXTEND_PAD);
  cairo_paint(context_);
  cairo_restore(context_);
}

bool MetafileDrawing::drawBitmap(quint16 function, Words& words) {
  if (function == PatBlt) {
    words.doubleWord();
    const int high = words.signedWord(), wide = words.signedWord(), y = words.signedWord(),
              x = words.signedWord();
    cairo_rectangle(context_, x, y, wide, high);
    fill();
    cairo_new_path(context_);
    return true;
  }
  if (function != StretchDib && function != DibStretchBlt && function != DibBitBlt &&
      function != SetDibToDevice)
    return false;
  if (function == SetDibToDevice) {
    words.unsignedWord(), words.unsignedWord(), words.unsignedWord();
  } else {
    words.doubleWord();
    if (function == StretchDib) words.unsignedWord();
  }
  int sourceHigh = 0, sourceWide = 0;
  const bool stretches = function == StretchDib || function == DibStretchBlt;
  if (stretches) sourceHigh = words.signedWord(), sourceWide = words.signedWord();
  const int sourceY = words.signedWord(), sourceX = words.signedWord();
  const int high = words.signedWord(), wide = words.signedWord();
  const int y = words.signedWord(), x = words.signedWord();
  if (!stretches) sourceHigh = high, sourceWide = wide;
  const Result<Bitmap> whole = deviceBitmap(words.rest());
  if (!whole) return false;
  // Rows are counted from the bottom.
  const QRect source(sourceX, whole->height() - sourceY - sourceHigh, sourceWide, sourceHigh);
  if (wide != 0 && high != 0 && !source.isEmpty() && whole->rect().contains(source))
    paint(*whole, source, QRect(QPoint(x, y), QSize(wide, high)));
  return true;
}

}  // namespace norvex::engine
