// Gradients as PostScript's own shading dictionaries: strips and triangles in their place would be large and
// show seams on every renderer that smooths edges.
#pragma once

#include <QByteArray>

#include <functional>
#include <vector>

namespace norvex::engine {

/// Procedures that the texts below call. They belong into the dictionary that is on the dictionary stack when
/// a page runs: NorvexShade paints a shading dictionary, NorvexFile makes a file of an array of strings.
[[nodiscard]] QByteArray shadingProcedures();

/// Colours along one parameter, 0 … 1, or along two. `components` numbers a place.
using ColourAlong = std::function<void(double u, double* colour)>;
using ColourAt = std::function<void(double u, double v, double* colour)>;

/// A function dictionary with `domain` as the parameter's range. Between as few places as give the colours
/// again it is linear; 1025 places are looked at.
[[nodiscard]] QByteArray sampledFunction(double domain0, double domain1, int components,
                                         const ColourAlong& colour);

/// The same for two parameters, x from domain[0] to domain[1], y from domain[2] to domain[3]; 257 × 257
/// places.
[[nodiscard]] QByteArray sampledFunction(const double (&domain)[4], int components, const ColourAt& colour);

/// Triangles, or patches of 4 × 4 points whose colours are given at the corners. Points in the order in which
/// PostScript's data lists them. Pieces that are not finite are left out when they are added.
class ShadingMesh {
 public:
  enum class Kind { Triangles, Patches };
  /// `components` numbers make a colour; one where a function makes the colour of it.
  ShadingMesh(Kind kind, int components) : kind_(kind), components_(components) {}

  [[nodiscard]] int pointsOfPiece() const { return kind_ == Kind::Triangles ? 3 : 16; }
  [[nodiscard]] int coloursOfPiece() const { return kind_ == Kind::Triangles ? 3 : 4; }
  /// `points`: x and y of each point; `colours`: the components of each colour.
  void add(const double* points, const double* colours);

  /// The shading's entries without its colour space; nothing for a mesh without pieces. `function` is a
  /// function dictionary or empty.
  [[nodiscard]] QByteArray entries(const QByteArray& function) const;

 private:
  Kind kind_;
  int components_;
  std::vector<double> points_;
  std::vector<double> colours_;
};

}  // namespace norvex::engine
