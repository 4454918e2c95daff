// What a page's letters become as fonts of the web: outlines, meanings and measures are the document's.
#include <QtEndian>

#include <cstring>

#include "fuzz/targets.h"
#include "worker/web_fonts/shown_characters.h"
#include "worker/web_fonts/web_faces.h"

namespace norvex::fuzz {
namespace {

using namespace norvex::engine;

/// Numbers out of bytes; behind their end everything is 0.
class Source {
 public:
  explicit Source(const QByteArray& bytes) : bytes_(bytes) {}
  [[nodiscard]] bool isEmpty() const { return at_ >= bytes_.size(); }
  int byte() { return isEmpty() ? 0 : quint8(bytes_[at_++]); }
  int word() {
    const int high = byte();
    return qint16(high << 8 | byte());
  }
  /// Mostly what fonts hold; anything that a number can be where the first byte says so.
  double coordinate() {
    const int first = byte();
    if (first != 0xFF) return (first - 128) * 16 + byte() / 16.0;
    quint64 bits = 0;
    for (int i = 0; i < 8; ++i) bits = bits << 8 | quint64(byte());
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
  }

 private:
  const QByteArray& bytes_;
  qsizetype at_ = 0;
};

GlyphOutline outlineFrom(Source& source) {
  GlyphOutline outline;
  outline.advance = source.coordinate();
  for (int steps = source.byte() % 32; steps > 0; --steps) {
    OutlineStep step;
    step.kind = outline.steps.empty() ? OutlineStep::Move : OutlineStep::Kind(source.byte() % 4);
    for (QPointF& point : step.points) {
      point.setX(source.coordinate());
      point.setY(source.coordinate());
    }
    outline.steps.push_back(step);
  }
  return outline;
}

void requireWhole(const QByteArray& file) {
  const auto number = [&](qsizetype at) { return qFromBigEndian<quint32>(file.constData() + at); };
  require(file.size() >= 44 && file.startsWith("wOFF"), "a font begins as one");
  require(number(8) == quint32(file.size()), "a font tells its length");
  const int tables = qFromBigEndian<quint16>(file.constData() + 12);
  require(file.size() >= 44 + 20 * tables, "every table has its entry");
  for (int i = 0; i < tables; ++i) {
    const qsizetype entry = 44 + 20 * qsizetype(i);
    require(qint64(number(entry + 4)) + number(entry + 8) <= file.size(), "every table is in the file");
    require(number(entry + 8) <= number(entry + 12), "no table is packed to more than it is");
  }
}

bool webFaces(const QByteArray& bytes) {
  Source source(bytes);
  const int unitsPerEm = source.word(), ascent = source.word();
  WebFaces faces(unitsPerEm, ascent, source.word());
  while (!source.isEmpty()) {
    const auto glyph = unsigned(source.byte() % 16);
    if (!faces.knows(glyph) && !faces.add(glyph, outlineFrom(source))) continue;
    std::vector<char32_t> told;
    for (int letters = source.byte() % 4; letters > 0; --letters)
      told.push_back(char32_t(source.byte() << 16 | quint16(source.word())) % 0x120000);
    const auto shown = faces.show(glyph, charactersFor(told, faces.isBlank(glyph)));
    if (!shown) continue;
    require(!shown->empty(), "what is shown is shown by something");
    for (const FaceCharacter& character : *shown)
      require(character.face < faces.count() && character.character <= 0x10FFFF, "by a character of a face");
  }
  bool isAny = false;
  for (size_t face = 0; face < faces.count(); ++face) {
    const auto file = woffFont(faces.font(face));
    if (!file) continue;
    requireWhole(*file);
    isAny = true;
  }
  return isAny;
}

QList<QByteArray> seeds() {
  const QByteArray square = QByteArray::fromHex(
      "a000"
      "04"
      "80008000800080008000800001a0008000800080008000800001a000a00080008000800080000180"
      "00a0008000800080008000");
  const QByteArray measures = QByteArray::fromHex("03e8032000c8");
  return {measures + '\1' + square + QByteArray::fromHex("01000041"),
          measures + '\1' + square + QByteArray::fromHex("0200006600fb01") + '\2' + square +
              QByteArray::fromHex("01000042")};
}

}  // namespace

QList<Target> webFontsTargets() {
  return {{"web_faces", webFaces, seeds, 1000}};
}

}  // namespace norvex::fuzz
