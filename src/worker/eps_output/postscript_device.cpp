// This file and shown_glyphs.cpp use Poppler's own headers instead of its GLib interface: there a generator
// can be neither given another output than a file nor told to paint gradients differently.
#include "worker/eps_output/postscript_device.h"

#include <GfxFont.h>
#include <GlobalParams.h>
#include <PDFDoc.h>
#include <PSOutputDev.h>
#include <Stream.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <list>
#include <memory>
#include <utility>
#include <vector>

#include "worker/eps_output/postscript_path.h"
#include "worker/eps_output/postscript_shading.h"
#include "worker/eps_output/shown_glyphs.h"
#include "worker/pdf/pdf_numbers.h"

namespace norvex::engine {
namespace {

constexpr int kReadAtOnce = 1 << 20;  // bytes of an image

// Image data comes one byte a call.
class Sink {
 public:
  static void write(void* sink, const char* data, size_t length) {
    auto& self = *static_cast<Sink*>(sink);
    if (self.used_ + length > self.buffer_.size()) self.flush();
    if (length > self.buffer_.size()) {
      self.text_.append(data, qsizetype(length));
    } else {
      std::copy_n(data, length, self.buffer_.data() + self.used_);
      self.used_ += length;
    }
  }
  void write(const QByteArray& text) { write(this, text.constData(), size_t(text.size())); }
  [[nodiscard]] QByteArray take() {
    flush();
    return std::move(text_);
  }

 private:
  void flush() {
    text_.append(buffer_.data(), qsizetype(used_));
    used_ = 0;
  }

  QByteArray text_;
  std::array<char, 16384> buffer_;
  size_t used_ = 0;
};

QByteArray numberArray(std::initializer_list<double> values) {
  QByteArray text = "[";
  for (const double value : values) text += significant(value) + ' ';
  return text.replace(text.size() - 1, 1, "]");
}

bool areFinite(std::initializer_list<double> values) {
  return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(float(value)); });
}

void copyColour(const GfxColor& colour, int components, double* to) {
  for (int i = 0; i < components; ++i) to[i] = colToDbl(colour.c[i]);
}

class PageDevice : public PSOutputDev {
 public:
  PageDevice(Sink& sink, PDFDoc& document, QSize size, PSForceRasterize rasterize)
      : PSOutputDev(&Sink::write, &sink, nullptr, &document, {1}, psModePS, size.width(), size.height(),
                    false, true, 0, 0, 0, 0, rasterize, false, nullptr, nullptr, psLevel3),
        sink_(sink) {}

  // Before the page there are glyphs that are pages of their own, whose output Poppler keeps back.
  void startPage(int number, GfxState* state, XRef* references) override {
    PSOutputDev::startPage(number, state, references);
    onPage_ = true;
  }

  void stroke(GfxState* state) override { onPage_ ? paint(state, "S\n") : PSOutputDev::stroke(state); }
  void fill(GfxState* state) override { onPage_ ? paint(state, "f\n") : PSOutputDev::fill(state); }
  void eoFill(GfxState* state) override { onPage_ ? paint(state, "f*\n") : PSOutputDev::eoFill(state); }
  void clip(GfxState* state) override { onPage_ ? paint(state, "W\n") : PSOutputDev::clip(state); }
  void eoClip(GfxState* state) override { onPage_ ? paint(state, "W*\n") : PSOutputDev::eoClip(state); }
  void clipToStrokePath(GfxState* state) override {
    onPage_ ? paint(state, "Ws\n") : PSOutputDev::clipToStrokePath(state);
  }

  // Glyphs that are drawings are painted as they are drawn, whatever is done with the outlines of others.
  void drawString(GfxState* state, const GooString* text) override {
    constexpr int filled = 0, invisible = 3;
    const int textMode = state->getRender();
    const bool drawings = onPage_ && state->getFont() && state->getFont()->getType() == fontType3 &&
                          textMode != filled && textMode != invisible;
    if (drawings) sink_.write("0 Tr\n");
    PSOutputDev::drawString(state, text);
    if (drawings) sink_.write(QByteArray::number(textMode) + " Tr\n");
  }

  // Where a pattern's colour is that of the moment, a gradient has none to bring.
  bool useShadedFills(int) override { return !uncoloured_; }

  bool tilingPatternFill(GfxState* state, Gfx* gfx, Catalog* catalog, GfxTilingPattern* pattern,
                         const double* matrix, int x0, int y0, int x1, int y1, double xStep,
                         double yStep) override {
    const bool before = std::exchange(uncoloured_, uncoloured_ || pattern->getPaintType() == 2);
    const bool filled =
        PSOutputDev::tilingPatternFill(state, gfx, catalog, pattern, matrix, x0, y0, x1, y1, xStep, yStep);
    uncoloured_ = before;
    return filled;
  }

  // PostScript knows no JPEG 2000. Poppler would deflate what it holds a byte a call and as hard as zlib can.
  void drawImage(GfxState* state, Object* ref, Stream* data, int width, int height, GfxImageColorMap* colours,
                 bool interpolate, const int* maskColours, bool isInline) override {
    if (data->getKind() != strJPX || isInline) {
      PSOutputDev::drawImage(state, ref, data, width, height, colours, interpolate, maskColours, isInline);
      return;
    }
    const std::vector<unsigned char> samples = data->toUnsignedChars(kReadAtOnce, kReadAtOnce);
    data->close();
    if (samples.empty()) return;
    const QByteArray packed = qCompress(samples.data(), int(samples.size()), 1).mid(4);
    Object entries(new Dict(static_cast<XRef*>(nullptr)));
    entries.getDict()->set("Length", Object(int(packed.size())));
    entries.getDict()->set("Filter", Object(objName, "FlateDecode"));
    Object filters = entries.copy();
    auto* bytes = new MemStream(packed.constData(), 0, packed.size(), std::move(entries));
    const std::unique_ptr<Stream> deflated(bytes->addFilters(filters.getDict()));
    PSOutputDev::drawImage(state, ref, deflated.get(), width, height, colours, interpolate, maskColours,
                           isInline);
  }

  // A program of the document's own, which no screen shows: it would run wherever the page goes.
  void psXObject(Stream*, Stream*) override { leftOutPrograms_ = true; }
  [[nodiscard]] bool leftOutPrograms() const { return leftOutPrograms_; }

  bool functionShadedFill(GfxState*, GfxFunctionShading* shading) override {
    double domain[4];
    shading->getDomain(&domain[0], &domain[2], &domain[1], &domain[3]);
    const double* m = shading->getMatrix();
    if (!areFinite({domain[0], domain[1], domain[2], domain[3], m[0], m[1], m[2], m[3], m[4], m[5]}) ||
        domain[0] >= domain[1] || domain[2] >= domain[3])
      return true;
    const int components = shading->getColorSpace()->getNComps();
    const QByteArray function = sampledFunction(domain, components, [&](double u, double v, double* colour) {
      GfxColor found{};
      shading->getColor(domain[0] + u * (domain[1] - domain[0]), domain[2] + v * (domain[3] - domain[2]),
                        &found);
      copyColour(found, components, colour);
    });
    shade("/ShadingType 1 /Domain " + numberArray({domain[0], domain[1], domain[2], domain[3]}) +
          " /Matrix " + numberArray({m[0], m[1], m[2], m[3], m[4], m[5]}) + " /Function " + function);
    return true;
  }

  bool axialShadedFill(GfxState*, GfxAxialShading* shading, double, double) override {
    double x0, y0, x1, y1;
    shading->getCoords(&x0, &y0, &x1, &y1);
    if (areFinite({x0, y0, x1, y1})) shadeAlong(2, numberArray({x0, y0, x1, y1}), *shading);
    return true;
  }

  bool radialShadedFill(GfxState*, GfxRadialShading* shading, double, double) override {
    double x0, y0, r0, x1, y1, r1;
    shading->getCoords(&x0, &y0, &r0, &x1, &y1, &r1);
    if (areFinite({x0, y0, r0, x1, y1, r1})) shadeAlong(3, numberArray({x0, y0, r0, x1, y1, r1}), *shading);
    return true;
  }

  bool gouraudTriangleShadedFill(GfxState* state, GfxGouraudTriangleShading* shading) override {
    const MeshColours colours(*this, state, *shading, shading->isParameterized());
    ShadingMesh mesh(ShadingMesh::Kind::Triangles, colours.components);
    std::array<double, 6> p{};
    std::array<double, 3 * gfxColorMaxComps> values{};
    for (int i = 0; i < shading->getNTriangles(); ++i) {
      if (shading->isParameterized()) {
        shading->getTriangle(i, &p[0], &p[1], &values[0], &p[2], &p[3], &values[1], &p[4], &p[5], &values[2]);
      } else {
        GfxColor c[3];
        shading->getTriangle(i, &p[0], &p[1], &c[0], &p[2], &p[3], &c[1], &p[4], &p[5], &c[2]);
        for (int k = 0; k < 3; ++k) colours.take(c[k], &values[size_t(k * colours.components)]);
      }
      mesh.add(p.data(), values.data());
    }
    shade(mesh.entries(shading->isParameterized() ? parameterFunction(*shading) : QByteArray()));
    return true;
  }

  bool patchMeshShadedFill(GfxState* state, GfxPatchMeshShading* shading) override {
    // As PostScript lists the points: around the edge and then the inner four.
    constexpr std::pair<int, int> places[16] = {{0, 0}, {0, 1}, {0, 2}, {0, 3}, {1, 3}, {2, 3},
                                                {3, 3}, {3, 2}, {3, 1}, {3, 0}, {2, 0}, {1, 0},
                                                {1, 1}, {1, 2}, {2, 2}, {2, 1}};
    constexpr std::pair<int, int> corners[4] = {{0, 0}, {0, 1}, {1, 1}, {1, 0}};
    const MeshColours colours(*this, state, *shading, shading->isParameterized());
    ShadingMesh mesh(ShadingMesh::Kind::Patches, colours.components);
    std::array<double, 32> points{};
    std::array<double, 4 * gfxColorMaxComps> values{};
    for (int i = 0; i < shading->getNPatches(); ++i) {
      const GfxPatch& patch = *shading->getPatch(i);
      size_t at = 0;
      for (const auto& [row, column] : places) {
        points[at++] = patch.x[row][column];
        points[at++] = patch.y[row][column];
      }
      at = 0;
      for (const auto& [row, column] : corners) {
        const auto& found = patch.color[row][column].c;
        if (shading->isParameterized()) {
          values[at++] = found[0];
          continue;
        }
        GfxColor colour{};
        for (int k = 0; k < gfxColorMaxComps; ++k) colour.c[k] = GfxColorComp(found[k]);
        colours.take(colour, &values[at]);
        at += size_t(colours.components);
      }
      mesh.add(points.data(), values.data());
    }
    shade(mesh.entries(shading->isParameterized() ? parameterFunction(*shading) : QByteArray()));
    return true;
  }

 private:
  void paint(GfxState* state, const char* procedure) {
    path_.resize(0);
    appendPath(path_, *state->getPath());
    path_ += procedure;
    sink_.write(path_);
  }

  // The colours of a mesh's corners. Indices become the colours that they stand for: between two of them lies
  // a mix of the two colours, not the colours of the indices between.
  struct MeshColours {
    MeshColours(PageDevice& device, GfxState* state, GfxShading& shading, bool byFunction) {
      GfxColorSpace* space = shading.getColorSpace();
      if (!byFunction && space->getMode() == csIndexed) {
        indexed = static_cast<GfxIndexedColorSpace*>(space);
        space = indexed->getBase();
        state->setFillColorSpace(space->copy());
        device.updateFillColorSpace(state);
      }
      components = byFunction ? 1 : space->getNComps();
    }
    void take(const GfxColor& colour, double* to) const {
      if (!indexed) return copyColour(colour, components, to);
      const int last = indexed->getIndexHigh();
      const int index = std::clamp(int(std::lround(colToDbl(colour.c[0]))), 0, last);
      double low[gfxColorMaxComps];
      double range[gfxColorMaxComps];
      indexed->getBase()->getDefaultRanges(low, range, last);
      for (int i = 0; i < components; ++i)
        to[i] = low[i] + indexed->getLookup()[index * components + i] / 255.0 * range[i];
    }
    GfxIndexedColorSpace* indexed = nullptr;
    int components = 0;
  };

  template <typename Mesh>
  static QByteArray parameterFunction(const Mesh& shading) {
    const double low = shading.getParameterDomainMin();
    const double high = shading.getParameterDomainMax();
    if (!areFinite({low, high}) || low >= high) return {};
    const int components = const_cast<Mesh&>(shading).getColorSpace()->getNComps();
    return sampledFunction(low, high, components, [&](double u, double* colour) {
      GfxColor found{};
      shading.getParameterizedColor(low + u * (high - low), &found);
      copyColour(found, components, colour);
    });
  }

  void shadeAlong(int type, const QByteArray& coordinates, GfxUnivariateShading& shading) {
    const double low = shading.getDomain0();
    const double high = shading.getDomain1();
    if (!areFinite({low, high})) return;
    const int components = shading.getColorSpace()->getNComps();
    const QByteArray function = sampledFunction(0, 1, components, [&](double u, double* colour) {
      GfxColor found{};
      shading.getColor(low + u * (high - low), &found);
      copyColour(found, components, colour);
    });
    shade("/ShadingType " + QByteArray::number(type) + " /Coords " + coordinates + " /Extend [" +
          (shading.getExtend0() ? "true " : "false ") + (shading.getExtend1() ? "true" : "false") +
          "] /Function " + function);
  }

  // The colour space has been set before: as pdfFillCS in the form in which Poppler's generator writes it.
  void shade(const QByteArray& entries) {
    if (!entries.isEmpty()) sink_.write("<< /ColorSpace pdfFillCS " + entries + " >> NorvexShade\n");
  }

  QByteArray path_;  ///< its memory is used again
  bool onPage_ = false;
  Sink& sink_;
  bool uncoloured_ = false;
  bool leftOutPrograms_ = false;
};

void ignoreComplaint(ErrorCategory, Goffset, const char*) {}

}  // namespace

void keepPopplerSettings() {
  static const auto* settings = new GlobalParamsIniter(ignoreComplaint);
  Q_UNUSED(settings)
}

Result<GeneratedPostScript> generatedPostScript(const QByteArray& pdf, QSize pageSize) {
  const Error refused{ErrorKind::Unsupported, QStringLiteral("the page cannot be written as PostScript")};
  keepPopplerSettings();
  std::list<QByteArray> fonts;  // of the document, which must go before them
  PDFDoc document(new MemStream(pdf.constData(), 0, pdf.size(), Object(objNull)));
  if (!document.isOk() || document.getNumPages() < 1) return refused;
  keepShownGlyphs(document, fonts);
  // Poppler would draw the page once more to look for transparency. Annotations alone may bring some.
  const bool annotated = document.getPage(1) && document.getPage(1)->getAnnotsObject().isArray();
  Sink sink;
  GeneratedPostScript generated;
  {
    PageDevice device(
        sink, document, pageSize,
        annotated ? psRasterizeWhenNeeded : psNeverRasterize);  // writes the end when it is released
    if (!device.isOk()) return refused;
    document.displayPage(&device, 1, 72, 72, 0, false, true, false);
    generated.leftOutPrograms = device.leftOutPrograms();
  }
  generated.text = sink.take();
  return generated;
}

}  // namespace norvex::engine
