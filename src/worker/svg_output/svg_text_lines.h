// Text that stays text: lines of characters, each at its place, and the fonts that they are shown in.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QPointF>
#include <QRectF>
#include <QStringList>

#include <deque>
#include <optional>
#include <vector>

#include "base/affine_transform.h"
#include "worker/svg_output/svg_glyphs.h"
#include "worker/svg_output/svg_sheet.h"
#include "worker/web_fonts/web_faces.h"

namespace norvex::engine {

/// A character as the page shows it.
struct SvgShownGlyph {
  unsigned number = 0;         ///< of the glyph
  AffineTransform matrix;      ///< glyph units, y up → page
  QPointF advance;             ///< on the page
  std::vector<char32_t> text;  ///< its meaning; empty: the document does not tell it
};

/// The fonts are made of the same outlines that would be drawn, so a line looks as it does without text. The
/// sheet and the fonts outlive it.
class SvgTextLines {
 public:
  explicit SvgTextLines(SvgSheet& sheet) : sheet_(sheet) {}

  /// False: it has to be drawn as an outline.
  bool add(SvgFont& font, const SvgShownGlyph& glyph, const QByteArray& paint, const SvgPlace& place);
  /// Ends the line. What follows is painted above it.
  void flush();
  /// Something was drawn as an outline that a reader will take for text.
  void noteOutline() { hasOutlines_ = true; }

  /// The fonts as elements in front of the page; empty where there is no text. Nothing: readers would refuse
  /// one for its length.
  [[nodiscard]] std::optional<QByteArray> styles() const;
  /// What is no text, or says nothing: one plain sentence each.
  [[nodiscard]] QStringList remarks() const;

 private:
  struct Faces {
    const SvgFont* font;
    WebFaces faces;
    QByteArray name;  ///< of the first of them
    bool mayBeEmbedded = true;
    QHash<unsigned, QRectF> boxes = {};  ///< by glyph, see boxOf()
  };
  /// Characters of one face behind one another.
  struct Piece {
    QByteArray family;
    SvgFontLook look;
    QByteArray text, places;
  };
  struct Line {
    AffineTransform matrix = {};  ///< the line's space, in points and y down → page
    double fontSize = 0;
    QByteArray paint = {};
    SvgPlace place = {};
    QPointF begin = {}, end = {};  ///< of the last character, in the line's space
    std::vector<Piece> pieces = {};
    QRectF bounds = {};
    int characters = 0;
    bool endsInSpace = false;
    bool isAlone = false;
  };

  [[nodiscard]] Faces& facesOf(SvgFont& font);
  /// Where a character may leave marks, in units of its font, y down: around its em, and wherever its outline
  /// goes.
  [[nodiscard]] static QRectF boxOf(Faces& faces, unsigned glyph);
  [[nodiscard]] bool goesOn(const Line& next, QPointF at) const;
  void begin(Line next, QPointF page);
  void put(const Faces& faces, const FaceCharacter& shown, double x);

  SvgSheet& sheet_;
  std::deque<Faces> fonts_;  ///< in the order of their first characters
  QHash<const SvgFont*, Faces*> known_;
  std::optional<Line> line_;
  bool hasOutlines_ = false, hasUnknown_ = false;
};

}  // namespace norvex::engine
