#include "worker/postscript/tile_seams.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <memory>

#include <qpdf/Pl_Buffer.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include "worker/pdf/pdf_colour_operators.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_numbers.h"
#include "worker/pdf/pdf_writing.h"
#include "worker/postscript/tile_paths.h"

namespace norvex::engine {
namespace {

constexpr int kFewestImages = 4;  ///< of a picture that may have been flattened into tiles
constexpr double kOverlap = 1;    ///< points: more than a pixel from the natural size on
constexpr double kGrid = 50;      ///< places are the same within a fiftieth of a point
constexpr qint64 kMostContents = 64 << 20;
constexpr std::size_t kMostEdges = 1'000'000;
constexpr std::size_t kMostNeighbours = 32;  ///< of an edge, that are looked at

/// Along an edge that the path shares with one that is painted later.
struct Strip {
  TileEdge edge;
  double outwards = 0;  ///< how far it reaches
  double inwards = 0;   ///< what of the path it covers again: chords leave a gap beside a curve
};
using Strips = std::map<std::size_t, std::vector<Strip>>;  ///< by the path that grows

qint64 onGrid(double value) {
  return std::llround(value * kGrid);
}

/// An edge and whose it is.
struct Owned {
  TileEdge edge;
  std::size_t path = 0;
};

/// Finds the edges along which a tile grows.
class Matching {
 public:
  explicit Matching(const std::vector<TilePath>& paths) : paths_(paths) {}

  Strips strips() {
    std::size_t count = 0;
    for (std::size_t i = 0; i < paths_.size(); ++i)
      for (const TileEdge& edge : paths_[i].edges) {
        if (++count > kMostEdges) return {};
        sort(Owned{edge, i});
      }
    for (auto& [line, edges] : upright_) matchOnLine(edges, &QPointF::ry);
    for (auto& [line, edges] : level_) matchOnLine(edges, &QPointF::rx);
    for (const auto& [ends, edges] : slanted_) matchSlanted(ends, edges);
    return std::move(strips_);
  }

 private:
  using Ends = std::array<qint64, 4>;
  using Coordinate = qreal& (QPointF::*)();

  void sort(const Owned& owned) {
    const Ends ends{onGrid(owned.edge.from.x()), onGrid(owned.edge.from.y()), onGrid(owned.edge.to.x()),
                    onGrid(owned.edge.to.y())};
    if (ends[0] == ends[2])
      upright_[ends[0]].push_back(owned);
    else if (ends[1] == ends[3])
      level_[ends[1]].push_back(owned);
    else
      slanted_[ends].push_back(owned);
  }

  static double at(QPointF point, Coordinate coordinate) { return (point.*coordinate)(); }
  static double low(const Owned& owned, Coordinate c) {
    return std::min(at(owned.edge.from, c), at(owned.edge.to, c));
  }
  static double high(const Owned& owned, Coordinate c) {
    return std::max(at(owned.edge.from, c), at(owned.edge.to, c));
  }

  /// Edges on one line may share a part of their length.
  void matchOnLine(std::vector<Owned>& edges, Coordinate c) {
    std::sort(edges.begin(), edges.end(),
              [c](const Owned& a, const Owned& b) { return low(a, c) < low(b, c); });
    for (std::size_t i = 0; i < edges.size(); ++i)
      for (std::size_t j = i + 1; j < std::min(edges.size(), i + kMostNeighbours); ++j) {
        if (low(edges[j], c) >= high(edges[i], c)) break;
        const Owned& first = edges[i].path < edges[j].path ? edges[i] : edges[j];
        const Owned& later = edges[i].path < edges[j].path ? edges[j] : edges[i];
        const bool faceEachOther = (at(first.edge.from, c) < at(first.edge.to, c)) !=
                                   (at(later.edge.from, c) < at(later.edge.to, c));
        if (!faceEachOther) continue;
        TileEdge shared = first.edge;
        const double from = std::max(low(first, c), low(later, c));
        const double to = std::min(high(first, c), high(later, c));
        const bool rises = at(shared.from, c) < at(shared.to, c);
        (shared.from.*c)() = rises ? from : to;
        (shared.to.*c)() = rises ? to : from;
        grow(first.path, later.path, shared);
      }
  }

  void matchSlanted(const Ends& ends, const std::vector<Owned>& edges) {
    const auto facing = slanted_.find({ends[2], ends[3], ends[0], ends[1]});
    if (facing == slanted_.end()) return;
    for (const Owned& first : edges)
      for (std::size_t i = 0; i < std::min(facing->second.size(), kMostNeighbours); ++i)
        if (facing->second[i].path > first.path) grow(first.path, facing->second[i].path, first.edge);
  }

  void grow(std::size_t first, std::size_t later, const TileEdge& edge) {
    if (first == later || !paths_[first].canGrow || !paths_[first].isOpaque || !paths_[later].isOpaque)
      return;
    // Not through a thin neighbour and out on its other side.
    strips_[first].push_back(
        {edge, std::min(kOverlap, paths_[later].thickness), std::min(kOverlap, paths_[first].thickness)});
  }

  const std::vector<TilePath>& paths_;
  std::map<qint64, std::vector<Owned>> upright_, level_;
  std::map<Ends, std::vector<Owned>> slanted_;
  Strips strips_;
};

/// The strip as a part of the path: gone round in the path's own sense, so that both are one area.
QByteArray outlineOf(const Strip& strip, const TilePath& path) {
  const QPointF along = strip.edge.to - strip.edge.from;
  const double length = std::hypot(along.x(), along.y());
  if (!(length > 0)) return {};
  const QPointF normal = QPointF(along.y(), -along.x()) / length;
  const QPointF outwards = normal * strip.outwards, inwards = normal * strip.inwards;
  std::array<QPointF, 4> corners{strip.edge.to - inwards, strip.edge.from - inwards,
                                 strip.edge.from + outwards, strip.edge.to + outwards};
  if (path.isReversed) std::reverse(corners.begin(), corners.end());
  const AffineTransform fromPage = path.toPage.inverted();
  QByteArray text;
  for (const QPointF& corner : corners) {
    const QPointF point = fromPage.map(corner);
    appendNumber(text, point.x());
    text += ' ';
    appendNumber(text, point.y());
    text += text.contains('m') ? " l\n" : " m\n";
  }
  return text + "h\n";
}

/// Adds the strips to their paths.
class TileGrower final : public TilePathFinder {
 public:
  explicit TileGrower(Strips strips) : TilePathFinder({}), strips_(std::move(strips)) {}

 protected:
  QByteArray added(std::size_t number) override {
    QByteArray text;
    if (const auto at = strips_.find(number); at != strips_.end())
      for (const Strip& strip : at->second) text += outlineOf(strip, paths().at(number));
    return text.isEmpty() ? text : '\n' + text;
  }

 private:
  Strips strips_;
};

bool hides(QPDFObjectHandle object) {
  if (!object.isStream()) return false;
  const QPDFObjectHandle image = object.getDict();
  const auto key = [&](const char* name) { return QPDFObjectHandle(image).getKey(name); };
  return key("/Subtype").isNameAndEquals("/Image") && !key("/SMask").isStream() && !key("/Mask").isStream() &&
         !key("/Mask").isArray() && !(key("/ImageMask").isBool() && key("/ImageMask").getBoolValue());
}

std::set<std::string> opaqueImages(QPDFObjectHandle page) {
  std::set<std::string> names;
  QPDFObjectHandle objects = page.getKey("/Resources").getKeyIfDict("/XObject");
  if (!objects.isDictionary()) return names;
  for (const std::string& name : objects.getKeys())
    if (hides(objects.getKey(name))) names.insert(name);
  return names;
}

/// A quick look before every token is read.
bool paintsImages(QPDFObjectHandle page) {
  int images = 0;
  for (QPDFObjectHandle stream : page.getKey("/Contents").isArray()
                                     ? page.getKey("/Contents").getArrayAsVector()
                                     : std::vector{page.getKey("/Contents")}) {
    if (!stream.isStream()) continue;
    const std::string contents = unpacked(stream, kMostContents);
    const QByteArrayView view(contents.data(), qsizetype(contents.size()));
    images += int(view.count("\nBI\n") + view.count(" Do\n"));
  }
  return images >= kFewestImages;
}

}  // namespace

QByteArray withoutSeams(const QByteArray& pdf) {
  const auto work = [&]() -> Result<QByteArray> {
    const Result<std::unique_ptr<PdfFile>> file = PdfFile::open(pdf);
    if (!file) return file.error();
    if (!paintsImages((*file)->page(0))) return pdf;
    QPDFPageObjectHelper page((*file)->page(0));
    TilePathFinder finder(opaqueImages(page.getObjectHandle()));
    page.filterContents(&finder);
    Strips strips = Matching(finder.paths()).strips();
    if (strips.empty()) return pdf;
    TileGrower grower(std::move(strips));
    Pl_Buffer contents("contents");
    page.filterContents(&grower, &contents);
    QPDF& qpdf = (*file)->qpdf();
    page.getObjectHandle().replaceKey("/Contents",
                                      QPDFObjectHandle::newStream(&qpdf, contents.getBufferSharedPointer()));
    return writePdfToDraw(qpdf);
  };
  const Result<QByteArray> drawn = guarded(work);
  return drawn ? *drawn : pdf;
}

}  // namespace norvex::engine
