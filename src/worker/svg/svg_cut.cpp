#include "worker/svg/svg_cut.h"

#include <QByteArrayView>
#include <QSet>
#include <QString>

#include <algorithm>
#include <cmath>

#include "worker/pdf/pdf_numbers.h"
#include "worker/svg/inspection/svg_length.h"
#include "worker/svg/svg_tokens.h"

namespace norvex::engine {
namespace {

// Inline declarations win over rules like svg { opacity: 0.5 }, which are meant for the document's own root.
constexpr char kNeutral[] =
    "display:inline;opacity:1;transform:none;filter:none;mask:none;clip-path:none;mix-blend-mode:normal;";

QByteArray number(double value) {
  return significant(std::abs(value) < 1e-9 ? 0.0 : value, 12);
}

QByteArray attribute(const char* name, const QByteArray& value) {
  return QByteArray(" ") + name + "=\"" + value + '"';
}

QByteArray rectangle(double x, double y, double width, double height) {
  return number(x) + ' ' + number(y) + ' ' + number(width) + ' ' + number(height);
}

QByteArray matrixOf(const AffineTransform& m) {
  return "matrix(" + number(m.m11()) + ' ' + number(m.m12()) + ' ' + number(m.m21()) + ' ' + number(m.m22()) +
         ' ' + number(m.dx()) + ' ' + number(m.dy()) + ')';
}

// In pixels of CSS. Programs that paste the elements of a drawing leave its root behind, and with it a scale
// between its view box and its size.
SvgCut inPixels(const SvgCut& cut) {
  const double scale = 1 / pointsPerPixel;
  const AffineTransform& m = cut.placing;
  return {cut.picture * scale, QRectF(cut.rect.topLeft() * scale, cut.rect.size() * scale),
          AffineTransform(m.m11(), m.m12(), m.m21(), m.m22(), m.dx() * scale, m.dy() * scale), cut.styled};
}

/// Writes the tags around the old root, and its own start tag anew.
class Wrapper {
 public:
  Wrapper(const QByteArray& text, const SvgToken& root, const SvgCut& cut)
      : text_(text),
        root_(root),
        points_(cut.rect.size()),
        cut_(inPixels(cut)),
        name_(tagName(text, root).toByteArray()) {
    const qsizetype colon = name_.indexOf(':');
    if (colon > 0) prefix_ = name_.left(colon + 1);
  }
  [[nodiscard]] QByteArray before() const;
  [[nodiscard]] QByteArray rootTag() const;
  [[nodiscard]] QByteArray after() const;

 private:
  [[nodiscard]] bool turned() const { return !cut_.placing.isIdentity(); }
  /// Whether the old root turns what is in it, and not its own edges.
  [[nodiscard]] bool turnsInside() const;
  [[nodiscard]] bool isWhole() const { return !turned() && cut_.rect == QRectF(QPointF(0, 0), cut_.picture); }
  /// The tag of a viewport around this part of the picture. Programs that paste what is in the root leave its
  /// edges behind, and the rectangle would be the whole picture again.
  [[nodiscard]] QByteArray window(const QRectF& part) const;
  /// The same edges as a path, and the tag of a group within it: there are programs that do not cut at the
  /// viewports in a drawing.
  [[nodiscard]] QByteArray clip() const;
  [[nodiscard]] QByteArray unusedId() const;
  // A switch draws its only child as a group does, but no rule for "g" or "svg > g" reaches it.
  [[nodiscard]] QByteArray group() const { return prefix_ + (cut_.styled ? "switch" : "g"); }
  [[nodiscard]] QByteArray sizeStyle(const QSizeF& size, const char* overflow) const {
    return "width:" + number(size.width()) + "px;height:" + number(size.height()) +
           "px;overflow:" + overflow + ';';
  }
  /// Of the old root, whose edges would be turned with what is in it.
  [[nodiscard]] const char* overflow() const { return turnsInside() ? "visible" : "hidden"; }
  [[nodiscard]] QByteArray innerStyle(QByteArrayView old, bool present) const;

  const QByteArray& text_;
  const SvgToken& root_;
  QSizeF points_;  ///< of the new root
  SvgCut cut_;     ///< in pixels
  QByteArray name_, prefix_;
};

QByteArray Wrapper::before() const {
  const QByteArray space = prefix_.isEmpty() ? QByteArray("xmlns") : "xmlns:" + prefix_.chopped(1);
  const QSizeF size = cut_.rect.size();
  QByteArray tag = '<' + name_ + attribute(space, "http://www.w3.org/2000/svg") +
                   attribute("version", "1.1") + attribute("width", number(points_.width()) + "pt") +
                   attribute("height", number(points_.height()) + "pt") +
                   attribute("viewBox", rectangle(0, 0, size.width(), size.height()));
  if (cut_.styled)
    tag += attribute("style", kNeutral + ("width:" + number(points_.width()) +
                                          "pt;height:" + number(points_.height()) + "pt;"));
  tag += ">\n";
  if (!isWhole()) tag += clip() + window(cut_.rect);
  if (turned()) tag += '<' + group() + attribute("transform", matrixOf(cut_.placing)) + ">\n";
  if (turnsInside()) tag += window(QRectF(QPointF(0, 0), cut_.picture));
  return tag;
}

bool Wrapper::turnsInside() const {
  for (const TagAttribute& old : tagAttributes(text_, root_))
    if (old.name == "transform" || (old.name == "style" && old.value.contains("transform"))) return true;
  return false;
}

QByteArray Wrapper::window(const QRectF& r) const {
  QByteArray tag = '<' + name_ + attribute("x", "0") + attribute("y", "0") +
                   attribute("width", number(r.width())) + attribute("height", number(r.height())) +
                   attribute("overflow", "hidden") +
                   attribute("viewBox", rectangle(r.x(), r.y(), r.width(), r.height()));
  if (cut_.styled) tag += attribute("style", kNeutral + sizeStyle(r.size(), "hidden"));
  return tag + ">\n";
}

QByteArray Wrapper::clip() const {
  const QByteArray id = unusedId(), element = prefix_ + "clipPath", cutting = "url(#" + id + ')';
  const QByteArray neutral =
      cut_.styled ? attribute("style", kNeutral + QByteArray("visibility:visible;")) : QByteArray();
  const QByteArray edges = "M0 0H" + number(cut_.rect.width()) + 'V' + number(cut_.rect.height()) + "H0z";
  return '<' + element + attribute("id", id) + neutral + "><" + prefix_ + "path" + attribute("d", edges) +
         neutral + "/></" + element + ">\n<" + group() +
         (cut_.styled ? attribute("style", kNeutral + ("clip-path:" + cutting + ';'))
                      : attribute("clip-path", cutting)) +
         ">\n";
}

QByteArray Wrapper::unusedId() const {
  const QByteArray name = "norvex-cut";
  QByteArray id = name;
  for (int next = 2; text_.contains(id); ++next) id = name + QByteArray::number(next);
  return id;
}

QByteArray Wrapper::after() const {
  QByteArray tags = "\n";
  if (turnsInside()) tags += "</" + name_ + ">\n";
  if (turned()) tags += "</" + group() + ">\n";
  if (!isWhole()) tags += "</" + name_ + ">\n</" + group() + ">\n";
  return tags + "</" + name_ + ">";
}

QByteArray Wrapper::innerStyle(QByteArrayView old, bool present) const {
  if (!present && !cut_.styled) return {};
  QByteArray style = old.toByteArray();
  if (!style.trimmed().isEmpty() && !style.trimmed().endsWith(';')) style += ';';
  return style + sizeStyle(cut_.picture, overflow());
}

QByteArray Wrapper::rootTag() const {
  static const QSet<QByteArray> replaced{"x", "y", "width", "height", "overflow", "style"};
  QByteArray tag = '<' + name_;
  QByteArray style;
  bool hasStyle = false;
  bool hasViewBox = false;
  for (const TagAttribute& old : tagAttributes(text_, root_)) {
    if (old.name == "style") {
      style = old.value.toByteArray();
      hasStyle = true;
      style.replace('"', "&quot;");
    }
    if (replaced.contains(old.name.toByteArray())) continue;
    if (old.name == "viewBox") {
      if (!parseViewBox(QString::fromUtf8(old.value))) continue;
      hasViewBox = true;
    }
    tag += ' ' + old.all.toByteArray();
  }
  tag += attribute("x", "0") + attribute("y", "0") + attribute("width", number(cut_.picture.width())) +
         attribute("height", number(cut_.picture.height())) + attribute("overflow", overflow());
  if (!hasViewBox) tag += attribute("viewBox", rectangle(0, 0, cut_.picture.width(), cut_.picture.height()));
  const QByteArray inner = innerStyle(style, hasStyle);
  if (!inner.isEmpty()) tag += attribute("style", inner);
  return tag + (root_.kind == SvgTokenKind::EmptyTag ? "/>" : ">");
}

}  // namespace

AffineTransform turnedInItsBox(const QSizeF& picture, double rotate) {
  if (rotate == 0) return {};
  const double w = picture.width() / 2, h = picture.height() / 2;
  const double c = std::cos(rotate), s = std::sin(rotate);
  return AffineTransform::fromTranslate(-w, -h) * AffineTransform(c, s, -s, c, 0, 0) *
         AffineTransform::fromTranslate(std::abs(c) * w + std::abs(s) * h, std::abs(s) * w + std::abs(c) * h);
}

QByteArray cutSvg(const QByteArray& utf8, const SvgCut& cut) {
  const QList<SvgToken> tokens = tokenizeSvg(utf8);
  const auto root = std::find_if(tokens.begin(), tokens.end(), [](const SvgToken& token) {
    return token.kind == SvgTokenKind::StartTag || token.kind == SvgTokenKind::EmptyTag;
  });
  if (root == tokens.end()) return {};
  const Wrapper wrapper(utf8, *root, cut);
  const qsizetype rootTagEnd = root->start + root->length;
  const SvgToken& last = tokens[root->end];
  const qsizetype rootEnd = last.start + last.length;
  return utf8.left(root->start) + wrapper.before() + wrapper.rootTag() +
         utf8.mid(rootTagEnd, rootEnd - rootTagEnd) + wrapper.after() + utf8.mid(rootEnd);
}

}  // namespace norvex::engine
