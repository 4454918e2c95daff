// What the records of a Windows metafile are numbered as, in its format's description.
#pragma once

#include <QRectF>

#include "worker/metafile/metafile_records.h"

namespace norvex::engine {

enum Function : quint16 {
  SaveDC = 0x001E,
  SetBkMode = 0x0102,
  SetPolyFillMode = 0x0106,
  RestoreDC = 0x0127,
  SelectObject = 0x012D,
  SetTextAlign = 0x012E,
  CreatePalette = 0x00F7,
  CreatePatternBrush = 0x01F9,
  CreateDibPatternBrush = 0x0142,
  DeleteObject = 0x01F0,
  SetBkColor = 0x0201,
  SetTextColor = 0x0209,
  SetWindowOrg = 0x020B,
  SetWindowExt = 0x020C,
  LineTo = 0x0213,
  MoveTo = 0x0214,
  CreatePen = 0x02FA,
  CreateFont = 0x02FB,
  CreateBrush = 0x02FC,
  Polygon = 0x0324,
  Polyline = 0x0325,
  IntersectClipRect = 0x0416,
  Ellipse = 0x0418,
  Rectangle = 0x041B,
  TextOut = 0x0521,
  PolyPolygon = 0x0538,
  RoundRect = 0x061C,
  PatBlt = 0x061D,
  CreateRegion = 0x06FF,
  Arc = 0x0817,
  Pie = 0x081A,
  Chord = 0x0830,
  DibBitBlt = 0x0940,
  ExtTextOut = 0x0A32,
  DibStretchBlt = 0x0B41,
  SetDibToDevice = 0x0D33,
  StretchDib = 0x0F43,
};

/// Bottom, right, top, left: how records tell a box.
[[nodiscard]] inline QRectF boxOf(MetafileWords& words) {
  const int bottom = words.signedWord(), right = words.signedWord();
  const int top = words.signedWord(), left = words.signedWord();
  return QRectF(QPointF(left, top), QPointF(right, bottom)).normalized();
}

}  // namespace norvex::engine
