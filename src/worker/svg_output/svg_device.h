// Poppler's interpreter draws a page with this device, which writes it down as SVG.
//
// Poppler's own headers are used, as for EPS: its GLib interface offers only cairo's SVG, which knows neither
// gradients of functions nor images that are there twice, and is large.
#pragma once

#include <OutputDev.h>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QRect>
#include <QRectF>

#include <memory>
#include <optional>
#include <vector>

#include "base/affine_transform.h"
#include "base/cancel_token.h"
#include "protocol/limits.h"
#include "protocol/worker_protocol.h"
#include "worker/svg_output/svg_glyphs.h"
#include "worker/svg_output/svg_images.h"
#include "worker/svg_output/svg_shading_image.h"
#include "worker/svg_output/svg_sheet.h"
#include "worker/svg_output/svg_text_lines.h"

namespace norvex::engine {

/// Parts of the page that became images because SVG has nothing else for them.
struct SvgRasterised {
  int regions = 0;
  double area = 0;  ///< square points
  double dpi = 0;   ///< of the coarsest; 0: there is none
};

/// One page. The sheet outlives it. Glyphs whose font cannot be read are left out, as on the screen.
class SvgDevice final : public OutputDev {
 public:
  /// `keepText`: text is written as text where that can be. `mostGlyphs`: outlines that are kept.
  SvgDevice(SvgSheet& sheet, const PictureLimits& limits, const CancelToken& cancel, bool keepText = false,
            qsizetype mostGlyphs = limits::maximumSvgGlyphs);

  [[nodiscard]] const SvgRasterised& rasterised() const { return rasterised_; }
  [[nodiscard]] bool leftOutImages() const { return images_.leftOut(); }
  /// Letters of more fonts, or of more shapes, than are kept.
  [[nodiscard]] bool leftOutLetters() const { return leftOutGlyphs_ || fonts_.leftOut(); }
  /// SVG has no groups that knock out, and none that are open to the page once they are faded or masked.
  [[nodiscard]] bool changedGroups() const { return changedGroups_; }
  /// Null: text is drawn.
  [[nodiscard]] const SvgTextLines* textLines() const { return lines_ ? &*lines_ : nullptr; }
  /// Poppler asks now and then: cancelled, or there is no room for more.
  [[nodiscard]] bool mustStop() const { return sheet_.isFull() || cancel_.cancelled(); }

  // Poppler's questions to a device.
  bool upsideDown() override { return true; }
  bool useDrawChar() override { return true; }
  bool interpretType3Chars() override { return true; }
  bool useTilingPatternFill() override { return true; }
  bool useShadedFills(int type) override { return type >= 1 && type <= 7; }
  void startPage(int number, GfxState* state, XRef* references) override;
  void endPage() override;
  void saveState(GfxState* state) override;
  void restoreState(GfxState* state) override;

  // Paths: svg_device.cpp.
  void stroke(GfxState* state) override;
  void fill(GfxState* state) override;
  void eoFill(GfxState* state) override;
  void clip(GfxState* state) override;
  void eoClip(GfxState* state) override;
  void clipToStrokePath(GfxState* state) override;

  // Patterns and gradients: svg_device_patterns.cpp.
  bool tilingPatternFill(GfxState* state, Gfx* gfx, Catalog* catalog, GfxTilingPattern* pattern,
                         const double* matrix, int x0, int y0, int x1, int y1, double xStep,
                         double yStep) override;
  bool functionShadedFill(GfxState* state, GfxFunctionShading* shading) override;
  bool axialShadedFill(GfxState* state, GfxAxialShading* shading, double from, double to) override;
  bool axialShadedSupportExtend(GfxState*, GfxAxialShading*) override { return true; }
  bool radialShadedFill(GfxState* state, GfxRadialShading* shading, double from, double to) override;
  bool radialShadedSupportExtend(GfxState*, GfxRadialShading*) override { return true; }
  bool gouraudTriangleShadedFill(GfxState* state, GfxGouraudTriangleShading* shading) override;
  bool patchMeshShadedFill(GfxState* state, GfxPatchMeshShading* shading) override;

  // Text: svg_device_text.cpp.
  void drawChar(GfxState* state, double x, double y, double dx, double dy, double originX, double originY,
                CharCode code, int bytes, const Unicode* text, int length) override;
  void endTextObject(GfxState* state) override;
  bool beginType3Char(GfxState* state, double x, double y, double dx, double dy, CharCode code,
                      const Unicode* text, int length) override;
  void type3D1(GfxState* state, double, double, double, double, double, double) override;
  void endType3Char(GfxState* state) override;

  // Images: svg_device_images.cpp.
  void drawImageMask(GfxState* state, Object* reference, Stream* data, int width, int height, bool invert,
                     bool interpolate, bool isInline) override;
  void setSoftMaskFromImageMask(GfxState* state, Object* reference, Stream* data, int width, int height,
                                bool invert, bool isInline, double* baseMatrix) override;
  void unsetSoftMaskFromImageMask(GfxState* state, double* baseMatrix) override;
  void drawImage(GfxState* state, Object* reference, Stream* data, int width, int height,
                 GfxImageColorMap* colours, bool interpolate, const int* maskColours, bool isInline) override;
  void drawMaskedImage(GfxState* state, Object* reference, Stream* data, int width, int height,
                       GfxImageColorMap* colours, bool interpolate, Stream* mask, int maskWidth,
                       int maskHeight, bool maskInvert, bool maskInterpolate) override;
  void drawSoftMaskedImage(GfxState* state, Object* reference, Stream* data, int width, int height,
                           GfxImageColorMap* colours, bool interpolate, Stream* mask, int maskWidth,
                           int maskHeight, GfxImageColorMap* maskColours, bool maskInterpolate) override;

  // Groups and masks: svg_device_groups.cpp.
  void beginTransparencyGroup(GfxState* state, const double* box, GfxColorSpace* space, bool isolated,
                              bool knockout, bool forSoftMask) override;
  void endTransparencyGroup(GfxState* state) override;
  void paintTransparencyGroup(GfxState* state, const double* box) override;
  void setSoftMask(GfxState* state, const double* box, bool alpha, Function* transfer,
                   GfxColor* backdrop) override;
  void clearSoftMask(GfxState* state) override;

 private:
  /// Our part of the state that Poppler saves and restores.
  struct State {
    SvgClips clips;
    QByteArray mask;  ///< name of a definition
  };
  struct Group {
    SvgLayer layer;
    bool isolated = false, knocksOut = false;
    std::unique_ptr<GfxColorSpace> space;  ///< of a mask's backdrop; may be null
  };
  /// Glyphs of one size and paint behind one another.
  struct TextRun {
    AffineTransform matrix;  ///< glyph units, y down → page; its offset is the first glyph's place
    QByteArray paint;
    SvgPlace place;
    QByteArray uses;
    QRectF bounds;
    int glyphs = 0;
    QByteArray only;  ///< the first glyph's name
  };
  struct Glyph {
    QByteArray name;  ///< of the outline's definition; empty: nothing is drawn
    QRectF bounds;    ///< in glyph units, y down
  };
  struct Type3Glyph {
    QByteArray name;
    QRectF bounds;  ///< as drawn the first time
    QPointF origin;
  };
  struct Type3Use {
    QByteArray key;
    QPointF origin;
    SvgPlace place;
    size_t states = 0;  ///< how many there were
  };

  [[nodiscard]] SvgPlace place(GfxState* state) const;
  [[nodiscard]] QByteArray fillPaint(GfxState* state) const;
  [[nodiscard]] QByteArray strokePaint(GfxState* state) const;
  [[nodiscard]] QByteArray lineAttributes(GfxState* state, double scale) const;
  void fillPath(GfxState* state, bool evenOdd);
  void addClip(GfxState* state, bool evenOdd, const QByteArray& stroke);
  void strokeBent(GfxState* state, const GfxPath& path, const SvgPlace& place);
  void flushText();

  void paintClip(GfxState* state, const QByteArray& definition);
  void placeShading(GfxState* state, const std::optional<ShadingImage>& image);
  [[nodiscard]] QRectF clipBounds(GfxState* state) const;
  [[nodiscard]] SvgLayer drawnCell(GfxState* state, Gfx* gfx, GfxTilingPattern* pattern, const double* matrix,
                                   bool clipped);
  void repeatCell(GfxState* state, const SvgLayer& cell, const AffineTransform& matrix, const QRect& cells,
                  double xStep, double yStep);
  void paintPattern(GfxState* state, const SvgLayer& cell, const AffineTransform& matrix, const QRectF& tile);

  [[nodiscard]] const Glyph* glyph(SvgFont& font, unsigned number);
  void drawGlyph(GfxState* state, SvgFont& font, unsigned number, const AffineTransform& matrix);
  [[nodiscard]] bool writeGlyph(GfxState* state, SvgFont& font, const SvgShownGlyph& glyph, bool isSeen);
  void outlineGlyph(GfxState* state, SvgFont& font, unsigned number, const AffineTransform& matrix,
                    int render);

  void placeImage(GfxState* state, const std::optional<DefinedImage>& image);
  void useType3(const Type3Glyph& glyph, QPointF origin, const SvgPlace& place);

  SvgSheet& sheet_;
  CancelToken cancel_;
  SvgImages images_;
  SvgFonts fonts_;
  std::optional<SvgTextLines> lines_;
  XRef* objects_ = nullptr;
  std::vector<State> states_{1};
  std::vector<Group> groups_;  ///< ended, and not painted yet
  std::vector<Group> begun_;
  std::optional<TextRun> run_;
  qsizetype mostGlyphs_;
  bool leftOutGlyphs_ = false;
  QHash<quint64, Glyph> glyphs_;  ///< by font and number
  QHash<const SvgFont*, quint32> fontNumbers_;
  std::optional<SvgPathWriter> textClip_;
  QHash<QByteArray, Type3Glyph> type3_;
  std::vector<Type3Use> type3Uses_;
  std::vector<QByteArray> maskedBefore_;
  SvgRasterised rasterised_;
  bool changedGroups_ = false;
};

}  // namespace norvex::engine
