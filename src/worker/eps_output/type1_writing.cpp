// The one form in which fonts of Type 1 leave.
#include "worker/eps_output/type1_font.h"

namespace norvex::engine {
namespace {

QByteArray arrayText(const Type1Font::Numbers& numbers) {
  return '[' + numbers.join(' ') + ']';
}

QByteArray stringText(const QByteArray& text) {
  QByteArray result = "(";
  for (const char c : text) {
    if (c == '(' || c == ')' || c == '\\')
      result += QByteArray("\\") + c;
    else if (quint8(c) < 0x20 || quint8(c) > 0x7e)
      result += '\\' + QByteArray::number(quint8(c), 8).rightJustified(3, '0');
    else
      result += c;
  }
  return result + ')';
}

// One name a line: that is how Poppler reads it.
QByteArray encodingText(const Type1Font& font) {
  if (!font.encoding) return "/Encoding StandardEncoding def\n";
  QByteArray text = "/Encoding 256 array\n0 1 255 {1 index exch /.notdef put} for\n";
  for (const auto& [code, name] : *font.encoding)
    if (!name.isEmpty()) text += "dup " + QByteArray::number(code) + " /" + name + " put\n";
  return text + "readonly def\n";
}

QByteArray clearText(const Type1Font& font) {
  QByteArray text = "%!FontType1-1.0: " + font.name + "\n14 dict begin\n/FontInfo 9 dict dup begin\n";
  for (const auto& [key, value] : font.information)
    text += '/' + key + ' ' + stringText(value.left(1000)) + " readonly def\n";
  text += "end readonly def\n/FontName /" + font.name + " def\n/FontType 1 def\n/FontMatrix " +
          arrayText(font.matrix) + " readonly def\n/PaintType " +
          (font.paintType.isEmpty() ? QByteArray("0") : font.paintType) + " def\n";
  if (!font.strokeWidth.isEmpty()) text += "/StrokeWidth " + font.strokeWidth + " def\n";
  text += encodingText(font) + "/FontBBox " +
          (font.box.isEmpty() ? QByteArray("[0 0 0 0]") : arrayText(font.box)) + " readonly def\n";
  if (!font.weights.isEmpty()) text += "/WeightVector " + arrayText(font.weights) + " readonly def\n";
  return text + "currentdict end\ncurrentfile eexec\n";
}

QByteArray privateText(const Type1Font& font) {
  QByteArray text =
      "dup /Private 24 dict dup begin\n/RD {string currentfile exch readstring pop} executeonly def\n"
      "/ND {noaccess def} executeonly def\n/NP {noaccess put} executeonly def\n/MinFeature {16 16} def\n"
      "/password 5839 def\n";
  for (const auto& [key, numbers] : font.hintArrays) text += '/' + key + ' ' + arrayText(numbers) + " def\n";
  for (const auto& [key, value] : font.hintValues) text += '/' + key + ' ' + value + " def\n";
  // Interpreters have flex and the exchange of hints, the first four of these, built in.
  text += "/OtherSubrs [{} {} {} {}] def\n";
  if (font.subroutines.empty()) return text;
  text += "/Subrs " + QByteArray::number(font.subroutines.rbegin()->first + 1) + " array\n";
  for (const auto& [number, bytes] : font.subroutines)
    text += "dup " + QByteArray::number(number) + ' ' + QByteArray::number(bytes.size()) + " RD " + bytes +
            " NP\n";
  return text + "ND\n";
}

}  // namespace

Type1Program writeType1Font(const Type1Font& font) {
  QByteArray hidden = privateText(font) + "2 index /CharStrings " + QByteArray::number(font.outlines.size()) +
                      " dict dup begin\n";
  for (const auto& [name, bytes] : font.outlines)
    hidden += '/' + name + ' ' + QByteArray::number(bytes.size()) + " RD " + bytes + " ND\n";
  hidden +=
      "end\nend\nreadonly put\nnoaccess put\ndup /FontName get exch definefont pop\nmark currentfile "
      "closefile\n";
  return {clearText(font), eexecEncrypted(hidden)};
}

}  // namespace norvex::engine
