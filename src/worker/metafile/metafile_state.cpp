// What changes the state of a metafile's drawing: its window, colours, clip, and the objects that it selects.
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "protocol/limits.h"
#include "worker/metafile/brush_tile.h"
#include "worker/metafile/device_bitmap.h"
#include "worker/metafile/metafile_drawing.h"
#include "worker/metafile/metafile_functions.h"

namespace norvex::engine {
namespace {

constexpr int kNoBrush = 1, kHatchedBrush = 2;
constexpr Argb32 kUnknownPattern = 0xFF808080;

Argb32 colourOf(quint32 colorRef) {
  return 0xFF000000 | (colorRef & 0xFF) << 16 | (colorRef & 0xFF00) | (colorRef >> 16 & 0xFF);
}

/// A brush whose tile cannot be made is drawn in its colour.
Bitmap orNone(const Result<Bitmap>& tile) {
  return tile ? *tile : Bitmap();
}

}  // namespace

bool MetafileDrawing::setState(quint16 function, Words& words) {
  switch (function) {
    case SetWindowOrg:
      state_.origin.setY(words.signedWord()), state_.origin.setX(words.signedWord());
      applyMatrix();
      return true;
    case SetWindowExt: {
      const int height = words.signedWord(), width = words.signedWord();
      if (width != 0 && height != 0) state_.extent = {width, height};
      applyMatrix();
      return true;
    }
    case SetBkMode:
      state_.hasBackground = words.unsignedWord() != 1;
      return true;
    case SetBkColor:
      state_.background = colourOf(words.doubleWord());
      return true;
    case SetTextColor:
      state_.textColour = colourOf(words.doubleWord());
      return true;
    case SetTextAlign:
      state_.textAlign = words.unsignedWord();
      return true;
    case SetPolyFillMode:
      state_.fillsByWinding = words.unsignedWord() == 2;
      return true;
    case SaveDC:
      if (saved_.size() < limits::maximumMetafileStates) saved_.push_back(state_), cairo_save(context_);
      return true;
    case RestoreDC:
      restore(words.signedWord());
      return true;
    case IntersectClipRect: {
      const QRectF box = boxOf(words);
      cairo_rectangle(context_, box.x(), box.y(), box.width(), box.height());
      cairo_clip(context_);
      return true;
    }
    case SelectObject:
      select(words.unsignedWord());
      return true;
    default:
      return false;
  }
}

void MetafileDrawing::restore(int level) {
  size_t remaining = level < 0 ? saved_.size() - std::min(saved_.size(), size_t(-level))
                               : std::min(saved_.size(), size_t(std::max(0, level - 1)));
  while (saved_.size() > remaining) {
    state_ = saved_.back();
    saved_.pop_back();
    cairo_restore(context_);
  }
  applyMatrix();
}

bool MetafileDrawing::makeObject(quint16 function, Words& words) {
  switch (function) {
    case CreatePen: {
      MetafilePen pen;
      pen.style = words.unsignedWord() & 0xF;
      pen.width = std::abs(words.signedWord());
      words.signedWord();
      pen.colour = colourOf(words.doubleWord());
      add(pen);
      return true;
    }
    case CreateBrush: {
      const int style = words.unsignedWord();
      MetafileBrush brush{style != kNoBrush, colourOf(words.doubleWord())};
      if (style == kHatchedBrush) brush.tile = orNone(hatchTile(words.unsignedWord(), brush.colour));
      add(std::move(brush));
      return true;
    }
    case CreateFont: {
      MetafileFont font;
      font.height = words.signedWord();
      words.signedWord();
      font.angle = words.signedWord() / 10.0;
      words.signedWord();
      font.isBold = words.signedWord() > 500;
      font.isItalic = (words.unsignedWord() & 0xFF) != 0;
      words.text(6);
      const QByteArrayView face = words.text(32);
      const qsizetype end = face.indexOf('\0');
      // A code page of Windows, while cairo draws nothing more after a name that is no UTF-8.
      font.face = QString::fromLatin1(end < 0 ? face : face.first(end)).toUtf8();
      add(font);
      return true;
    }
    case CreateDibPatternBrush: {
      words.doubleWord();
      add(MetafileBrush{true, kUnknownPattern, orNone(deviceBitmap(words.rest()))});
      return true;
    }
    case CreatePatternBrush:
      add(MetafileBrush{true, kUnknownPattern});
      return true;
    case CreatePalette:
    case CreateRegion:
      add(MetafileOther{});
      return true;
    case DeleteObject:
      if (const size_t index = words.unsignedWord(); index < objects_.size()) {
        objects_[index] = std::monostate();
        free_.insert(index);
      }
      return true;
    default:
      return false;
  }
}

void MetafileDrawing::add(MetafileObject object) {
  if (!free_.empty())
    objects_[free_.extract(free_.begin()).value()] = std::move(object);
  else if (objects_.size() < limits::maximumMetafileObjects)
    objects_.push_back(std::move(object));
}

void MetafileDrawing::select(quint16 index) {
  if (index >= objects_.size()) return;
  const MetafileObject& object = objects_[index];
  if (const auto* pen = std::get_if<MetafilePen>(&object)) state_.pen = *pen;
  if (const auto* brush = std::get_if<MetafileBrush>(&object)) state_.brush = *brush;
  if (const auto* font = std::get_if<MetafileFont>(&object)) state_.font = *font;
}

}  // namespace norvex::engine
