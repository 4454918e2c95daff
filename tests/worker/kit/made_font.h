// Small fonts written by hand.
#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

namespace norvex::kit {

inline QByteArray bigEndian(quint32 value, int bytes) {
  QByteArray text;
  for (int i = bytes - 1; i >= 0; --i) text += char(value >> (8 * i));
  return text;
}

/// An outline of 16 bytes with one contour.
inline QByteArray outline(char mark) {
  return bigEndian(1, 2) + QByteArray(14, mark);
}

/// An outline composed of the glyphs `parts`.
inline QByteArray composed(const QList<int>& parts) {
  QByteArray text = bigEndian(0xffff, 2) + QByteArray(8, '\0');
  for (qsizetype i = 0; i < parts.size(); ++i)
    text += bigEndian(i + 1 < parts.size() ? 0x21 : 0x1, 2) + bigEndian(quint32(parts[i]), 2) +
            QByteArray(4, '\0');
  return text + QByteArray(text.size() % 2, '\0');
}

/// A TrueType font of these outlines, with what font thinning reads and nothing else.
inline QByteArray trueType(const QList<QByteArray>& outlines) {
  QByteArray places;
  QByteArray glyf;
  for (const QByteArray& one : outlines) {
    places += bigEndian(quint32(glyf.size()), 4);
    glyf += one;
  }
  places += bigEndian(quint32(glyf.size()), 4);
  const QList<std::pair<QByteArray, QByteArray>> tables{
      {"glyf", glyf},
      {"head", QByteArray(50, '\0') + bigEndian(1, 2) + bigEndian(0, 2)},
      {"hhea", QByteArray(34, '\0') + bigEndian(quint32(outlines.size()), 2)},
      {"hmtx", QByteArray(4 * outlines.size(), '\7')},
      {"loca", places},
      {"maxp", bigEndian(0x10000, 4) + bigEndian(quint32(outlines.size()), 2)}};
  QByteArray font = bigEndian(0x10000, 4) + bigEndian(quint32(tables.size()), 2) + QByteArray(6, '\0');
  qsizetype offset = 12 + 16 * tables.size();
  for (const auto& [tag, bytes] : tables) {
    font += tag + bigEndian(0, 4) + bigEndian(quint32(offset), 4) + bigEndian(quint32(bytes.size()), 4);
    offset += bytes.size();
  }
  for (const auto& [tag, bytes] : tables) font += bytes;
  return font;
}

/// One of CFF's lists of byte strings.
inline QByteArray cffIndex(const QList<QByteArray>& items) {
  if (items.isEmpty()) return bigEndian(0, 2);
  QByteArray text = bigEndian(quint32(items.size()), 2) + bigEndian(2, 1);
  quint32 offset = 1;
  for (const QByteArray& item : items) {
    text += bigEndian(offset, 2);
    offset += quint32(item.size());
  }
  text += bigEndian(offset, 2);
  for (const QByteArray& item : items) text += item;
  return text;
}

/// A CFF font whose dictionary has a number in each of the ways in which they are written before the one that
/// counts.
inline QByteArray cff(const QList<QByteArray>& charstrings) {
  const QByteArray opening = QByteArray("\1\0\4\1", 4) + cffIndex({"Name"});
  const auto fontIndex = [](qsizetype place) {
    return cffIndex({QByteArray("\x1e\x12\x3f\x05\x8b\x01\xf7\x10\x02\xfb\x10\x03\x0c\x07", 14) + '\x1c' +
                     bigEndian(7, 2) + '\4' + '\x1d' + bigEndian(quint32(place), 4) + char(17)});
  };
  const QByteArray rest = cffIndex({}) + cffIndex({});
  const qsizetype place = opening.size() + fontIndex(0).size() + rest.size();
  return opening + fontIndex(place) + rest + cffIndex(charstrings);
}

/// A CFF font whose glyphs are counted by characters: beside the empty glyph a square, 800 of 1000 units,
/// which is character `number`.
inline QByteArray squareOfCharacter(quint32 number) {
  const auto numberText = [](qsizetype value) -> QByteArray { return '\x1d' + bigEndian(quint32(value), 4); };
  const QByteArray opening = QByteArray("\1\0\4\1", 4) + cffIndex({"Name"});
  const QByteArray strings = cffIndex({"Adobe", "Identity"}) + cffIndex({});
  const QByteArray square = QByteArray::fromHex("8b8b15f9b406f9b407fdb4060e");
  const QByteArray characters = '\0' + bigEndian(number, 2), dictionaries('\0' + bigEndian(0, 2)),
                   glyphs = cffIndex({QByteArray("\x0e"), square}), widths = QByteArray::fromHex("8b14");
  const auto fontIndex =
      [&](qsizetype at) {  // registry and ordering are the first strings that are not standard
        QByteArray dictionary = numberText(391) + numberText(392) + numberText(0) + "\x0c\x1e";
        dictionary += numberText(number + 1) + "\x0c\x22" + numberText(at) + '\x0f';
        dictionary += numberText(at += characters.size()) + "\x0c\x25";
        dictionary += numberText(at += dictionaries.size()) + '\x11';
        dictionary += numberText(at += glyphs.size() + widths.size()) + "\x0c\x24";
        return cffIndex({dictionary});
      };
  const qsizetype at = opening.size() + fontIndex(0).size() + strings.size();
  const qsizetype places = at + characters.size() + dictionaries.size() + glyphs.size();
  return opening + fontIndex(at) + strings + characters + dictionaries + glyphs + widths +
         cffIndex({numberText(widths.size()) + numberText(places) + '\x12'});
}

}  // namespace norvex::kit
