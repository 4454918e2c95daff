// The records of a Windows metafile, carried out one after the other.
#pragma once

#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QSize>

#include <cairo.h>

#include <set>
#include <vector>

#include "worker/metafile/metafile_objects.h"
#include "worker/metafile/metafile_records.h"

namespace norvex::engine {

/// Draws into pixels of its own coordinates: `pixels` are as large as the extent that the metafile sets, or
/// as its frame. What a record means that is not known here is left out.
class MetafileDrawing {
 public:
  MetafileDrawing(cairo_t* context, const Metafile& metafile, QSize pixels);
  /// A record that is not known changes nothing; in one that is cut short all that is missing is 0.
  void carryOut(const MetafileRecord& record);

 private:
  using Words = MetafileWords;
  bool setState(quint16 function, Words& words);
  bool makeObject(quint16 function, Words& words);
  bool drawLines(quint16 function, Words& words);
  bool drawShape(quint16 function, Words& words);
  bool drawText(quint16 function, Words& words);
  bool drawBitmap(quint16 function, Words& words);
  void add(MetafileObject object);
  void select(quint16 index);
  void restore(int level);
  void applyMatrix();
  [[nodiscard]] double pixelsPerUnit() const;
  void ellipse(const QRectF& box, double from, double to);
  void points(Words& words, int count, bool close);
  void fill();
  void fillAndStroke();
  void stroke();
  void paint(const Bitmap& whole, const QRect& source, const QRect& target);
  void showText(QByteArrayView text, QPoint at);

  cairo_t* context_;
  QRect frame_;
  QSize pixels_;
  MetafileState state_;
  std::vector<MetafileState> saved_;
  std::vector<MetafileObject> objects_;
  std::set<size_t> free_;  ///< places of objects that were thrown away
};

}  // namespace norvex::engine
