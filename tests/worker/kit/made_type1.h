// A font of Type 1 written by hand: its glyph "A" is a filled square of 800 units.
#pragma once

#include <QByteArray>

namespace norvex::kit {

/// The encryption of fonts: `key` 55665 for the second part, 4330 for an outline.
inline QByteArray encryptedWith(quint16 key, const QByteArray& plain) {
  QByteArray cipher = QByteArray(4, '\0') + plain;
  for (char& c : cipher) {
    c = char(quint8(c) ^ (key >> 8));
    key = quint16((quint8(c) + key) * 52845u + 22719u);
  }
  return cipher;
}

/// What a font says beside the square, each in PostScript.
struct MadeType1 {
  QByteArray name = "Square";
  QByteArray inClear = {};    ///< in the clear text, before the encoding
  QByteArray inPrivate = {};  ///< in /Private, before the outlines
  QByteArray glyph = "A";
};

struct Type1Parts {
  QByteArray clear, encrypted;
};

inline Type1Parts madeType1(const MadeType1& font = {}) {
  // 0 1000 hsbw 100 0 rmoveto 800 hlineto 800 vlineto -800 hlineto closepath endchar
  const auto number = [](int value) {
    return value >= 108    ? QByteArray(1, char(247 + (value - 108) / 256)) + char((value - 108) % 256)
           : value <= -108 ? QByteArray(1, char(251 + (-value - 108) / 256)) + char((-value - 108) % 256)
                           : QByteArray(1, char(value + 139));
  };
  const QByteArray square = number(0) + number(1000) + "\x0d" + number(100) + number(0) + "\x15" +
                            number(800) + "\x06" + number(800) + "\x07" + number(-800) + "\x06\x09\x0e";
  const QByteArray nothing = number(0) + number(1000) + "\x0d\x0e";
  const QByteArray encoded = encryptedWith(4330, square);
  const QByteArray empty = encryptedWith(4330, nothing);
  const auto sized = [](const QByteArray& bytes) {
    return QByteArray::number(bytes.size()) + " RD " + bytes;
  };
  const QByteArray hidden =
      "dup /Private 9 dict dup begin\n/RD {string currentfile exch readstring pop} executeonly def\n"
      "/ND {noaccess def} executeonly def\n/NP {noaccess put} executeonly def\n"
      "/BlueValues [-10 0 800 810] def\n/password 5839 def\n" +
      font.inPrivate + "/Subrs 1 array\ndup 0 " + sized(encryptedWith(4330, "\x0b")) +
      " NP\nND\n2 index /CharStrings 2 dict dup begin\n/.notdef " + sized(empty) + " ND\n/" + font.glyph +
      ' ' + sized(encoded) +
      " ND\nend\nend\nreadonly put\nnoaccess put\ndup /FontName get exch definefont pop\nmark currentfile "
      "closefile\n";
  const QByteArray clear = "%!PS-AdobeFont-1.0: " + font.name +
                           "\n11 dict begin\n/FontInfo 2 dict dup begin\n/Notice (made (here)) readonly def\n"
                           "end readonly def\n/FontName /" +
                           font.name + " def\n/PaintType 0 def\n/FontType 1 def\n" + font.inClear +
                           "/Encoding 256 array\n0 1 255 {1 index exch /.notdef put} for\ndup 65 /" +
                           font.glyph +
                           " put\nreadonly def\n/FontMatrix [0.001 0 0 0.001 0 0] readonly def\n"
                           "/FontBBox {0 0 1000 1000} readonly def\ncurrentdict end\ncurrentfile eexec\n";
  return {clear, encryptedWith(55665, hidden)};
}

}  // namespace norvex::kit
